#include "imaging/TransparencyEdit.h"

#include "document/Document.h"
#include "document/WorkingFolder.h"

namespace vypx {

TransparencyEdit::TransparencyEdit(const Slot& slot)
    : m_slot(slot)
    , m_path(slot.path)
    , m_isUsed(slot.hasTransparent)
{
    if (const BitmapEntry* const bitmap = BitmapAt(m_path))
        m_statusSaved = bitmap->hasTransparent;
    if (HadColour()) {
        m_isSet = true;
        m_colour = m_maskSaved = slot.Mask();
    }
}

void TransparencyEdit::ChangeRows(const std::function<void(BitmapEntry&)>& change) const
{
    for (BitmapEntry& bitmap : BitmapTable)
        if (!bitmap.file.empty() && WorkPath(bitmap.file) == m_path)
            change(bitmap);
}

void TransparencyEdit::Pick(Rgb colour)
{
    SetColour(colour);
    m_isSet = true;
    Use();
}

void TransparencyEdit::Type(int Rgb::*component, int value)
{
    Rgb colour = m_colour;
    colour.*component = value;
    SetColour(colour);
    m_isSet = true;
}

void TransparencyEdit::UseNone() { SetUsed(false); }

void TransparencyEdit::Use()
{
    if (m_isSet)
        SetUsed(true);
}

void TransparencyEdit::Cancel()
{
    SetColour(m_maskSaved);
    SetUsed(HadColour());
    ChangeRows([this](BitmapEntry& bitmap) { bitmap.hasTransparent = m_statusSaved; });
}

void TransparencyEdit::SetUsed(bool on)
{
    ChangeRows([on](BitmapEntry& bitmap) { bitmap.hasTransparent = on ? 1 : 0; });
    m_isUsed = on;
    if (IsOnShow())
        m_slot.hasTransparent = on;
}

void TransparencyEdit::SetColour(Rgb colour)
{
    ChangeRows([&colour](BitmapEntry& bitmap) {
        bitmap.red = colour.red;
        bitmap.green = colour.green;
        bitmap.blue = colour.blue;
    });
    m_colour = colour;
    if (IsOnShow())
        m_slot.SetMask(colour);
}

} // namespace vypx
