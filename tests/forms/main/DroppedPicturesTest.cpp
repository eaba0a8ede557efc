#include "forms/main/Drops.h"

#include "DropsFixture.h"
#include "forms/common/Text.h"

namespace vypx::test {

namespace {

/// The bitmap format, with a stand-in for the paste.
class DroppedPictures : public DropsFixture {
protected:
    DroppedPictures()
    {
        Panels panels{ &Find<ImagePanel>("frameLG"), &Find<ImagePanel>("frameSM") };
        drops = std::make_unique<Drops>(
            Drops::View{ *frame, frame->Form(), panels, commands, notes }, ask, busy,
            Drops::Doors{ .load = [] {},
                .import = [this](const vypx::Slot& slot) { imported += FromLatin1(slot.letters); },
                .paste = [this] { ++pasted; } });
        Find<QPushButton>("cmdPastePicLG").setEnabled(true);
        Find<QPushButton>("cmdImportLG").setEnabled(true);
    }

    static std::unique_ptr<QMimeData> PictureData()
    {
        auto data = std::make_unique<QMimeData>();
        QImage image(2, 2, QImage::Format_RGB32);
        image.fill(Qt::red);
        data->setImageData(image);
        return data;
    }

    int pasted = 0;
    QString imported;
    Commands commands{ *frame, frame->Form() };
    Notes notes{ Find<QLabel>("lblNotSaved"), Find<QLabel>("lblNote") };
    BusyGuard busy;
    std::unique_ptr<Drops> drops;
};

TEST_F(DroppedPictures, OnlyTheHighResBoxPastes)
{
    Find<QWidget>("picLG").resize(4, 4); // which lies in the box
    for (const DropTargetRow& row : DropTargets()) {
        pasted = 0;
        const QString name = FromLatin1(row.control);

        EXPECT_EQ(Drop(name, *PictureData()), name == "picLGfrm") << name.toStdString();

        EXPECT_EQ(pasted, name == "picLGfrm" ? 1 : 0) << name.toStdString();
    }
    EXPECT_EQ(imported, "");
    EXPECT_FALSE(DroppedFile);
}

TEST_F(DroppedPictures, ThePictureInTheBoxIgnoresThemThoughTheBoxDoesNot)
{
    auto& picture = Find<QWidget>("picLG");
    picture.resize(20, 10);
    const auto data = PictureData();
    QDragEnterEvent enter({ 3, 3 }, Qt::CopyAction, data.get(), Qt::LeftButton, Qt::NoModifier);

    QCoreApplication::sendEvent(&picture, &enter);

    EXPECT_FALSE(enter.isAccepted());
}

TEST_F(DroppedPictures, OnePastesOnlyWhilePasteCanBeUsed)
{
    Find<QPushButton>("cmdPastePicLG").setEnabled(false);
    EXPECT_FALSE(Drop("picLGfrm", *PictureData()));

    Find<QPushButton>("cmdPastePicLG").setEnabled(true);
    const auto data = PictureData();
    Release("picLGfrm", *data);
    Find<QPushButton>("cmdPastePicLG").setEnabled(false);
    QCoreApplication::processEvents();

    EXPECT_EQ(pasted, 0);
}

TEST_F(DroppedPictures, WithALocalFileTheFileCountsAlone)
{
    Click("Alpha (Large Icon)");
    Find<QPushButton>("cmdImportLG").setEnabled(true);
    const auto data = Files({ PictureFile(4, 4, { 1, 2, 3 }) });
    data->setImageData(QImage(2, 2, QImage::Format_RGB32));

    Drop("picLGfrm", *data);

    EXPECT_EQ(pasted, 0);
    EXPECT_EQ(imported, "LG");
}

TEST_F(DroppedPictures, WithARemoteFileThePictureCounts)
{
    const auto data = Files({ "http://example.invalid/a.png" });
    data->setImageData(QImage(2, 2, QImage::Format_RGB32));

    Drop("picLGfrm", *data);

    EXPECT_EQ(pasted, 1);
}

} // namespace
} // namespace vypx::test
