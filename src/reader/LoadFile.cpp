#include "reader/LoadFile.h"

#include "document/Document.h"
#include "document/IconStats.h"
#include "document/WorkingFolder.h"
#include "platform/Platform.h"
#include "reader/ExtractBitmaps.h"
#include "reader/Progress.h"
#include "reader/ResourceList.h"
#include "reader/WalkResources.h"
#include "settings/LetterCase.h"
#include "settings/Settings.h"

#include <algorithm>
#include <exception>
#include <stdexcept>
#include <unordered_set>
#include <utility>

namespace vypx {

namespace {

/// Shortest length of a file that is looked at, and the longest whose size fits IconFileSize.
constexpr std::size_t MinFileLength = 69;
constexpr std::uintmax_t MaxFileLength = INT32_MAX - 1;

/// The file can't be an iconset; ends the load with these words.
struct NoIconset {
    std::string_view message;
};

void CleanUpBeforeLoad(LoadListener& listener)
{
    listener.BeginLoad();
    DeleteWorkingFiles({ ".bmp" });
}

bool HasTheRightExtension(const std::string& path)
{
    const std::string ending = LowerCase(path.size() < 3 ? path : path.substr(path.size() - 3));
    return TemplateMode ? ending == "vpt" : ending == "prc" || ending == "pdb";
}

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
    TLstCnt = 0;
    listener.TreeCleared();
}

/// Fills FileCashe so that index 1 is the first byte and a zero byte stands behind the last.
void ReadWholeIconset()
{
    const std::optional<Bytes> file = platform::ReadWholeFile(FileName, MaxFileLength);
    if (!file)
        throw std::runtime_error("can't read the file");
    if (file->size() < MinFileLength)
        throw NoIconset{ "Error! Invalid file!" };
    IconFileSize = static_cast<std::int32_t>(file->size() + 1);
    FileCashe.assign(file->size() + 2, 0);
    std::copy(file->begin(), file->end(), FileCashe.begin() + 1);
}

void CheckTypeAndCreator()
{
    const std::string type = FileByIndex().Text(DatabaseTypeOffset + 1, 4);
    const std::string creator = FileByIndex().Text(DatabaseCreatorOffset + 1, 4);
    // On purpose: a template whose type is wrong gets the iconset's words.
    if (type != "ICON" || (!TemplateMode && creator != "VNTR"))
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
    BmpTotalNum = 0;
    TotalBmpResources = 0;
    BitmapRow = 0;
}

void ReadPictures(LoadListener& listener)
{
    BitmapCount = BmpTotalNum;
    BitmapTable.assign(static_cast<std::size_t>(std::max(BmpTotalNum, 0)) + 1, {});
    if (BitmapCount > 1)
        listener.ProgressMaximum(BitmapCount);
    ProgressCount = 0;
    listener.Busy(
        TemplateMode ? "Getting Template, please wait...." : "Getting Images, please wait....");
    ExtractBitmaps(listener);
    listener.ProgressHidden();
    if (BitmapCount > 1)
        listener.ProgressMaximum(BitmapCount);
    ProgressCount = 0;
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

void ReadDocument(LoadListener& listener)
{
    ReadWholeIconset();
    CheckTypeAndCreator();
    NameTheDocument(listener);
    SizeTables();
    listener.ClearPictures();
    WalkResources(listener);
    ReadPictures(listener);
}

void FinishDocument(LoadListener& listener)
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
    FillFileCells(TemplateMode);
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

} // namespace

LoadResult LoadFile(const std::string& path, LoadListener& listener)
{
    const bool asChosenBefore = std::exchange(SkipOpenDialog, false);
    try {
        if (!asChosenBefore) {
            CleanUpBeforeLoad(listener);
            if (!HasTheRightExtension(path)) {
                listener.Message("Incorrect file type.");
                return LoadResult::WrongFileType;
            }
        }
        FileName = path;
        RememberFolder(listener);
        ClearTree(listener);
        ReadDocument(listener);
        FinishDocument(listener);
        return LoadResult::Opened;
    } catch (const NoIconset& no) {
        return Recover(listener, no.message);
    } catch (const std::exception&) {
        // Nothing is said. There is no document; what was read of it can't be saved.
        FileLoaded = false;
        LeaveFailedLoad();
        return LoadResult::Failed;
    }
}

void LeaveFailedLoad()
{
    IconsetChanged = false;
    TemplateMode = false;
}

} // namespace vypx
