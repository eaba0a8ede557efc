#include "reader/ExtractBitmaps.h"

#include "document/Document.h"
#include "reader/PictureSink.h"
#include "reader/ResourceList.h"

namespace vypx {

namespace {

bool SizeIsSound(const WalkState& walk)
{
    return walk.ResourceSize >= 0 && walk.ResourceSize <= MaxResourceSize;
}

} // namespace

void ExtractBitmaps(WalkState& walk, LoadListener& listener)
{
    if (walk.withoutPictures)
        return;
    listener.ProgressShown();
    BitmapDecoder decoder(walk, listener);
    const int count = ReadResourceCount();
    walk.FCin = FirstEntryIndex;
    for (walk.Rcntr = 1; walk.Rcntr <= count; ++walk.Rcntr, walk.FCin += EntrySize) {
        const ResourceEntry entry = ReadEntry(walk.FCin);
        walk.ResourceName = entry.Name();
        walk.ResourceOffset = ReadDataOffset(walk.FCin);
        if (walk.Rcntr == count) {
            walk.ResourceSize = IconFileSize - walk.ResourceOffset;
        } else {
            // On purpose: the size that is judged here is still that of the resource before.
            if (!SizeIsSound(walk)) {
                listener.Message("Error Number 0. Problem reading file.");
                break;
            }
            walk.NextOffset = ReadDataOffset(walk.FCin + EntrySize);
            walk.ResourceSize = walk.NextOffset - walk.ResourceOffset;
        }
        if (entry.type != "tAIB" && entry.type != "Tbmp")
            continue;
        if (walk.pictures && !walk.pictures->GoOn())
            break;
        LoadBitmapResource(walk, decoder, listener);
    }
    listener.BusyEnded();
}

void LoadBitmapResource(WalkState& walk, BitmapDecoder& decoder, LoadListener& listener)
{
    if (!SizeIsSound(walk)) {
        listener.Message("Error reading file.");
        return;
    }
    const ByteView resource = FileByIndex().Part(static_cast<std::size_t>(walk.ResourceOffset) + 1,
        static_cast<std::size_t>(walk.ResourceSize));
    walk.ResourceBytes.assign(1, 0);
    walk.ResourceBytes.insert(
        walk.ResourceBytes.end(), resource.Span().begin(), resource.Span().end());
    decoder.DecodeBitmapFamily();
}

} // namespace vypx
