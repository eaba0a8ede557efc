#include "TemplatesFixture.h"

namespace vypx::test {

namespace {

/// Each command opens what it is for, whatever command came before.
using TemplateMeetings = TemplatesFixture;

TEST_F(TemplateMeetings, AGivenUpDepthWindowLeavesNoTemplateToOpen)
{
    PromptColorDepth = true;
    Entry("mnuLoadTemplate").trigger();

    GiveDepthUp();

    EXPECT_FALSE(TemplateMode);
    ExpectTheIconsetIsOpen();
    PromptColorDepth = false;
    ExpectOpenOpensAnIconset();
}

TEST_F(TemplateMeetings, OpenTakesTheDepthWindowOverThatStandsForATemplate)
{
    PromptColorDepth = true;
    Entry("mnuLoadTemplate").trigger();
    Entry("mnuOpen").trigger();
    ask.Choose(AnotherIconset());

    PressDone();

    EXPECT_EQ(LastFilter(), IconsetFilter);
    ExpectAnotherIsOpen();
}

TEST_F(TemplateMeetings, LoadTemplateTakesTheDepthWindowOverThatStandsForOpen)
{
    PromptColorDepth = true;
    Entry("mnuOpen").trigger();
    Entry("mnuLoadTemplate").trigger();
    ask.Choose(TheTemplate());

    PressDone();

    EXPECT_EQ(LastFilter(), LoadFilter);
    ExpectTheTemplateIsOpen();
    PromptColorDepth = false;
    ExpectOpenOpensAnIconset();
}

TEST_F(TemplateMeetings, LoadTemplateTakesTheDepthWindowOverThatStandsForNew)
{
    PromptColorDepth = true;
    Entry("mnuNew").trigger();
    Entry("mnuLoadTemplate").trigger();
    ask.Choose(TheTemplate());

    PressDone();

    EXPECT_EQ(LastFilter(), LoadFilter);
    EXPECT_EQ(NameWindow(), nullptr);
    ExpectTheTemplateIsOpen();
}

TEST_F(TemplateMeetings, NewTakesTheDepthWindowOverThatStandsForATemplate)
{
    PromptColorDepth = true;
    Entry("mnuLoadTemplate").trigger();
    Entry("mnuNew").trigger();

    PressDone();

    EXPECT_NE(NameWindow(), nullptr);
    EXPECT_EQ(ask.opened.size(), 1u) << "no dialog but that of the iconset";
    NameIt("Mine");
    EXPECT_EQ(RootText(), "Mine");
    PromptColorDepth = false;
    ExpectOpenOpensAnIconset();
}

TEST_F(TemplateMeetings, ALoadThatIsNotAllowedLeavesTheOtherCommandsWindowToIt)
{
    PromptColorDepth = true;
    Entry("mnuOpen").trigger();
    Change();
    ask.Answer(QMessageBox::Cancel);
    Entry("mnuLoadTemplate").trigger();
    ask.Answer(QMessageBox::No);
    ask.Choose(AnotherIconset());

    PressDone();

    EXPECT_EQ(LastFilter(), IconsetFilter);
    ExpectAnotherIsOpen();
}

TEST_F(TemplateMeetings, AnOpenThatIsNotAllowedLeavesTheTemplatesWindowToIt)
{
    PromptColorDepth = true;
    Entry("mnuLoadTemplate").trigger();
    Change();
    ask.Answer(QMessageBox::Cancel);
    Entry("mnuOpen").trigger();
    ask.Answer(QMessageBox::No);
    ask.Choose(TheTemplate());

    PressDone();

    EXPECT_EQ(LastFilter(), LoadFilter);
    ExpectTheTemplateIsOpen();
}

TEST_F(TemplateMeetings, ChangesMadeUnderTheDepthWindowAreAskedAbout)
{
    PromptColorDepth = true;
    Entry("mnuLoadTemplate").trigger();
    Change();
    ask.Answer(QMessageBox::Cancel);

    PressDone();

    EXPECT_EQ(Messages(), QStringList(Question));
    ExpectTheIconsetIsOpen();
    EXPECT_FALSE(TemplateMode);
    PromptColorDepth = false;
    ask.Answer(QMessageBox::No);
    ExpectOpenOpensAnIconset();
}

TEST_F(TemplateMeetings, ADroppedIconsetIsOneWhileTheTemplatesWindowStands)
{
    PromptColorDepth = true;
    Entry("mnuLoadTemplate").trigger();

    Drop("Form1", { AnotherIconset() });

    ExpectAnotherIsOpen();
    EXPECT_TRUE(ask.shown.empty());
    EXPECT_EQ(ask.opened.size(), 1u);
}

TEST_F(TemplateMeetings, AfterADropTheTemplatesWindowLeadsToNoTemplate)
{
    PromptColorDepth = true;
    Entry("mnuLoadTemplate").trigger();
    Drop("Form1", { AnotherIconset() });
    const bool leadsOn = DepthWindow() != nullptr;
    if (leadsOn) {
        ask.CancelDialog();
        PressDone();
    }

    EXPECT_EQ(LastFilter(), IconsetFilter);
    ExpectAnotherIsOpen();
}

TEST_F(TemplateMeetings, ADroppedIconsetClosesTheWindowThatWasToLeadToATemplate)
{
    PromptColorDepth = true;
    Entry("mnuLoadTemplate").trigger();
    ASSERT_TRUE(DepthWindow());

    Drop("Form1", { AnotherIconset() });

    ExpectAnotherIsOpen();
    EXPECT_FALSE(DepthWindow()) << "nobody is asked for an iconset in its place";
}

TEST_F(TemplateMeetings, APictureInATemplatesSlotIsUndoneToAnEmptyOne)
{
    Load(TheTemplate());
    PicturesFixture::Click("Gamma (Large Icon)");
    ImportBlack("cmdImportSM", 32, 22);
    ASSERT_TRUE(HasPictures());

    Press("cmdUndoSM");

    EXPECT_FALSE(HasPictures()) << "the template's own pixel is no picture of the user's";
    EXPECT_FALSE(CanUse("cmdSaveSM"));
}

TEST_F(TemplateMeetings, AHurriedCommandAmidALoadIsNotKeptForTheNext)
{
    Resource broken = Picture(3501);
    PutU16(broken.data, 10, 0x4000);
    ask.Answer(QMessageBox::Ok, [&] { Entry("mnuLoadTemplate").trigger(); });

    Open(Written(Iconset{ .name = "Box", .resources = { broken } }.File(), "box.prc"));

    EXPECT_EQ(ask.opened.size(), 2u) << "one each for the iconsets";
    EXPECT_FALSE(TemplateMode);
    ExpectOpenOpensAnIconset();
}

TEST_F(TemplateMeetings, ADroppedIconsetIsOneAfterACancelledTemplate)
{
    ask.CancelDialog();
    Entry("mnuLoadTemplate").trigger();

    Drop("Form1", { AnotherIconset() });

    ExpectAnotherIsOpen();
}

TEST_F(TemplateMeetings, AfterACancelledDialogOpenIsAnOpen)
{
    ask.CancelDialog();
    Entry("mnuLoadTemplate").trigger();

    EXPECT_FALSE(TemplateMode);
    ExpectTheIconsetIsOpen();
    ExpectOpenOpensAnIconset();
}

TEST_F(TemplateMeetings, AfterARefusedTemplateOpenIsAnOpen)
{
    Iconset wrongType = Gamma(), wrongCreator = Gamma();
    wrongType.type = "XXXX";
    wrongCreator.creator = "XXXX";
    const std::pair<Bytes, const char*> files[] = { { Gamma().File(), "ending.prc" },
        { wrongType.File(), "type.vpt" }, { wrongCreator.File(), "creator.vpt" },
        { Bytes(20, 1), "short.vpt" } };
    for (const auto& [file, name] : files) {
        ask.Answer(QMessageBox::Ok);
        Load(Written(file, name));
        EXPECT_FALSE(TemplateMode) << name;

        ExpectOpenOpensAnIconset();
    }
}

TEST_F(TemplateMeetings, AfterATemplateThatIsGoneOpenIsAnOpen)
{
    Load(PathOf("gone.vpt"));

    EXPECT_FALSE(FileLoaded);
    EXPECT_FALSE(TemplateMode);
    EXPECT_EQ(Note(), "gone.vpt could not be read.");
    ExpectOpenOpensAnIconset();
}

TEST_F(TemplateMeetings, AfterATemplateNewMakesAnIconset)
{
    Load(TheTemplate());

    Entry("mnuNew").trigger();
    NameIt("Mine");

    EXPECT_EQ(RootText(), "Mine");
    EXPECT_EQ(FileName, "");
    EXPECT_FALSE(LoadedAsTemplate);
    ExpectOpenOpensAnIconset();
}

TEST_F(TemplateMeetings, ALoadedTemplateClosesTheWindowForANewIconset)
{
    Entry("mnuNew").trigger();
    ASSERT_NE(NameWindow(), nullptr);

    Load(TheTemplate());
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);

    EXPECT_EQ(NameWindow(), nullptr);
    ExpectTheTemplateIsOpen();
}

TEST_F(TemplateMeetings, TheDialogsWindowMayOutliveItsTemplate)
{
    PromptColorDepth = true;
    Entry("mnuLoadTemplate").trigger();
    std::filesystem::remove(program.File("t.vpt"));
    ask.Choose(PathOf("t.vpt"));

    PressDone();

    EXPECT_EQ(DepthWindow(), nullptr);
    EXPECT_EQ(Note(), "t.vpt could not be read.");
    PromptColorDepth = false;
    ExpectOpenOpensAnIconset();
}

TEST_F(TemplateMeetings, AFileThatWaitsForAnImportIsNoTemplate)
{
    Drop("Form1", { Written(Bytes(10, 'x'), "notes.txt") });
    ASSERT_TRUE(DroppedFile);

    Load(TheTemplate());

    ExpectTheTemplateIsOpen();
    EXPECT_FALSE(DroppedFile);
}

TEST_F(TemplateMeetings, AnOpenedTemplateIsRefusedByItsEnding)
{
    ask.Answer(QMessageBox::Ok);

    Open(TheTemplate());

    EXPECT_EQ(Messages(), QStringList("Incorrect file type."));
    ExpectTheIconsetIsOpen();
}

TEST_F(TemplateMeetings, UnderAnIconsetsEndingATemplateOpensWithItsSmallPictures)
{
    Export(PathOf("t.vpt"));
    std::filesystem::rename(program.File("t.vpt"), program.File("t.prc"));

    Open(PathOf("t.prc"));

    EXPECT_TRUE(ask.shown.empty());
    PicturesFixture::Click("Alpha (Large Icon)");
    EXPECT_EQ(Text("lbl_LGsize"), "1 x 1 pixels");
    EXPECT_EQ(Text("lbl_SMsize"), "1 x 1 pixels");
    EXPECT_FALSE(LoadedAsTemplate);
}

} // namespace
} // namespace vypx::test
