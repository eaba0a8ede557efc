#include "reader/ExtractBitmaps.h"

#include "document/Document.h"
#include "reader/ResourceList.h"

#include <algorithm>

namespace vypx {

namespace {

bool SizeIsSound() { return ResourceSize >= 0 && ResourceSize <= MaxResourceSize; }

} // namespace

void ExtractBitmaps(LoadListener& listener)
{
    if (DuplicateResource)
        return;
    listener.ProgressShown();
    BitmapDecoder decoder(listener);
    const int count = ReadResourceCount();
    FCin = FirstEntryIndex;
    for (Rcntr = 1; Rcntr <= count; ++Rcntr, FCin += EntrySize) {
        const ResourceEntry entry = ReadEntry(FCin);
        ResourceName = entry.Name();
        ResourceOffset = ReadDataOffset(FCin);
        if (Rcntr == count) {
            ResourceSize = IconFileSize - ResourceOffset;
        } else {
            // On purpose: the size that is judged here is still that of the resource before.
            if (!SizeIsSound()) {
                listener.Message("Error Number 0. Problem reading file.");
                break;
            }
            NextOffset = ReadDataOffset(FCin + EntrySize);
            ResourceSize = NextOffset - ResourceOffset;
        }
        Abmp = false;
        if (entry.type == "tAIB" || entry.type == "Tbmp")
            LoadBitmapResource(decoder, listener);
    }
    listener.BusyEnded();
}

void LoadBitmapResource(BitmapDecoder& decoder, LoadListener& listener)
{
    if (!SizeIsSound()) {
        listener.Message("Error reading file.");
        return;
    }
    const ByteView resource = FileByIndex().Part(
        static_cast<std::size_t>(ResourceOffset) + 1, static_cast<std::size_t>(ResourceSize));
    ResourceBytes.assign(1, 0);
    ResourceBytes.insert(ResourceBytes.end(), resource.Span().begin(), resource.Span().end());
    decoder.DecodeBitmapFamily();
}

} // namespace vypx
