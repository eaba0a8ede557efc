// A database of any bytes is opened, saved and opened again. Working files lie in a folder of this
// process in the system's temporary folder. The first byte picks depth, packing and unknown icons.

#include "Database.h"
#include "document/WorkingFolder.h"
#include "platform/Platform.h"
#include "reader/LoadFile.h"
#include "settings/Settings.h"
#include "writer/CompileIconset.h"
#include "writer/SaveChecks.h"

#include <algorithm>
#include <filesystem>
#include <fstream>

using namespace vypx;

namespace {

namespace fs = std::filesystem;

/// A program's folder with catalogs, made once and taken away at the end.
struct Folder {
    Folder()
        : path(fs::temp_directory_path()
            / ("vypx-save-fuzz-" + std::to_string(platform::ProcessNumber())))
    {
        fs::create_directories(path / "temp");
        std::ofstream(path / "AppList.dat") << "[Alpha]\nType=appl\nCreator={ALPH}\n";
        std::ofstream(path / "PalmApp.dat") << "[Palm Clock]\nType=appl\nCreator={CLCK}\n";
    }
    ~Folder()
    {
        std::error_code ignored;
        fs::remove_all(path, ignored);
    }

    fs::path path;
};

void UseSettings(unsigned choice)
{
    SetDefaultSettings();
    constexpr ColorDepth Depths[] = { ColorDepth::Bits16, ColorDepth::Bits8, ColorDepth::Bits4 };
    DefaultColorDepth = Depths[choice % 3];
    UsePackbits = (choice & 4) != 0;
    KeepUnknown = (choice & 8) != 0;
}

LoadResult Load(const fs::path& file)
{
    fuzz::Silent listener;
    return LoadFile({ .path = file.string() }, listener).result;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    static const Folder folder;
    if (size < 70 || size > 1u << 14)
        return 0;
    ResetDocument();
    UseSettings(data[0]);
    fuzz::UseCatalogs();
    AppFolder = folder.path.string();
    SetTempSuffix(0);
    const fs::path in = folder.path / "in.prc", out = folder.path / "out.prc";
    std::ofstream(in, std::ios::binary)
        .write(reinterpret_cast<const char*>(data + 1), static_cast<std::streamsize>(size - 1));
    if (Load(in) != LoadResult::Opened || WhyNotSaved())
        return 0;
    SaveReport report;
    try {
        report = CompileIconset({ .path = out.string() });
    } catch (const SaveFailure&) {
        return 0; // a picture that could not be made
    }
    const std::size_t resources = PictureRows().size();
    fuzz::Require(Load(out) == LoadResult::Opened);
    fuzz::Require(PictureRows().size() <= resources);
    const auto isOrphan = [](const IconRow& row) { return row.IconKind == KindDelete; };
    fuzz::Require(report.orphans <= std::count_if(IconTable.begin(), IconTable.end(), isOrphan));
    return 0;
}
