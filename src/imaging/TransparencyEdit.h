#pragma once

#include "document/Slot.h"

#include <functional>
#include <optional>
#include <string>

namespace vypx {

struct BitmapEntry;

/// The transparent colour of the picture that a slot shows, while it is being edited: what the
/// document says of it changes at once, and can be brought back. No picture file changes.
///
/// The edit stays with the file that it was begun for, in every row of BitmapTable that names it;
/// the slot's mask and flag follow as long as the slot shows that file. Names beside the members
/// are those by which the state is known.
class TransparencyEdit {
public:
    /// Begins with what BitmapTable and the slot say.
    explicit TransparencyEdit(const Slot& slot);

    const std::string& Path() const { return m_path; }
    /// The slot still shows the file.
    bool IsOnShow() const { return m_slot.loaded && m_slot.path == m_path; }

    /// The picture had a transparent colour when the edit began.
    bool HadColour() const { return m_statusSaved.value_or(0) != 0; }
    /// A transparent colour is on hand.
    bool HasColour() const { return m_isSet; }
    /// The slot's flag: the transparent colour is used.
    bool IsUsed() const { return m_isUsed; }
    /// The colour on hand, which is the slot's mask; black when there is none.
    Rgb Colour() const { return m_colour; }

    /// A colour was picked: it is the transparent one and is used.
    void Pick(Rgb colour);
    /// A component was typed, 0 to 255. On purpose: whether the colour is used does not change.
    void Type(int Rgb::*component, int value);
    void UseNone();
    /// Only when a colour is on hand.
    void Use();

    /// Takes all back. On purpose: a picture that had no transparent colour gets black, unused.
    void Cancel();

private:
    void ChangeRows(const std::function<void(BitmapEntry&)>& change) const;
    void SetUsed(bool on);
    void SetColour(Rgb colour);

    const Slot& m_slot;
    const std::string m_path;
    std::optional<int> m_statusSaved; // TC_StatusSav
    Rgb m_maskSaved;                  // MaskRsav, MaskGsav, MaskBsav
    Rgb m_colour;                     // TC_Red, TC_Grn, TC_Blue
    bool m_isSet = false;             // TC_Set
    bool m_isUsed;
};

} // namespace vypx
