#pragma once

#include "ReadingFixture.h"

#include <sstream>

namespace vypx::test {

/// For `validate`: its lines on a file of the test.
class ValidateFixture : public ReadingFixture {
protected:
    /// Lines of standard output on FILE, with the attribute that the support's files lack.
    std::vector<std::string> LinesOf(const Bytes& file)
    {
        WriteBytes(folder.File("set.prc"), file.size() < 78 ? file : WithAttribute(file));
        const ToolRun run = RunTool({ "validate", folder.File("set.prc") });
        EXPECT_EQ(run.errors, "");
        std::vector<std::string> lines;
        std::istringstream output(run.output);
        for (std::string line; std::getline(output, line);)
            lines.push_back(line);
        EXPECT_EQ(run.exitCode, lines.empty() ? 0 : 1);
        EXPECT_EQ(Listing(), (std::set<std::string>{ "set.prc" }));
        return lines;
    }
    std::vector<std::string> LinesOf(const Iconset& set) { return LinesOf(set.File()); }
    /// A sound set whose first picture resource is another.
    static Iconset With(const Bytes& family)
    {
        Iconset set = SoundSet();
        set.resources[0].data = family;
        return set;
    }
    static Iconset WithIndex(std::initializer_list<Bytes> records)
    {
        Iconset set = SoundSet();
        set.resources[3].data = Join(records);
        return set;
    }
};

} // namespace vypx::test
