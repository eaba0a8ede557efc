#include "reader/LoadRequest.h"

#include "document/Document.h"

#include <utility>

namespace vypx {

LoadRequest RequestFromFlags(const std::string& chosen)
{
    const bool chosenBefore = std::exchange(SkipOpenDialog, false);
    const bool dropped = !chosenBefore && DroppedFile;
    return {
        .path = chosenBefore ? FileName
            : dropped        ? DroppedFileName
                             : chosen,
        .asTemplate = TemplateMode,
        .chosenBefore = chosenBefore,
        .dropped = dropped,
        .withoutPictures = DuplicateResource,
    };
}

} // namespace vypx
