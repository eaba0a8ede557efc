#pragma once

#include "document/Slot.h"
#include "imaging/CropGeometry.h"
#include "imaging/CropResult.h"

#include <string>
#include <string_view>

/// What the crop window does with pictures and files, without the window: from the scratch picture
/// that is larger than its slot to one of exactly the slot's size in its place.
namespace vypx {

inline constexpr std::string_view UnableToLoad = "Unable to load original image!";
inline constexpr std::string_view ImageToLarge = "Image is to large to process!";
inline constexpr std::string_view ImageToSmall = "Image is to small to process!";
inline constexpr std::string_view ErrorProcessing = "Error Processing Image!";

/// One opening of the crop window. What fails without words of its own throws PictureFault; the
/// scratch picture is then as it was, and nothing new is shown.
class CropTask {
public:
    /// The import into that slot waits with its scratch picture. TargetWidth and TargetHeight are
    /// the slot's size; `depth` is that at which the picture will be stored. The border is white.
    CropTask(const Slot& slot, ColorDepth depth);

    /// Shows the picture for cropping; a large one is halved, and the half takes its place. Again
    /// when another border colour was chosen. Gives the text of a box, empty when all went well.
    std::string_view CropFrmLoad();
    /// The same on the return from stretching.
    std::string_view PicFit();
    /// Shows the whole picture stretched to the target.
    std::string_view StretchPreview();

    /// The picture as the view shows it, in pixels of the view; null: there is none.
    const MaskedPicture& Shown() const { return m_shown; }
    /// What that was made of, the picture on disk, pixels.
    PixelSize SourceSize() const { return m_sourceSize; }
    CropGeometry& Geometry() { return m_geometry; }
    const CropGeometry& Geometry() const { return m_geometry; }
    /// Chooses the target's aspect, and TargetWidth and TargetHeight with it.
    void ChooseAspect(bool square);

    /// Brings what is under the rectangle, or the whole picture, to the target's size and puts it
    /// in the scratch picture's place. Gives the text of a box, empty when that was done.
    std::string_view Crop();
    std::string_view Stretch();

    const Slot& ForSlot() const { return m_slot; }
    /// Hands the scratch picture to the next import. False: the icon, its file or the document that
    /// it was for is not selected any more, and nothing is to be imported.
    bool HandOver() const;

private:
    void Halve(MaskedPicture& source);
    std::string_view View(CropSize size, const MaskedPicture& source);
    void Show(MaskedPicture shown, const MaskedPicture& source);
    MaskedPicture Source() const;
    std::string_view WhyNoSource() const;
    MaskedPicture Read(const std::string& path) const;

    const Slot& m_slot;
    ColorDepth m_depth;
    std::string m_label, m_path;
    std::optional<Rgb> m_transparent;
    CropGeometry m_geometry;
    MaskedPicture m_shown;
    PixelSize m_sourceSize;
    bool m_hasNoHalf = false; // nothing is left of the picture when it is halved
};

} // namespace vypx
