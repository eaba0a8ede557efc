#pragma once

#include "WindowFixture.h"

#include <QPushButton>

namespace vypx::test {

/// A 2 x 1 record at 8 bits: index 5 (255, 0, 255), which is transparent when flagged, and white.
inline Bytes TwoPixels(bool high, bool flagged)
{
    Bytes record(high ? 28 : 20, 0);
    PutU16(record, 0, 2);
    PutU16(record, 2, 1);
    PutU16(record, 4, 2);
    record[6] = flagged ? 0x20 : 0;
    record[8] = 8;
    record[high ? 19 : 12] = 5;
    record[high ? 24 : 16] = 5;
    return record;
}

inline Resource BothPictures(int id, bool flagged)
{
    Bytes low = TwoPixels(false, flagged);
    PutU16(low, 10, static_cast<unsigned>(low.size() / 4));
    return { "tAIB", id, Join({ low, Separator(), TwoPixels(true, flagged) }) };
}

/// A document with icons for two applications and an orphan, at 8 bits.
class IconsFixture : public WindowFixture {
protected:
    IconsFixture()
    {
        Start();
        AppTable = { {}, { "Alpha", "appl", "ALPH", "" }, { "Beta", "appl", "BETA", "" } };
        Open(Written(Iconset{ .name = "Set",
            .resources = { { "iTbl", 1000,
                               Join({ IndexRecord("appl", "ALPH", 3500, 3501),
                                   IndexRecord("appl", "BETA", 3502, 0) }) },
                BothPictures(3500, true), BothPictures(3501, false), Picture(3502),
                { "tAIB", 3503, TwoPixels(false, false) } } }
                         .File()));
    }

    /// A real click on the node's text.
    void Click(const QString& text)
    {
        QTreeWidgetItem* const node = text == "Set" ? Nodes().Root() : Nodes().NodeOf(text);
        ASSERT_NE(node, nullptr) << text.toStdString();
        QTest::mouseClick(
            Nodes().viewport(), Qt::LeftButton, {}, Nodes().visualItemRect(node).center());
    }
    bool IsOn(const QString& name) { return Find<QPushButton>(name).isEnabled(); }
    QColor Pixel(const QString& box, const QPoint& point)
    {
        return Find<QWidget>(box).grab().toImage().pixelColor(point);
    }
    int ImageOf(const QString& text)
    {
        return Nodes().NodeOf(text)->data(0, IconTreeView::ImageRole).toInt();
    }
};

} // namespace vypx::test
