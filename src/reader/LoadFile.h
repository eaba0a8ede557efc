#pragma once

#include "reader/LoadListener.h"
#include "reader/LoadRequest.h"

#include <string>

namespace vypx {

enum class LoadResult {
    Opened,        ///< the document is open
    WrongFileType, ///< the ending is wrong; the old document is open as it was
    Recovered, ///< the file is no iconset, which was said; there is no document, the tree is empty
    Failed,    ///< the file can't be read or is broken, silently; there is no document
};

/// How a load ended.
struct LoadReport {
    LoadResult result = LoadResult::Failed;
    /// Pictures that got no working file, as it could not be written (no space, no folder), and why
    /// the first one did not, in the system's words. A picture that can't be made is none of them.
    int picturesNotStored = 0;
    std::string whyNotStored;
};

/// Opens the iconset or template of the request as the one document: reads it whole, walks its
/// resource list, fills IconTable, BitmapTable and Tree, and writes the working pictures.
///
/// TemplateMode ends with a load that opened or failed; a refused file leaves it as it was. What is
/// no fault of the file (no memory, a mistake of the program) passes up; then there is no document.
LoadReport LoadFile(const LoadRequest& request, LoadListener& listener);

/// Whether the request's path ends as its kind of file must: in "vpt", or in "prc" or "pdb", in any
/// letter case.
bool HasTheRightExtension(const LoadRequest& request);

/// What the user should know of a load and no box has said, in plain words (UTF-8): that the file
/// could not be read, that pictures could not be stored. Empty: nothing.
std::string NoteOf(const LoadReport& report);

/// What a load that was cancelled or failed leaves: IconsetChanged and TemplateMode false.
/// On purpose: a cancelled file dialog makes a changed document count as unchanged.
void LeaveFailedLoad();

} // namespace vypx
