#include "imaging/WorkingPicture.h"

#include "companion/BmpFile.h"
#include "companion/Latin1.h"
#include "companion/Palettes.h"
#include "companion/PixelLibrary.h"
#include "companion/Reduction.h"
#include "companion/ReplaceWorkingFile.h"
#include "document/Document.h"
#include "document/PictureState.h"
#include "document/WorkingFolder.h"
#include "imaging/PictureHost.h"
#include "platform/Platform.h"

#include <filesystem>

namespace vypx {

namespace {

std::error_code WriteAtDepth(const Picture& picture, ColorDepth depth, const std::string& path)
{
    const int width = picture.Width(), height = picture.Height();
    switch (depth) {
    case ColorDepth::Bits4:
        return WriteBmp4(picture, Palette4, width, height, path);
    case ColorDepth::Bits8:
        return WriteBmp8(picture, Palette8, width, height, path);
    default: // reduced to 5-6-5 when the database is written
        return WriteBmp24(picture, width, height, path);
    }
}

} // namespace

/// Not SelectedNode, which a node that bears the database's name leaves as it was.
const std::string& SelectedText() { return LastClickedText; }

std::optional<Picture> ReadWorkingPicture(const std::string& path)
{
    const auto file = platform::ReadWholeFile(path);
    return file ? DecodeBmp(ByteView(*file)) : std::nullopt;
}

Picture StoreWorkingPicture(const std::string& path, const MaskedPicture& picture, ColorDepth depth)
{
    const Picture ready = ReadyToStore(picture, BitsOf(depth));
    std::optional<Picture> stored;
    const std::error_code error = ReplaceWorkingFile(path, [&](const std::string& file) {
        if (const std::error_code notWritten = WriteAtDepth(ready, depth, file))
            return notWritten;
        stored = ReadWorkingPicture(file); // before the old file is gone
        return stored ? std::error_code() : std::make_error_code(std::errc::io_error);
    });
    if (error)
        throw PictureFault(FaultText(LastComponent(path) + " could not be stored", error));
    return std::move(*stored);
}

std::string ScratchPath() { return WorkPath(ScratchName); }

void WriteWorkingBmp24(std::string_view name, const Picture& picture)
{
    const std::error_code error = ReplaceWorkingFile(WorkPath(name), [&](const std::string& file) {
        return WriteBmp24(picture, picture.Width(), picture.Height(), file);
    });
    if (error)
        throw PictureFault(FaultText(std::string(name) + " could not be written", error));
}

void WriteScratch(const MaskedPicture& picture)
{
    WriteWorkingBmp24(ScratchName, picture.pixels);
    ScratchTransparent = picture.transparent;
}

void DeleteScratch()
{
    std::error_code error;
    std::filesystem::remove(platform::NativePath(ScratchPath()), error);
    if (error)
        throw PictureFault(FaultText(std::string(ScratchName) + " could not be removed", error));
    ScratchTransparent.reset();
}

void SetCellOfLabel(const Slot& slot, const std::string& label, std::string_view file)
{
    for (IconRow& row : IconTable)
        if (row.IconLabel == label)
            row.*slot.fileCell = file;
}

void SetCellOfResource(const Slot& slot, const std::string& key, std::string_view file)
{
    for (IconRow& row : IconTable)
        if (row.ResourceKey == key)
            row.*slot.fileCell = file;
}

bool TakeMaskFromCorner(const Slot& slot, const std::string& file)
{
    const Rgb corner = picbuff.pixels.At(0, 0);
    slot.SetMask(corner);
    bool isListed = false;
    for (BitmapEntry& bitmap : BitmapTable) {
        if (bitmap.file != file)
            continue;
        bitmap.red = corner.red;
        bitmap.green = corner.green;
        bitmap.blue = corner.blue;
        bitmap.hasTransparent = 1;
        isListed = true;
    }
    return isListed;
}

std::string FaultText(const std::string& subject, std::error_code error)
{
    return subject + ": " + error.message() + ".";
}

} // namespace vypx
