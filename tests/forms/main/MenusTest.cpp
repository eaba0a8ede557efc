#include "WindowFixture.h"

#include <QMenu>
#include <QMenuBar>

namespace vypx::test {

namespace {

class Menus : public WindowFixture {
protected:
    Menus() { Start(); }

    /// Each entry as "name caption"; a separator has no caption.
    static QStringList EntriesOf(const QMenu& menu)
    {
        QStringList entries;
        for (const QAction* action : menu.actions()) {
            const QString name = action->menu() ? QString("submenu") : action->objectName();
            entries << (action->isSeparator() ? name + " |" : name + " " + action->text());
        }
        return entries;
    }
};

TEST_F(Menus, StandInTheirOrder)
{
    QStringList captions;
    for (const QAction* action : Find<QMenuBar>("menuBar").actions())
        captions << action->menu()->objectName() + " " + action->text();

    EXPECT_EQ(captions,
        QStringList({ "mnuFile &File", "mnuView &View", "mnuEdit &Edit", "mnuSetup &Setup",
            "mnuHelp &Help", "mnuWindow &Window" }));
}

TEST_F(Menus, FileHoldsItsEntries)
{
    EXPECT_EQ(EntriesOf(Find<QMenu>("mnuFile")),
        QStringList({ "mnuNew &New Iconset", "mnuOpen &Open IconSet",
            "mnuCloseIconset &Close Iconset", "mnuSave &Save", "mnuSaveAs S&ave As",
            "mnuSaveandInstall Save and &Install", "break |", "mnuLoadTemplate &Load Template",
            "mnuExportTemplate &Export Template", "breakfiles1 |", "mnuExit &Exit" }));
}

TEST_F(Menus, ViewHoldsItsEntries)
{
    EXPECT_EQ(EntriesOf(Find<QMenu>("mnuView")),
        QStringList({ "mnuShowPrevOpt Show Preview Options", "mnuShowIconStats Show Icon Stats",
            "mnuShowShared Show Shared Icons", "breakview |",
            "mnuShowBoth Show &Both High and Low Res Icons",
            "mnuHideLowRes Show Only &High Res Icons",
            "mnuHideHighRes Show Only &Low Res Icons" }));
}

TEST_F(Menus, TheOthersHoldTheirEntries)
{
    EXPECT_EQ(EntriesOf(Find<QMenu>("mnuEdit")),
        QStringList(
            { "mnuRemoveLR Remove All Low Res Images", "mnuRemoveHR Remove All High Res Images" }));
    EXPECT_EQ(EntriesOf(Find<QMenu>("mnuSetup")), QStringList({ "mnuOptions &Program Options" }));
    EXPECT_EQ(EntriesOf(Find<QMenu>("mnuHelp")),
        QStringList(
            { "mnuTips &Tip of the Day", "mnuManual &Show VY Pixelworks Help", "submenu &About" }));
    EXPECT_EQ(
        EntriesOf(Find<QMenu>("mnuAboutMenu")), QStringList({ "mnuAbout About VY Pixelworks" }));
    EXPECT_EQ(
        EntriesOf(Find<QMenu>("mnuWindow")), QStringList({ "mnuArrangeWin &Arrange Windows" }));
}

TEST_F(Menus, ThePopUpsOfThePanelsStandInNoMenuBar)
{
    for (const QString letters : { "LG", "SM" }) {
        QMenu& popUp = Find<QMenu>("mnuCopyPaste" + letters);
        EXPECT_EQ(popUp.title(), "CopyPaste" + letters);
        EXPECT_EQ(EntriesOf(popUp),
            QStringList({ "mnuUndo_" + letters + " Undo", "breakundo" + letters.toLower() + " |",
                "mnuCopy" + letters + " Copy", "mnuPaste" + letters + " Paste" }));
        EXPECT_FALSE(Find<QMenuBar>("menuBar").actions().contains(popUp.menuAction()));
    }
}

TEST_F(Menus, OneResolutionEntryIsChecked)
{
    const auto checked = [this] {
        QStringList names;
        for (const QString name : { "mnuShowBoth", "mnuHideLowRes", "mnuHideHighRes" })
            if (Entry(name).isChecked())
                names << name;
        return names;
    };
    EXPECT_EQ(checked(), QStringList("mnuShowBoth"));

    Entry("mnuHideLowRes").trigger();
    EXPECT_EQ(checked(), QStringList("mnuHideLowRes"));
    EXPECT_TRUE(Find<QWidget>("frameLG").isVisible());
    EXPECT_FALSE(Find<QWidget>("frameSM").isVisible());

    Entry("mnuHideHighRes").trigger();
    Entry("mnuHideHighRes").trigger();
    EXPECT_EQ(checked(), QStringList("mnuHideHighRes"));
    EXPECT_FALSE(Find<QWidget>("frameLG").isVisible());
    EXPECT_TRUE(Find<QWidget>("frameSM").isVisible());

    Entry("mnuShowBoth").trigger();
    EXPECT_TRUE(Find<QWidget>("frameLG").isVisible());
    EXPECT_TRUE(Find<QWidget>("frameSM").isVisible());
    EXPECT_FALSE(HighResOnly || LowResOnly) << "the entries change the display, not the options";
}

} // namespace
} // namespace vypx::test
