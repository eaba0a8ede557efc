#pragma once

#include "companion/LoadedPicture.h"
#include "companion/Rgb.h"
#include "document/Command.h"
#include "document/Slot.h"
#include "settings/ColorDepth.h"

#include <functional>
#include <span>
#include <stdexcept>
#include <string>
#include <string_view>

namespace vypx {

/// Whoever has a picture changed: the main form, the command-line tool, a test. It asks, loads and
/// shows; what is done is decided here. Calls come in the order of the steps. What it does not care
/// for it leaves out.
class PictureHost {
public:
    virtual ~PictureHost() = default;

    /// Path of the picture file that the user chose (UTF-8); empty when the dialog was cancelled.
    virtual std::string ChoosePicture() { return {}; }
    /// Whether a dropped file can be a picture, by its name. One that can't fails the import.
    virtual bool TakesDropped(const std::string&) const { return true; }
    virtual LoadedPicture Load(const std::string& path) = 0;
    /// What loads the picture on the clipboard; empty when there is none. Asked first, so that what
    /// a large picture takes the place of can be given up before.
    virtual std::function<LoadedPicture()> ClipboardPicture() { return {}; }
    /// The depth at which pictures of the open document are stored.
    virtual ColorDepth Depth() const { return DefaultColorDepth; }

    /// A box with this text and an OK button; no title of its own where `title` is empty.
    virtual void Message(std::string_view text, std::string_view title) = 0;
    /// What went wrong without a box, in words for the user (UTF-8).
    virtual void Note(const std::string& text) = 0;
    /// LastDirImageLoad has a new value from a dialog: time to write the settings.
    virtual void FolderRemembered() { }

    virtual void Enable(std::span<const Command>, bool) { }
    /// The panel shows the transparent colour, and that there is one.
    virtual void ShowColour(const Slot&, Rgb) { }
    /// The panel is told of no picture any more: picture, size, colour and swatch go.
    virtual void ClearPanel(const Slot&) { }
    virtual void Draw(const Slot&) { }
    /// A high-res picture came in, but the low-res one, that it has a half for, did not.
    virtual void LowResFailed() { }
    /// The scratch picture waits to be cut to the slot's size.
    virtual void ShowCrop(const Slot&) { }
    /// The icons were counted anew.
    virtual void StatsChanged() { }
};

/// A file of the document can't be read or written, so a change of a picture did not take place.
/// The words are for the user (UTF-8). Whoever began the command tells them; the document stays
/// usable.
class PictureFault : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

} // namespace vypx
