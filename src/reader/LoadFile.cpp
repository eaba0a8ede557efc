#include "reader/LoadFile.h"

#include "document/Document.h"
#include "document/IconStats.h"
#include "document/WorkingFolder.h"
#include "platform/Platform.h"
#include "reader/ExtractBitmaps.h"
#include "reader/ResourceList.h"
#include "reader/WalkResources.h"
#include "settings/LetterCase.h"
#include "settings/Settings.h"

#include <algorithm>
#include <unordered_set>

namespace vypx {

namespace {

/// Shortest length of a file that is looked at.
constexpr std::size_t MinFileLength = 69;

/// The file can't be an iconset; ends the load with these words.
struct NoIconset {
    std::string_view message;
};

void RememberFolder(LoadListener& listener)
{
    LastDirIconsetLoad = FolderOf(FileName);
    listener.FolderRemembered();
}

void ClearTree(LoadListener& listener)
{
    FileLoaded = false; // a half-built document must never be saved over a file
    ClearSlots();
    Tree.Clear();
    listener.TreeCleared();
}

/// Fills FileCashe so that index 1 is the first byte and a zero byte stands behind the last.
void ReadWholeIconset(std::uintmax_t largest)
{
    const std::optional<Bytes> file = platform::ReadWholeFile(FileName, largest);
    if (!file)
        throw BrokenFile("can't be read");
    if (file->size() < MinFileLength)
        throw NoIconset{ "Error! Invalid file!" };
    IconFileSize = static_cast<std::int32_t>(file->size() + 1);
    FileCashe.assign(file->size() + 2, 0);
    std::copy(file->begin(), file->end(), FileCashe.begin() + 1);
}

void CheckTypeAndCreator(bool asTemplate)
{
    const std::string type = FileByIndex().Text(DatabaseTypeOffset + 1, 4);
    const std::string creator = FileByIndex().Text(DatabaseCreatorOffset + 1, 4);
    // On purpose: a template whose type is wrong gets the iconset's words.
    if (type != "ICON" || (!asTemplate && creator != "VNTR"))
        throw NoIconset{ "This file doesn't appear to be a valid Vantry IconSet" };
    if (creator != "VNTR")
        throw NoIconset{ "This file doesn't appear to be a valid VYPX Template File" };
}

void NameTheDocument(LoadListener& listener)
{
    Parent = ReadDatabaseName();
    DatabaseName = Parent;
    Tree.SetRoot(Parent);
    listener.DocumentNamed();
}

void SizeTables()
{
    const int count = ReadResourceCount();
    const auto rows = static_cast<std::size_t>(2 * count + 1);
    IconTable.assign(rows, {});
    ShareNames.assign(rows, {});
    for (IconRow& row : IconTable)
        row.IconState = 1;
    BitmapRow = 0;
}

void ReadPictures(WalkState& walk, LoadListener& listener)
{
    walk.BitmapCount = walk.BmpTotalNum;
    BitmapTable.assign(static_cast<std::size_t>(std::max(walk.BmpTotalNum, 0)) + 1, {});
    if (walk.BitmapCount > 1)
        listener.ProgressMaximum(walk.BitmapCount);
    listener.Busy(
        walk.asTemplate ? "Getting Template, please wait...." : "Getting Images, please wait....");
    ExtractBitmaps(walk, listener);
    listener.ProgressHidden();
    if (walk.BitmapCount > 1)
        listener.ProgressMaximum(walk.BitmapCount);
}

void Recount(LoadListener& listener)
{
    CountIcons();
    listener.StatsChanged();
}

/// Takes one slot's pictures out of the document; the working files stay on disk.
void DropPictures(std::string IconRow::*fileCell)
{
    std::unordered_set<std::string> dropped;
    for (IconRow& row : IconTable) {
        if (!(row.*fileCell).empty())
            dropped.insert(row.*fileCell);
        (row.*fileCell).clear();
    }
    for (BitmapEntry& bitmap : BitmapTable)
        if (dropped.contains(bitmap.file))
            bitmap.file.clear();
}

void FillFileCells(bool all)
{
    for (IconRow& row : IconTable) {
        for (std::string* cell : { &row.LowResFile, &row.HighResFile })
            if (all || cell->empty())
                *cell = NoImage;
    }
}

void ReadDocument(const LoadRequest& request, WalkState& walk, LoadListener& listener)
{
    ReadWholeIconset(request.largest);
    CheckTypeAndCreator(request.asTemplate);
    NameTheDocument(listener);
    SizeTables();
    listener.ClearPictures();
    WalkResources(walk, listener);
    ReadPictures(walk, listener);
}

void FinishDocument(bool asTemplate, LoadListener& listener)
{
    FileLoaded = true;
    listener.Opened();
    Recount(listener);
    IconsetChanged = false;
    if (HighResOnly)
        DropPictures(&IconRow::LowResFile);
    if (LowResOnly)
        DropPictures(&IconRow::HighResFile);
    CompactIconTable();
    // A template brings rows and labels, and no images.
    FillFileCells(asTemplate);
    LoadedAsTemplate = asTemplate;
    TemplateMode = false;
    Recount(listener);
}

/// On purpose: the bad file's path stays in FileName, IconsetChanged and TemplateMode as they are.
LoadResult Recover(LoadListener& listener, std::string_view message)
{
    listener.Message(message);
    FileLoaded = false;
    listener.BusyEnded();
    Recount(listener);
    return LoadResult::Recovered;
}

/// There is no document; what was read of it can't be saved.
void LeaveNoDocument()
{
    ForgetDocument();
    LeaveFailedLoad();
}

LoadResult ReplaceDocument(const LoadRequest& request, WalkState& walk, LoadListener& listener)
{
    try {
        FileName = request.path;
        RememberFolder(listener);
        ClearTree(listener);
        ReadDocument(request, walk, listener);
        FinishDocument(request.asTemplate, listener);
        return LoadResult::Opened;
    } catch (const NoIconset& no) {
        return Recover(listener, no.message);
    } catch (const BrokenFile&) {
        LeaveNoDocument(); // no box says so
        Recount(listener);
        return LoadResult::Failed;
    } catch (...) {
        LeaveNoDocument(); // what it was is for the command to tell
        throw;
    }
}

} // namespace

bool HasTheRightExtension(const LoadRequest& request)
{
    const std::string& path = request.path;
    const std::string ending = LowerCase(path.size() < 3 ? path : path.substr(path.size() - 3));
    return request.asTemplate ? ending == "vpt" : ending == "prc" || ending == "pdb";
}

LoadReport LoadFile(const LoadRequest& request, LoadListener& listener)
{
    if (!request.chosenBefore) {
        listener.BeginLoad();
        if (!HasTheRightExtension(request)) {
            listener.Message("Incorrect file type.");
            return { .result = LoadResult::WrongFileType };
        }
        DeleteWorkingFiles({ ".bmp" }); // the open document's pictures, so not a moment before
    }
    WalkState walk{
        .asTemplate = request.asTemplate,
        .withoutPictures = request.withoutPictures,
        .pictures = request.pictures,
    };
    LoadReport report{ .result = ReplaceDocument(request, walk, listener) };
    report.picturesNotStored = walk.picturesNotStored;
    report.whyNotStored = walk.whyNotStored;
    return report;
}

std::string NoteOf(const LoadReport& report)
{
    if (report.result == LoadResult::Failed)
        return "The file could not be read.";
    if (report.picturesNotStored == 0)
        return {};
    const int count = report.picturesNotStored;
    return std::to_string(count) + (count == 1 ? " picture" : " pictures")
        + " could not be stored and can't be shown: " + report.whyNotStored + ".";
}

void LeaveFailedLoad()
{
    IconsetChanged = false;
    TemplateMode = false;
}

} // namespace vypx
