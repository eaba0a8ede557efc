#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace vypx {

/// A list of texts in a window, as CLBHScroll serves it. Texts are Latin-1.
class ListBox {
public:
    virtual ~ListBox() = default;

    virtual void Clear() = 0;
    virtual void Add(std::string_view text) = 0;
    /// How wide the window around the list would show the text, in twips.
    virtual std::int32_t TextWidth(std::string_view text) const = 0;
    /// In pixels.
    virtual int ScrollBarWidth() const = 0;
    /// A list that is narrower than this scrolls sideways. In pixels.
    virtual void SetHorizontalExtent(int pixels) = 0;
    /// Brings the last text into view.
    virtual void ScrollToEnd() = 0;
};

/// Fills a list, which gets a horizontal scroll bar as soon as a text is too wide for it.
class CLBHScroll {
public:
    /// Takes the list, which must stand until the last AddItem, and empties it.
    void Init(ListBox& list);
    /// Adds a text to the list taken last, and scrolls it to its end. Needs an Init before.
    void AddItem(const std::string& psItemText);

private:
    ListBox* pListBox = nullptr;
    std::int32_t m_widest = 0; // twips
};

} // namespace vypx
