#pragma once

#include "companion/Picture.h"
#include "document/Slot.h"
#include "settings/ColorDepth.h"

#include <optional>
#include <string>
#include <system_error>

/// Pictures in the working folder, and what the tables say of them. Paths are UTF-8.
namespace vypx {

/// Text of the selected node of the tree.
const std::string& SelectedText();

/// Empty for a file that is not there, can't be read or is none of our pictures.
std::optional<Picture> ReadWorkingPicture(const std::string& path);

/// Replaces the working file by the picture, reduced to that depth, in one step; the old file
/// stands after a failure. Gives the picture as it can be read from there. Throws PictureFault.
Picture StoreWorkingPicture(
    const std::string& path, const MaskedPicture& picture, ColorDepth depth);

/// Replaces the working file of that name by the picture at 24 bits. Throws PictureFault.
void WriteWorkingBmp24(std::string_view name, const Picture& picture);

/// The scratch picture, through which pictures reach the crop window and the low-res slot.
std::string ScratchPath();
/// Replaces it. Throws PictureFault.
void WriteScratch(const MaskedPicture& picture);
/// Throws PictureFault: a stale one must not be taken for the next.
void DeleteScratch();

/// Sets the file cell of the slot in every row with that label, or with that resource.
void SetCellOfLabel(const Slot& slot, const std::string& label, std::string_view file);
void SetCellOfResource(const Slot& slot, const std::string& key, std::string_view file);

/// The colour of picbuff's top left pixel becomes the transparent colour of the file and of the
/// slot. False: BitmapTable has no row of the file, so the panel has no colour to show.
bool TakeMaskFromCorner(const Slot& slot, const std::string& file);

/// "Name: reason." for a file of the user's, or of ours.
std::string FaultText(const std::string& subject, std::error_code error);

} // namespace vypx
