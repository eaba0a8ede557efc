#include "imaging/LowRes.h"

#include "companion/ScaleImg.h"
#include "document/Document.h"
#include "document/PictureState.h"
#include "imaging/WorkingPicture.h"

namespace vypx {

namespace {

/// The flag that an import takes a file without asking, as long as this stands.
class TakesFile {
public:
    TakesFile(const std::string& path, std::optional<Rgb> transparent)
    {
        DroppedFileName = path;
        DroppedTransparent = transparent;
        DroppedFile = true;
    }
    ~TakesFile()
    {
        DroppedFile = false;
        DroppedTransparent.reset();
    }
    TakesFile(const TakesFile&) = delete;
    TakesFile& operator=(const TakesFile&) = delete;
};

/// The transparent colour that the high-res picture declares.
std::optional<Rgb> HighResMask()
{
    const BitmapEntry* const bitmap = BitmapAt(HighResPath);
    return bitmap && *bitmap->hasTransparent == 1 ? TransparentColour(*bitmap) : std::nullopt;
}

} // namespace

bool CreateLowRes(ColorDepth depth)
{
    std::optional<Picture> highRes = ReadWorkingPicture(HighResPath);
    if (!highRes)
        throw PictureFault("The high-res picture can't be read.");
    const int width = highRes->Width(), height = highRes->Height();
    picbuff = { .pixels = std::move(*highRes) };
    TargetWidth = width / 2;
    TargetHeight = height / 2;
    DeleteScratch();
    if (TargetWidth < 1 || TargetHeight < 1)
        return false;
    Picture lowRes(TargetWidth, TargetHeight);
    if (const std::optional<Rgb> mask = HighResMask())
        ScaleImg(picbuff.pixels, lowRes, width, height, TargetWidth, TargetHeight,
            ScaleMask{ .transparent = *mask, .depth = BitsOf(depth) });
    else
        ScaleImg(picbuff.pixels, lowRes, width, height, TargetWidth, TargetHeight);
    WriteScratch({ .pixels = std::move(lowRes) });
    return true;
}

ImportResult ImportLowRes(PictureHost& host)
{
    const TakesFile takesFile(ScratchPath(), HighResMask());
    const bool isMade = CreateLowRes(host.Depth());
    const ImportResult result = ImportSM(host); // which fails without a scratch picture
    if (isMade)
        return result;
    host.Note("There is no low-res picture: the high-res one is too small to be halved.");
    return ImportResult::NoHalf;
}

void ReplaceLowRes(PictureHost& host)
{
    if (ImportLowRes(host) == ImportResult::Cropping)
        return;
    try {
        CreateLowRes(host.Depth());
    } catch (const PictureFault&) {
        // The low-res picture stands, or a note has told why not.
    }
}

} // namespace vypx
