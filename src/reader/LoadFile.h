#pragma once

#include "reader/LoadListener.h"

#include <string>

namespace vypx {

enum class LoadResult {
    Opened,        ///< the document is open
    WrongFileType, ///< the extension is wrong; the old document is still open
    Recovered, ///< the file is no iconset, which was said; there is no document, the tree is empty
    Failed,    ///< any other failure, silently; there is no document
};

/// Opens the iconset, or in TemplateMode the template, at `path` (UTF-8) as the one document:
/// reads it whole, walks its resource list, fills IconTable, BitmapTable and Tree, and writes the
/// working pictures. With SkipOpenDialog the working folder is not cleaned and the extension not
/// looked at. SkipOpenDialog ends with every call, TemplateMode as the exits tell.
LoadResult LoadFile(const std::string& path, LoadListener& listener);

/// What a load that was cancelled or failed leaves: IconsetChanged and TemplateMode false.
/// On purpose: a cancelled file dialog makes a changed document count as unchanged.
void LeaveFailedLoad();

} // namespace vypx
