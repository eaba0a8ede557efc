// The road of a user who begins with nothing: a new iconset, icons of every kind in both sizes,
// their pictures, a shared icon, a save, and what others read in the file.
#include "PicturesFixture.h"

#include "document/Slot.h"
#include "support/Netpbm.h"
#include "support/PalmPdb.h"

#include <QAbstractButton>
#include <QCheckBox>
#include <QDialog>
#include <QLineEdit>
#include <QListWidget>

namespace vypx::test {

namespace {

class NewSet : public PicturesFixture {
protected:
    static constexpr const char* Labels[] = { "Alpha (Large Icon)", "Alpha (Small Icon)",
        "Beta (Large Icon)", "Beta (Small Icon)", "Palm Clock (Large Icon)",
        "Palm Clock (Small Icon)", "Beam (Large Icon)", "Beam (Small Icon)" };

    NewSet()
    {
        WriteText(program.File("AppList.dat"),
            "[Alpha]\nType=appl\nCreator={ALPH}\n[Beta]\nType=panl\nCreator={BETA}\n"
            "[Gamma]\nType=appl\nCreator={GAMM}\n");
        WriteText(program.File("PalmApp.dat"), "[Palm Clock]\nType=appl\nCreator={clck}\n");
        WriteText(program.File("VY_Icons.dat"),
            "[Beam (Large Icon)]\nID=2002\n[Beam (Small Icon)]\nID=2003\n");
        AppTable = { {}, { "Alpha", "appl", "ALPH", "" }, { "Beta", "panl", "BETA", "" },
            { "Gamma", "appl", "GAMM", "" } };
        PalmTable = { {}, { "Palm Clock", "appl", "clck", "" } };
        VYTable = { {}, { "Beam (Large Icon)", "2002", "" }, { "Beam (Small Icon)", "2003", "" } };
        AutoCreateLowRes = false;
        DefaultColorDepth = ColorDepth::Bits8;
        Entry("mnuNew").trigger();
        Find<QLineEdit>("txtNewIconsetDBName").setText("Mine");
        Find<QAbstractButton>("cmdDoneName").click();
    }

    void Choose(const QString& entry, Qt::KeyboardModifiers held = {})
    {
        auto& list = Find<QListWidget>("ComboAppListIcon");
        const QList<QListWidgetItem*> found = list.findItems(entry, Qt::MatchExactly);
        ASSERT_EQ(found.size(), 1) << entry.toStdString();
        list.scrollToItem(found[0]);
        QTest::mouseClick(
            list.viewport(), Qt::LeftButton, held, list.visualItemRect(found[0]).center());
    }
    void Switch(const QString& name) { Find<QAbstractButton>(name).click(); }

    /// All eight icons, through the window.
    void AddIcons()
    {
        Press("cmdAddIcon");
        Find<QCheckBox>("chkBothSizes").click();
        Choose("Alpha");
        Choose("Beta", Qt::ControlModifier);
        Press("cmdAddtoList");
        Switch("optPalm");
        Choose("Palm Clock");
        Press("cmdAddtoList");
        Switch("optVY");
        Choose("Beam (Large Icon)");
        Press("cmdAddtoList");
        Press("cmdApplyNewIcon");
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        ASSERT_EQ(frame->findChild<QDialog*>("frmAddIcon"), nullptr);
    }

    /// Of that icon and slot, all over; the corner is another colour, and so the transparent one.
    static Rgb ColourOf(int icon, bool high)
    {
        constexpr int Level = 51; // all of the palette's
        return { icon % 4 * Level, icon / 4 * Level, high ? 255 : 102 };
    }
    void ImportAll()
    {
        for (int icon = 0; icon < 8; ++icon) {
            IconsFixture::Click(Labels[icon]);
            const bool large = icon % 2 == 0;
            Import("cmdImportLG", PictureFile(large ? 44 : 30, 22, ColourOf(icon, true)));
            Import("cmdImportSM", PictureFile(large ? 22 : 15, 11, ColourOf(icon, false)));
        }
    }
    /// The Beta icon in large lends its pictures to Gamma.
    void ShareWithGamma()
    {
        IconsFixture::Click("Beta (Large Icon)");
        Press("cmdAssignApp");
        Find<QCheckBox>("chkCreateShared").click();
        Choose("Gamma");
        Press("cmdApplyNewIcon");
    }
    std::string SavedAs(const std::string& name)
    {
        const std::string path = program.File(name);
        ask.SaveTo(QString::fromStdString(path));
        Entry("mnuSaveAs").trigger();
        EXPECT_TRUE(NamedFileExists(path));
        return path;
    }
    static Rgb Middle(const std::string& file)
    {
        return DecodeBmp(ReadBytes(WorkPath(file))).value().At(5, 5);
    }
};

std::string KeyOf(const std::string& label) { return IconTable[*FindIconRow(label)].ResourceKey; }

TEST_F(NewSet, GetsItsIconsInTheOrderOfTheList)
{
    AddIcons();

    EXPECT_EQ(NodeTexts(),
        (QStringList{ "Alpha (Large Icon)", "Alpha (Small Icon)", "Beam (Large Icon)",
            "Beam (Small Icon)", "Beta (Large Icon)", "Beta (Small Icon)",
            "Palm Clock (Large Icon)", "Palm Clock (Small Icon)" }));
    EXPECT_EQ(KeyOf("Alpha (Large Icon)"), "tAIB3500");
    EXPECT_EQ(KeyOf("Alpha (Small Icon)"), "tAIB3503");
    EXPECT_EQ(KeyOf("Beta (Large Icon)"), "tAIB3504");
    EXPECT_EQ(KeyOf("Beta (Small Icon)"), "tAIB3507");
    EXPECT_EQ(KeyOf("Beam (Large Icon)"), "tAIB2002");
    EXPECT_EQ(KeyOf("Beam (Small Icon)"), "tAIB2003");
    EXPECT_EQ(SelectedNode, "Beam (Small Icon)") << "the last one is selected";
    EXPECT_TRUE(IconsetChanged);
}

TEST_F(NewSet, OpensAgainAsItWasSaved)
{
    AddIcons();
    ImportAll();
    ShareWithGamma();
    const std::string path = SavedAs("mine.prc");

    Open(QString::fromStdString(path));

    ASSERT_TRUE(FileLoaded);
    ASSERT_EQ(NodeTexts().size(), 9);
    for (int icon = 0; icon < 8; ++icon) {
        ASSERT_TRUE(FindIconRow(Labels[icon])) << Labels[icon];
        const IconRow& row = IconTable[*FindIconRow(Labels[icon])];
        EXPECT_EQ(Middle(row.HighResFile), ColourOf(icon, true)) << Labels[icon];
        EXPECT_EQ(Middle(row.LowResFile), ColourOf(icon, false)) << Labels[icon];
    }
    EXPECT_EQ(KeyOf("Gamma (Large Icon)"), KeyOf("Beta (Large Icon)"));
    EXPECT_EQ((IconTable[*FindIconRow("Beta (Large Icon)")].owner), (Owner{ "panl", "BETA" }));
    EXPECT_TRUE(Messages().isEmpty());
}

TEST_F(NewSet, ShowsTheSameToTheTool)
{
    AddIcons();
    ImportAll();
    const std::string path = SavedAs("mine.prc");

    const Bytes dumped = OutputOf(std::string(VYPX_CLI) + " dump '" + path + "' --app-folder '"
        + program.Path() + "' --work '" + program.File("dumped") + "'");

    const std::string text(dumped.begin(), dumped.end());
    EXPECT_NE(text.find("\"databaseName\": \"Mine\""), std::string::npos);
    for (const char* label : Labels)
        EXPECT_NE(text.find("\"label\": \"" + std::string(label) + "\""), std::string::npos)
            << label;
    for (const char* word : { "UNKNOWN", "DELETE" })
        EXPECT_EQ(text.find(word), std::string::npos) << word;
}

TEST_F(NewSet, IsReadByOthers)
{
    SKIP_WITHOUT_NETPBM();
    AddIcons();
    ImportAll();
    const std::string path = SavedAs("mine.prc");

    const std::string listed = PrintedByPalmPdb(path,
        "print \"$pdb->{name}\\n\";"
        "for (@{$pdb->{resources}}) { print \"$_->{type}$_->{id}\\n\";"
        " open F, \">$ARGV[1]/$_->{type}$_->{id}.rec\"; print F $_->{data}; close F }",
        program.Path());

    EXPECT_EQ(listed,
        "Mine\ntAIB3500\ntAIB3503\ntAIB3504\ntAIB3507\ntAIB3508\ntAIB3511\ntAIB2002\ntAIB2003\n"
        "tver1000\niTbl1000\n");
    for (int icon = 0; icon < 8; ++icon) {
        const vypx::Picture low =
            PictureFrom("palmtopnm '" + program.File(KeyOf(Labels[icon]) + ".rec") + "'");
        EXPECT_EQ(low.Width(), icon % 2 == 0 ? 22 : 15) << Labels[icon];
        EXPECT_EQ(low.At(5, 5), ColourOf(icon, false)) << Labels[icon];
        EXPECT_EQ(low.At(14, 10), ColourOf(icon, false)) << Labels[icon];
    }
}

} // namespace
} // namespace vypx::test
