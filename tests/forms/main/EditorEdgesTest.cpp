// What lies between the window for the catalogs, a search, a document and other windows.
#include "SearchRunFixture.h"

#include "forms/common/CutLabel.h"

#include <QScrollBar>

namespace vypx::test {

namespace {

class EditorEdges : public SearchRunFixture { };

TEST_F(EditorEdges, TheSpaceBarAfterAStopUsesNoOtherCommand)
{
    OpenIconset();
    OpenEditor();
    PutApplications(Many);
    AmidTheWalk([&] {
        Part("cmdStopSearch").setFocus();
        QTest::keyClick(&Part("cmdStopSearch"), Qt::Key_Space);
    });
    SearchInFolder();

    ASSERT_NE(Editor(), nullptr);
    EXPECT_EQ(Editor()->focusWidget(), &List());
    QTest::keyClick(Editor()->focusWidget(), Qt::Key_Space);
    EXPECT_NE(Editor(), nullptr);
    EXPECT_TRUE(FileLoaded);
}

TEST_F(EditorEdges, CalledBackAmidASearchItStays)
{
    PutApplications(Many);
    OpenEditor();
    AmidTheWalk([&] {
        Editor()->close();
        OpenEditor();
    });
    SearchInFolder();

    ASSERT_NE(Editor(), nullptr);
    EXPECT_TRUE(Editor()->isVisible());
}

TEST_F(EditorEdges, WhatASaveCouldNotWriteIsAskedAboutBeforeAReload)
{
    OpenIconset();
    FileName = program.File("missing/set.prc");
    WarnOverwrite = false;
    Entry("mnuSave").trigger();
    IconsetChanged = false;
    std::filesystem::create_directory(program.File("missing"));
    std::filesystem::copy_file(program.File("set.prc"), FileName);
    OpenEditor();
    ask.Answer(Cancel);

    Press("cmdApplyAndReload");

    EXPECT_EQ(Messages().back(),
        "The current iconset has been modified.\n\nAre you sure you want to close it?");
    EXPECT_TRUE(FileLoaded);
    EXPECT_TRUE(Editor()->isVisible());
}

TEST_F(EditorEdges, AFailedSaveOfAnotherDocumentAsksNothing)
{
    OpenIconset();
    FileName = program.File("missing/set.prc");
    WarnOverwrite = false;
    Entry("mnuSave").trigger();
    IconsetChanged = false;
    OpenIconset("other.prc");
    OpenEditor();

    Press("cmdApplyAndReload");

    EXPECT_TRUE(ask.shown.empty());
    EXPECT_TRUE(FileLoaded);
    EXPECT_TRUE(Find<QLabel>("lblNotSaved").isVisible()) << "it is still not written";
}

TEST_F(EditorEdges, AnIconThatNoCatalogNamesAnyMoreWaitsNoLonger)
{
    OpenIconset();
    QTest::mouseClick(&Find<QPushButton>("cmdAddIcon"), Qt::LeftButton);
    QDialog* const adds = Dialog("frmAddIcon");
    ClickOn(In<QRadioButton>(adds, "optPalm"));
    auto& offered = In<QListWidget>(adds, "ComboAppListIcon");
    for (int row = 0; row < 2; ++row) {
        offered.setCurrentRow(0);
        ClickOn(In(adds, "cmdAddtoList"));
    }
    auto& added = In<QListWidget>(adds, "ListAddedIcons");
    ASSERT_EQ(added.count(), 2);
    OpenEditor();
    ShowPalmPage();
    Press("optEditSys");
    Choose("Palm Clock");
    Type("txtPalmSysName", "Watch");

    Press("cmdPalmSysApply");

    ASSERT_EQ(added.count(), 1);
    EXPECT_EQ(added.item(0)->text(), "Palm Mail (Large Icon)");
    EXPECT_FALSE(offered.findItems("Palm Watch", Qt::MatchExactly).isEmpty());
}

TEST_F(EditorEdges, NothingIsChangedBeforeAnEntryIsChosen)
{
    OpenEditor();
    ShowPalmPage();
    EXPECT_TRUE(IsOn("cmdPalmSysApply"));

    Press("optEditSys");
    EXPECT_FALSE(IsOn("cmdPalmSysApply"));
    Choose("Palm Clock");
    EXPECT_TRUE(IsOn("cmdPalmSysApply"));
    Press("optNewSys");
    EXPECT_TRUE(IsOn("cmdPalmSysApply"));
}

TEST_F(EditorEdges, ALongNameIsNotCutWhenItIsEdited)
{
    const std::string name(230, 'x');
    WriteText(PalmAppFile(), Section("Palm " + name, "LONG"));
    OpenEditor();
    ShowPalmPage();
    Press("optEditSys");
    Choose(QString::fromStdString("Palm " + name));

    EXPECT_EQ(PalmTexts()[0].toStdString(), name);
}

TEST_F(EditorEdges, AnotherPageIsShownFromItsTopAndWhole)
{
    std::string many;
    for (int i = 0; i < 100; ++i)
        many += Section("App " + std::to_string(100 + i), "A" + std::to_string(100 + i));
    WriteText(AppListFile(), many);
    std::string items;
    for (int i = 0; i < 100; ++i)
        items += Section("Palm " + std::to_string(100 + i), "p" + std::to_string(100 + i));
    WriteText(PalmAppFile(), items);
    OpenEditor();
    Type("txtFilter", "App 1");
    List().scrollToBottom();
    ASSERT_GT(List().verticalScrollBar()->value(), 0);

    ShowPalmPage();

    EXPECT_EQ(List().count(), 100);
    EXPECT_EQ(List().verticalScrollBar()->value(), 0);
}

TEST_F(EditorEdges, TheMinimisedCompanionComesBack)
{
    OpenEditor();
    Press("cmdManual");
    Manual()->setWindowState(Qt::WindowMinimized);

    Press("cmdManual");

    EXPECT_FALSE(Manual()->isMinimized());
}

TEST(CutLabel, ShowsALineBreakInANameAsABlank)
{
    CutLabel label;
    label.resize(400, 20);

    label.Show("/tmp/a\nb.prc");

    EXPECT_EQ(label.text(), "/tmp/a b.prc");
}

} // namespace
} // namespace vypx::test
