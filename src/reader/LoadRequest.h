#pragma once

#include <cstdint>
#include <string>

namespace vypx {

class PictureSink;

/// The longest file that is opened, in bytes, as its size must fit IconFileSize.
inline constexpr std::uintmax_t MaxFileLength = INT32_MAX - 1;

/// What a load is to do. The command that begins it fills this in; nothing below reads the flags
/// TemplateMode, SkipOpenDialog, DroppedFile and DuplicateResource.
struct LoadRequest {
    std::string path;        ///< of the file (UTF-8)
    bool asTemplate = false; ///< it is a template
    /// The caller knew the path already: the working folder is not cleaned and the ending of the
    /// name not looked at.
    bool chosenBefore = false;
    bool dropped = false;                   ///< it came by drag and drop
    bool withoutPictures = false;           ///< none are read
    PictureSink* pictures = nullptr;        ///< gets the pictures, and no working file is made
    std::uintmax_t largest = MaxFileLength; ///< bytes; a longer file can't be read

    /// Whether the user has to be asked for the file.
    bool MustBeChosen() const { return !chosenBefore && !dropped; }
};

/// The request that the flags ask for: the file FileName where SkipOpenDialog is set, else
/// DroppedFileName where DroppedFile is, else `chosen`. Takes SkipOpenDialog back, which lives for
/// one load; TemplateMode and DroppedFile stay.
LoadRequest RequestFromFlags(const std::string& chosen = {});

} // namespace vypx
