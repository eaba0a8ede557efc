#include "ValidateFixture.h"

#include <random>

namespace vypx::test {

namespace {

using nlohmann::json;

/// Pictures and icons as `extract` names them, each picture with its PNG file's text.
class ValidatedSave : public ValidateFixture {
protected:
    json PicturesOf(const std::string& name)
    {
        std::filesystem::remove_all(folder.File("x"));
        EXPECT_EQ(RunTool({ "extract", folder.File(name), folder.File("x") }).exitCode, 0);
        json pictures = json::parse(ReadText(folder.File("x/index.json")))["pictures"];
        for (json& picture : pictures)
            picture["file"] = ReadBytes(folder.File("x/" + picture["file"].get<std::string>()));
        std::filesystem::remove_all(folder.File("x"));
        return pictures;
    }
    /// A sound set with one byte changed. Pixels are most of it, so half of the changes are within
    /// headers.
    static Bytes Changed(unsigned number)
    {
        Bytes file = WithAttribute(SoundSet().File());
        std::mt19937 random(number);
        const std::size_t end = number % 2 == 0 ? 160 : file.size();
        file[random() % end] = static_cast<std::uint8_t>(random());
        return file;
    }
};

/// What `validate` finds nothing in, a save and a load bring back.
TEST_F(ValidatedSave, BringsBackPicturesAndIcons)
{
    int clean = 0;
    for (unsigned number = 0; number < 40; ++number) {
        WriteBytes(folder.File("set.prc"), Changed(number));
        if (RunTool({ "validate", folder.File("set.prc") }).exitCode != 0)
            continue;
        ++clean;
        std::filesystem::remove_all(folder.File("w"));
        const ToolRun saved = RunTool({ "convert", folder.File("set.prc"), folder.File("out.prc"),
            "--app-folder", VYPX_SHIPPED_DATA, "--work", folder.File("w"), "--depth", "8-Bit" });
        EXPECT_EQ(saved.exitCode, 0) << number << saved.errors;
        EXPECT_EQ(PicturesOf("set.prc"), PicturesOf("out.prc")) << number;
    }
    EXPECT_GE(clean, 10);
}

} // namespace
} // namespace vypx::test
