#pragma once

#include "DropsFixture.h"

#include "document/IconStats.h"
#include "writer/CompileIconset.h"

namespace vypx::test {

/// The program with an iconset open, `set.prc`, and a template to load, `t.vpt`.
class TemplatesFixture : public DropsFixture {
protected:
    static constexpr const char* IconsetFilter = "Vantry Iconset (*.prc *.pdb)";
    static constexpr const char* LoadFilter = "VYPX Template File (*.vpt)";
    static constexpr const char* Question =
        "The current iconset may have been changed.\n\nSave the current iconset?";
    static constexpr const char* NotInThisVersion = "Not in this version :-( ";

    TemplatesFixture()
    {
        WriteText(program.File("AppList.dat"),
            "[Alpha]\nType=appl\nCreator={ALPH}\n[Beta]\nType=appl\nCreator={BETA}\n"
            "[Gamma]\nType=appl\nCreator={GAMM}\n");
        AppTable.push_back({ "Gamma", "appl", "GAMM", "" });
        AutoCreateLowRes = WarnOverwrite = CreateBackup = false;
        TemplatePath.clear();
        TheTemplate();
    }

    static Iconset Gamma(const std::string& name = "Temp")
    {
        return { .name = name,
            .resources = { { "iTbl", 1000, IndexRecord("appl", "GAMM", 3600, 0) },
                BothPictures(3600, false) } };
    }
    /// Written anew.
    QString TheTemplate() { return Written(Gamma().File(), "t.vpt"); }
    QString AnotherIconset() { return Written(Gamma("Another").File(), "another.prc"); }
    QString PathOf(const std::string& name) { return QString::fromStdString(program.File(name)); }

    void Load(const QString& path)
    {
        ask.Choose(path);
        Entry("mnuLoadTemplate").trigger();
    }
    void Export(const QString& path)
    {
        ask.SaveTo(path);
        Entry("mnuExportTemplate").trigger();
    }
    /// A change that the user made.
    void Change()
    {
        PicturesFixture::Click("Alpha (Large Icon)");
        QTest::keyClick(&Nodes(), Qt::Key_R);
        QTest::keyClick(&Nodes(), Qt::Key_R);
        ASSERT_TRUE(IconsetChanged);
    }
    /// The name of a new iconset.
    void NameIt(const QString& name)
    {
        Find<QLineEdit>("txtNewIconsetDBName").setText(name);
        Find<QPushButton>("cmdDoneName").click();
    }
    QDialog* DepthWindow() { return Visible("frmSelectCDepth"); }
    QDialog* NameWindow() { return Visible("frmNewIconset"); }
    void PressDone()
    {
        QTest::mouseClick(&Find<QPushButton>("cmdDoneCDepth"), Qt::LeftButton);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
    void GiveDepthUp()
    {
        QTest::keyClick(DepthWindow(), Qt::Key_Escape);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
    QString LastFilter() { return ask.opened.back().filters.value(0); }
    static bool HasPictures()
    {
        for (const IconRow& row : IconTable)
            if (ImageFileValid(row.LowResFile) || ImageFileValid(row.HighResFile))
                return true;
        return false;
    }
    void ExpectTheIconsetIsOpen()
    {
        EXPECT_TRUE(FileLoaded);
        EXPECT_EQ(RootText(), "Set");
        EXPECT_EQ(FileName, program.File("set.prc"));
        EXPECT_TRUE(HasPictures());
    }
    void ExpectTheTemplateIsOpen()
    {
        EXPECT_TRUE(FileLoaded);
        EXPECT_EQ(RootText(), "Temp");
        EXPECT_EQ(FileName, program.File("t.vpt"));
        EXPECT_FALSE(HasPictures());
        EXPECT_TRUE(LoadedAsTemplate);
        EXPECT_FALSE(TemplateMode);
    }
    /// Open, which is to ask for an iconset and open this one with its pictures.
    void ExpectOpenOpensAnIconset()
    {
        const std::size_t before = ask.opened.size();
        Open(AnotherIconset());
        ASSERT_EQ(ask.opened.size(), before + 1);
        EXPECT_EQ(LastFilter(), IconsetFilter);
        ExpectAnotherIsOpen();
    }
    void ExpectAnotherIsOpen()
    {
        EXPECT_EQ(RootText(), "Another");
        EXPECT_TRUE(HasPictures());
        EXPECT_FALSE(LoadedAsTemplate);
        EXPECT_FALSE(TemplateMode);
    }

private:
    QDialog* Visible(const QString& name)
    {
        auto* const window = frame->findChild<QDialog*>(name);
        return window && window->isVisible() ? window : nullptr;
    }
};

} // namespace vypx::test
