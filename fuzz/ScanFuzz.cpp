// A folder of .prc files of any bytes is searched, twice. The input is cut into files of 70 bytes:
// the first byte of each says where it lies, the rest is the file; what is left is the last file.
// Catalogs and files lie in a folder of this process in the system's temporary folder.

#include "Database.h"
#include "catalogs/AddPrcFiles.h"
#include "catalogs/CatalogFiles.h"
#include "document/WorkingFolder.h"
#include "platform/Platform.h"
#include "settings/IniStore.h"

#include <algorithm>
#include <filesystem>
#include <fstream>

using namespace vypx;

namespace {

namespace fs = std::filesystem;

constexpr std::string_view Apps =
    "; mine\n[Alpha]\nType=appl\nCreator={ALPH}\n[Half]\nType=appl\nCreator=ABCDE\n";

/// A program's folder, made once and taken away at the end.
struct Folder {
    Folder()
        : path(fs::temp_directory_path()
            / ("vypx-scan-fuzz-" + std::to_string(platform::ProcessNumber())))
    {
        fs::create_directories(path);
        std::ofstream(path / "PalmApp.dat") << "[Palm Clock]\nType=appl\nCreator={CLCK}\n";
    }
    ~Folder()
    {
        std::error_code ignored;
        fs::remove_all(path, ignored);
    }

    fs::path path;
};

class Quiet : public SearchListener {
    void Show(const CatalogBox&) override { }
};

void WriteFiles(const fs::path& folder, std::string_view bytes)
{
    constexpr std::size_t Part = 70, MostFiles = 40;
    fs::remove_all(folder);
    fs::create_directories(folder / "sub");
    for (std::size_t i = 0; i < MostFiles && !bytes.empty(); ++i) {
        const bool isBelow = (bytes[0] & 1) != 0;
        const fs::path file = (isBelow ? folder / "sub" : folder)
            / (std::to_string(i) + (bytes[0] & 2 ? ".PRC" : ".prc"));
        const std::string_view content = bytes.substr(1, Part - 1);
        std::ofstream(file, std::ios::binary)
            .write(content.data(), static_cast<std::streamsize>(content.size()));
        bytes.remove_prefix(std::min(Part, bytes.size()));
    }
}

AddEnd Search()
{
    Quiet quiet;
    const auto ignore = [](std::string_view) {};
    ReadAppIni(ignore);
    ReadPalmAppIni(ignore);
    ScanHasNew = true;
    return SearchAndAdd(quiet).add;
}

/// What was added is read back as a row with that name, and nothing of before is gone.
void RequireRows(const AddEnd& end, std::size_t rowsBefore)
{
    ReadAppIni([](std::string_view) {});
    std::size_t added = 0;
    for (const JudgedPrc& file : end.files) {
        if (file.verdict != PrcVerdict::Added)
            continue;
        ++added;
        const auto row = std::find_if(AppTable.begin() + 1, AppTable.end(),
            [&](const CatalogRow& each) { return each.name == file.entry; });
        fuzz::Require(row != AppTable.end() && !row->name.empty());
        fuzz::Require(row->creator.size() == 4 && (row->type == "appl" || row->type == "panl"));
    }
    fuzz::Require(AppTable.size() == rowsBefore + added);
    fuzz::Require(ReadIni(AppListFile())->Bytes().starts_with(Apps));
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    static const Folder folder;
    AppFolder = folder.path.string();
    SearchFolder = (folder.path / "palm").string();
    std::ofstream(folder.path / "AppList.dat", std::ios::binary) << Apps;
    WriteFiles(SearchFolder, { reinterpret_cast<const char*>(data), size });

    RequireRows(Search(), 3);
    const AddEnd again = Search();
    for (const JudgedPrc& file : again.files)
        fuzz::Require(file.verdict != PrcVerdict::Added);
    return 0;
}
