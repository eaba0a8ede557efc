#pragma once

#include "document/Catalogs.h"
#include "document/Document.h"
#include "document/WorkingFolder.h"
#include "reader/LoadFile.h"
#include "settings/Settings.h"
#include "support/Files.h"
#include "support/Iconsets.h"
#include "support/TempFolder.h"

#include <functional>
#include <gtest/gtest.h>

namespace vypx::test {

/// Keeps what a load told.
class RecordingListener : public LoadListener {
public:
    std::vector<std::string> messages;
    std::vector<std::string> steps; ///< names of the calls, in order; texts and numbers behind ":"
    std::function<void(const std::string&)> during; ///< runs at every step

    void Message(std::string_view text) override
    {
        messages.emplace_back(text);
        Step("message:" + std::string(text));
    }
    void BeginLoad() override { Step("begin"); }
    void FolderRemembered() override { Step("folder"); }
    void TreeCleared() override { Step("cleared"); }
    void DocumentNamed() override { Step("named"); }
    void ClearPictures() override { Step("pictures"); }
    void WalkGivenUp() override { Step("given up"); }
    void Busy(std::string_view text) override { Step("busy:" + std::string(text)); }
    void BusyEnded() override { Step("idle"); }
    void ProgressMaximum(int maximum) override { Step("maximum:" + std::to_string(maximum)); }
    void ProgressShown() override { Step("progress"); }
    void Progress(int count) override { Step("progress:" + std::to_string(count)); }
    void ProgressHidden() override { Step("no progress"); }
    void Opened() override { Step("opened"); }
    void StatsChanged() override { Step("stats"); }

private:
    void Step(const std::string& name)
    {
        steps.push_back(name);
        if (during)
            during(name);
    }
};

/// A process with nothing open, its folders fresh.
class LoadFixture : public ::testing::Test {
protected:
    LoadFixture()
    {
        SetDefaultSettings();
        ResetDocument();
        ResetCatalogs();
        AppFolder = folder.Path();
        SetTempSuffix(0);
        MakeFolder(WorkFolder());
    }

    /// Path of the file, once it is written beside the working folder.
    std::string Written(const Bytes& file, const std::string& name = "set.prc")
    {
        WriteBytes(folder.File(name), file);
        return folder.File(name);
    }
    /// Writes the file beside the working folder and opens it.
    LoadResult Open(const Bytes& file, const std::string& name = "set.prc")
    {
        return Load(Written(file, name));
    }
    LoadResult Load(const std::string& path)
    {
        report = LoadFile(RequestFromFlags(path), listener);
        return report.result;
    }

    static std::vector<std::string> Labels()
    {
        std::vector<std::string> labels;
        for (const IconRow& row : IconTable)
            labels.push_back(row.IconLabel);
        return labels;
    }
    static std::vector<std::string> NodeKeys()
    {
        std::vector<std::string> keys;
        for (const IconNode& node : Tree.Nodes())
            keys.push_back(node.key);
        return keys;
    }
    static std::size_t TimesOf(const std::vector<std::string>& all, const std::string& one)
    {
        return static_cast<std::size_t>(std::count(all.begin(), all.end(), one));
    }

    TempFolder folder;
    LoadReport report; ///< of the last load
    RecordingListener listener;
};

/// A picture resource.
inline Resource Icon(int id, const std::string& type = "tAIB")
{
    return { .type = type, .id = id, .data = LowRecord(8) };
}

/// The index of those records.
inline Resource Index(std::initializer_list<Bytes> records)
{
    return { .type = "iTbl", .id = 1000, .data = Join(records) };
}

} // namespace vypx::test
