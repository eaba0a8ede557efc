#include "settings/CLBHScroll.h"

#include "settings/Settings.h"

namespace vypx {

void CLBHScroll::Init(ListBox& list)
{
    pListBox = &list;
    list.Clear();
    m_widest = 0;
}

void CLBHScroll::AddItem(const std::string& psItemText)
{
    constexpr int Margin = 2; // pixels
    pListBox->Add(psItemText);
    const std::int32_t width = pListBox->TextWidth(psItemText);
    if (width > m_widest) {
        m_widest = width;
        pListBox->SetHorizontalExtent(PixelsFromTwips(width) + pListBox->ScrollBarWidth() + Margin);
    }
    pListBox->ScrollToEnd();
}

} // namespace vypx
