#pragma once

#include "CommandFixture.h"
#include "support/Netpbm.h"

namespace vypx::test {

/// For `import`: lists and pictures stand in the folder `pictures` of the test's folder.
class ImportFixture : public CommandFixture {
protected:
    ImportFixture() { std::filesystem::create_directory(folder.File("pictures")); }

    /// Imports what a list with this text names.
    ToolRun Run(std::string_view list, std::vector<std::string> more = {})
    {
        WriteText(folder.File("pictures/list.txt"), list);
        more.insert(more.end(), { "--list", folder.File("pictures/list.txt") });
        return RunCommand("import", more);
    }
    /// A file with a picture in the corners of the colour cube, which every depth from 8 bits on
    /// has; never twice the same within a row or column of 8.
    Picture Make(const std::string& name, int width, int height, int seed = 0)
    {
        Picture picture(width, height);
        for (int y = 0; y < height; ++y)
            for (int x = 0; x < width; ++x) {
                const int corner = x + 3 * y + seed;
                picture.Set(
                    x, y, { corner & 1 ? 255 : 0, corner & 2 ? 255 : 0, corner & 4 ? 255 : 0 });
            }
        WritePpm(folder.File("pictures/" + name), picture);
        return picture;
    }
    /// A working picture of the last `Dumped` as netpbm reads it.
    Picture Shown(const std::string& file)
    {
        return PictureFrom("bmptopnm -quiet '" + folder.File("dump/" + file) + "'");
    }
    /// The entry of a table of `Dumped` whose field has that text; null if there is none.
    static nlohmann::json Entry(
        const nlohmann::json& table, const std::string& field, const std::string& text)
    {
        for (const nlohmann::json& entry : table)
            if (entry[field] == text)
                return entry;
        return nullptr;
    }
    bool WroteOut() const { return std::filesystem::exists(folder.File("out.prc")); }
};

} // namespace vypx::test
