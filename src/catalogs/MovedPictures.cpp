#include "catalogs/MovedPictures.h"

#include "companion/ReplaceWorkingFile.h"
#include "document/Document.h"
#include "document/PictureState.h"
#include "document/Slot.h"
#include "document/WorkingFolder.h"
#include "platform/Platform.h"

#include <filesystem>
#include <vector>

namespace vypx {

namespace {

struct Move {
    const Slot& slot;
    std::string from, to; // bare names
};

std::vector<Move> MovesOf(const IconRow& row, const std::string& newKey)
{
    std::vector<Move> moves;
    for (const Slot* slot : { &SlotLG, &SlotSM }) {
        const std::string& from = row.*slot->fileCell;
        const std::string to = newKey + std::string(slot->fileSuffix);
        if (ImageFileValid(from) && from != to)
            moves.push_back({ .slot = *slot, .from = from, .to = to });
    }
    return moves;
}

bool IsShown(const std::string& file)
{
    for (const IconRow& row : IconTable)
        if (!row.IconLabel.empty() && (row.LowResFile == file || row.HighResFile == file))
            return true;
    return false;
}

std::error_code Copy(const Move& move)
{
    return ReplaceWorkingFile(WorkPath(move.to), [&](const std::string& newPath) {
        std::error_code error;
        std::filesystem::copy_file(platform::NativePath(WorkPath(move.from)),
            platform::NativePath(newPath), std::filesystem::copy_options::overwrite_existing,
            error);
        return error;
    });
}

void Remove(const std::string& file)
{
    std::error_code ignored;
    std::filesystem::remove(platform::NativePath(WorkPath(file)), ignored);
}

/// Rows of a picture that was under that name before tell nothing of the one that is now.
void ForgetBitmap(const std::string& file)
{
    for (BitmapEntry& bitmap : BitmapTable)
        if (bitmap.file == file)
            bitmap.file.clear();
    BackedUp.erase(file);
}

void RenameBitmap(const std::string& from, const std::string& to)
{
    for (BitmapEntry& bitmap : BitmapTable)
        if (bitmap.file == from)
            bitmap.file = to;
    BackedUp.erase(from);
}

void CopyBitmap(const std::string& from, const std::string& to)
{
    const BitmapEntry* const last = BitmapAt(WorkPath(from));
    if (!last)
        return;
    BitmapEntry copy = *last;
    copy.file = to;
    AddBitmapRow(std::move(copy));
}

/// The new file is there; the old one goes unless somebody shows it.
void Follow(IconRow& row, const Move& move)
{
    ForgetBitmap(move.to);
    row.*move.slot.fileCell = move.to;
    if (IsShown(move.from)) {
        CopyBitmap(move.from, move.to);
    } else {
        RenameBitmap(move.from, move.to);
        Remove(move.from);
    }
}

} // namespace

bool MovePictures(std::size_t row, const std::string& newKey, std::string& why)
{
    const std::vector<Move> moves = MovesOf(IconTable[row], newKey);
    for (const Move& move : moves)
        if (IsShown(move.to)) {
            why = "A picture named " + move.to + " is in use.";
            return false;
        }
    for (std::size_t done = 0; done < moves.size(); ++done) {
        const std::error_code error = Copy(moves[done]);
        if (!error)
            continue;
        for (std::size_t made = 0; made < done; ++made)
            Remove(moves[made].to);
        why = "The " + std::string(moves[done].slot.resolution)
            + " picture could not be moved: " + error.message() + ".";
        return false;
    }
    for (const Move& move : moves)
        Follow(IconTable[row], move);
    return true;
}

} // namespace vypx
