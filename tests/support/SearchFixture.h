#pragma once

#include "catalogs/AddPrcFiles.h"
#include "catalogs/CatalogFiles.h"
#include "document/Catalogs.h"
#include "support/LoadFixture.h"
#include "support/PrcFiles.h"

#include <filesystem>
#include <functional>
#include <gmock/gmock.h>

namespace vypx::test {

/// Keeps what a search tells.
class RecordingSearch : public SearchListener {
public:
    std::vector<std::string> texts; ///< of the boxes
    std::vector<CatalogBox> boxes;
    std::vector<std::string> found; ///< and "(end)" where the walk ended
    std::function<void()> events = [] {};
    bool stops = false; // until that is taken

    void Show(const CatalogBox& box) override
    {
        texts.push_back(box.text);
        boxes.push_back(box);
    }
    void PathFound(std::string_view path) override { found.emplace_back(path); }
    void WalkEnded() override { found.emplace_back("(end)"); }
    void RunEvents() override { events(); }
    bool TakeStop() override { return std::exchange(stops, false); }
};

/// Catalogs in the program's folder, and a folder "palm" to search.
class Searching : public LoadFixture {
protected:
    Searching()
    {
        StartupSearchRunning = ScanHasNew = false;
        SearchFolder = folder.File("palm");
        PalmDesktopPath.clear();
        listPRC.clear();
        std::filesystem::create_directory(SearchFolder);
        Catalogs("", "");
    }

    /// Writes both and reads them.
    void Catalogs(const std::string& apps, const std::string& palm)
    {
        WriteText(AppListFile(), apps);
        WriteText(PalmAppFile(), palm);
        ReadTables();
    }
    static void ReadTables()
    {
        ReadAppIni([](std::string_view) {});
        ReadPalmAppIni([](std::string_view) {});
    }
    static std::string Entry(
        const std::string& name, const std::string& creator, const std::string& type = "appl")
    {
        return "[" + name + "]\nType=" + type + "\nCreator={" + creator + "}\n";
    }
    static std::string Apps() { return ReadSystemText(AppListFile()); }

    /// Path of a file below the folder that is searched; its folders are made.
    static std::string InPalm(const std::string& name)
    {
        std::filesystem::path path =
            platform::NativePath(SearchFolder) / platform::NativePath(name);
        std::filesystem::create_directories(path.parent_path());
        return platform::Utf8Path(path.make_preferred());
    }
    static void Put(const std::string& name, const Bytes& file) { WriteBytes(InPalm(name), file); }

    /// Searches SearchFolder, as one that the user chose.
    SearchEnd Search()
    {
        AllowFolderSearch();
        return SearchAndAdd(listener);
    }

    /// Searches, and what became of the one file.
    JudgedPrc Judged()
    {
        const SearchEnd end = Search();
        EXPECT_EQ(end.add.files.size(), 1u);
        return end.add.files.empty() ? JudgedPrc{} : end.add.files[0];
    }
    JudgedPrc JudgedAs(const Bytes& file)
    {
        Put("app.prc", file);
        return Judged();
    }
    /// Searches, and what became of each file.
    std::vector<PrcVerdict> Verdicts()
    {
        std::vector<PrcVerdict> verdicts;
        for (const JudgedPrc& file : Search().add.files)
            verdicts.push_back(file.verdict);
        return verdicts;
    }

    RecordingSearch listener;
};

} // namespace vypx::test
