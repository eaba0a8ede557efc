#include "document/SettingsFile.h"

#include "settings/Inifile.h"
#include "support/LoadFixture.h"

#include <gmock/gmock.h>
#include <random>

namespace vypx::test {

namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::Not;

class SettingsFileTest : public LoadFixture {
protected:
    SettingsFileTest() { SettingsSaved = false; }

    void WriteFile(const std::string& text) { WriteText(SettingsFile(), text); }
    std::string File() { return ReadSystemText(SettingsFile()); }
    static std::string Value(const std::string& section, const std::string& key)
    {
        cInifile ini;
        ini.path(SettingsFile());
        ini.Section(section);
        ini.key(key);
        ini.Default("(missing)");
        return ini.Value();
    }
    bool Save() { return SaveIni({ .mainWidth = 15000, .mainHeight = 9000 }); }
};

TEST_F(SettingsFileTest, AFirstRunMarksTheFileAndReadsDefaults)
{
    EXPECT_TRUE(InitializeIni());
    EXPECT_EQ(File(), "[Program]\nName=VY Pixelworks\n");

    EXPECT_THAT(ReadSettings(), IsEmpty());

    EXPECT_FALSE(RememberPreviewColor);
    EXPECT_EQ(Bsave, 255);
    EXPECT_TRUE(AutoCreateLowRes && PromptColorDepth && ShowSplash && WarnOverwrite && KeepUnknown
        && CreateBackup && PreviewWinVisible && StatWinVisible && ShareWinVisible && UseLastDirs);
    EXPECT_FALSE(StartupSearch || UsePackbits || HighResOnly || LowResOnly);
    EXPECT_EQ(DefaultColorDepth, ColorDepth::Bits16);
    EXPECT_EQ(VersionString, "3.20");
    EXPECT_EQ(MainWinWidth, 14000);
    EXPECT_EQ(MainWinHeight, 9800);
    EXPECT_EQ(PreviewWinY, 100);
    EXPECT_EQ(PalmUserID, "");
    EXPECT_EQ(PalmDesktopFolder, "");
    EXPECT_EQ(PalmSyncFolder, "");
}

TEST_F(SettingsFileTest, TheFirstSaveWritesEveryKeyInItsOrder)
{
    InitializeIni();
    ReadSettings();

    EXPECT_TRUE(SaveIni({ .mainWidth = 14000,
        .mainHeight = 9800,
        .preview = SideWindow{ true, 15, 30 },
        .stats = SideWindow{ true, 45, 60 },
        .shares = SideWindow{ true, 75, 90 } }));

    EXPECT_EQ(File(),
        "[Program]\nName=VY Pixelworks\n"
        "[PreviewBackColor]\nRemember=False\nRed=0\nGreen=0\nBlue=255\n"
        "[Low Res Icons]\nAutoCreateLowRes=True\n"
        "[Startup Search]\nSearch for apps at startup=False\n"
        "[Default Color Depth]\nUser Color Depth=16-Bit\nPrompt on New or File Open=True\n"
        "[Compile Option]\nUse Packbits Compression=False\nVersion String=3.20\n"
        "[Splash Screen]\nShow splash screen at startup=True\n"
        "[Resolution]\nDefault Icon Res=Both High and Low Res\n"
        "[Action on file save]\nWarn about overwrite=True\n"
        "[Unknown Icons]\nKeep Unknown icons when saving=True\n"
        "[Backup Files]\nCreate Backup Iconset File on Save=True\n"
        "[Preview Option Window]\nVisible=True\nX-Pos=15\nY-Pos=30\n"
        "[IconStatWindow]\nVisible=True\nX-Pos=45\nY-Pos=60\n"
        "[Shared Icons Window]\nVisible=True\nX-Pos=75\nY-Pos=90\n"
        "[Main Window Size]\nWidth=14000\nHeight=9800\n"
        "[Program Directories]\nUse Last Directories=True\n"
        "Last Directory for Iconset Load=\nLast Directory for Iconset Save=\n"
        "Last Directory for Image Load=\nLast Directory for Image Save=\n"
        "[Hotsync Info]\nPalm User ID=\nPalm Desktop Folder=\nPalm Sync Folder=\n");
}

TEST_F(SettingsFileTest, OnlyAPlaceOrASizeTellsOfALaterStart)
{
    EXPECT_FALSE(HasWindowPlaces());
    InitializeIni();
    EXPECT_FALSE(HasWindowPlaces());
    WriteFile("[IconStatWindow]\nVisible=True\n[Main Window Size]\n[Resolution]\nWidth=9\n");
    EXPECT_FALSE(HasWindowPlaces());

    for (const std::string key :
        { "[IconStatWindow]\nX-Pos=0\n", "[Preview Option Window]\nY-Pos=100\n",
            "[Shared Icons Window]\nX-Pos=\n", "[Main Window Size]\nHeight=9800\n" }) {
        WriteFile(key);
        EXPECT_TRUE(HasWindowPlaces()) << key;
    }
}

TEST_F(SettingsFileTest, WhatIsSavedIsReadBack)
{
    AutoCreateLowRes = UsePackbits = StartupSearch = true;
    ShowSplash = WarnOverwrite = KeepUnknown = CreateBackup = PromptColorDepth = false;
    DefaultColorDepth = ColorDepth::Bits4;
    VersionString = "1.0 \xE9";
    LowResOnly = true;
    LastDirIconsetLoad = "/home/caf\xC3\xA9";
    PalmUserID = "User";
    PalmDesktopFolder = "/home/caf\xC3\xA9/Palm Desktop";
    PalmSyncFolder = "/home/caf\xC3\xA9/palm";
    R = 1;
    G = 2;
    B = 3;
    RememberPreviewColor = true;
    Save();

    SetDefaultSettings();
    EXPECT_THAT(ReadSettings(), IsEmpty());

    EXPECT_TRUE(AutoCreateLowRes && UsePackbits && StartupSearch && RememberPreviewColor);
    EXPECT_FALSE(ShowSplash || WarnOverwrite || KeepUnknown || CreateBackup || PromptColorDepth);
    EXPECT_EQ(DefaultColorDepth, ColorDepth::Bits4);
    EXPECT_EQ(VersionString, "1.0 \xE9");
    EXPECT_TRUE(LowResOnly);
    EXPECT_EQ(LastDirIconsetLoad, "/home/caf\xC3\xA9");
    EXPECT_EQ(PalmUserID, "User");
    EXPECT_EQ(PalmDesktopFolder, "/home/caf\xC3\xA9/Palm Desktop");
    EXPECT_EQ(PalmSyncFolder, "/home/caf\xC3\xA9/palm");
    EXPECT_EQ(Rsave * 100 + Gsave * 10 + Bsave, 123);
    EXPECT_EQ(MainWinWidth, 15000);
}

TEST_F(SettingsFileTest, OnPurposeAnotherWordLeavesABooleanAsItWas)
{
    WriteFile("[Low Res Icons]\nAutoCreateLowRes=true\n[Splash Screen]\n"
              "Show splash screen at startup=yes\n[PreviewBackColor]\nRemember=1\n");
    AutoCreateLowRes = false;
    ShowSplash = true;
    RememberPreviewColor = true;

    ReadSettings();

    EXPECT_FALSE(AutoCreateLowRes);
    EXPECT_TRUE(ShowSplash);
    EXPECT_FALSE(RememberPreviewColor) << "anything but True is false there";
}

TEST_F(SettingsFileTest, NumbersOutOf16BitsAreNamedAndTakeTheirDefaults)
{
    WriteFile(
        "[PreviewBackColor]\nRed=abc\nBlue=40000\n[Main Window Size]\nWidth=\nHeight=-32768\n");

    EXPECT_THAT(ReadSettings(),
        ElementsAre("PreviewBackColor: Red", "PreviewBackColor: Blue", "Main Window Size: Width"));

    EXPECT_EQ(Rsave, 0);
    EXPECT_EQ(Bsave, 255);
    EXPECT_EQ(MainWinWidth, 14000);
    EXPECT_EQ(MainWinHeight, -32768);
}

TEST_F(SettingsFileTest, AWideScreenNeverMakesAKeyThatCannotBeRead)
{
    SaveIni({ .mainWidth = 57600, .mainHeight = -40000 });

    EXPECT_EQ(Value("Main Window Size", "Width"), "32767");
    EXPECT_EQ(Value("Main Window Size", "Height"), "-32768");
    EXPECT_THAT(ReadSettings(), IsEmpty());
}

TEST_F(SettingsFileTest, WithoutLastDirectoriesTheirKeysStayAsTheyStood)
{
    WriteFile("[Program Directories]\nLast Directory for Image Load=/old\n");
    UseLastDirs = false;
    LastDirImageLoad = "/new";

    Save();

    EXPECT_EQ(Value("Program Directories", "Use Last Directories"), "False");
    EXPECT_EQ(Value("Program Directories", "Last Directory for Image Load"), "/old");
    EXPECT_EQ(Value("Program Directories", "Last Directory for Iconset Load"), "(missing)");
}

TEST_F(SettingsFileTest, AClosedSideWindowKeepsItsOldPlace)
{
    WriteFile("[IconStatWindow]\nVisible=True\nX-Pos=500\nY-Pos=600\n");

    SaveIni({ .stats = SideWindow{ .isLoaded = false } });

    EXPECT_EQ(Value("IconStatWindow", "Visible"), "False");
    EXPECT_EQ(Value("IconStatWindow", "X-Pos"), "500");
    EXPECT_EQ(Value("IconStatWindow", "Y-Pos"), "600");
}

TEST_F(SettingsFileTest, WindowsThatAreNotGivenKeepAllTheirKeys)
{
    Save();

    EXPECT_THAT(File(), Not(HasSubstr("IconStatWindow")));
    EXPECT_THAT(File(), Not(HasSubstr("Preview Option Window")));
}

TEST_F(SettingsFileTest, AnEmptyVersionStringIsTheDefault)
{
    VersionString.clear();
    Save();
    EXPECT_EQ(Value("Compile Option", "Version String"), "3.20");

    WriteFile("[Compile Option]\nVersion String=\n");
    ReadSettings();
    EXPECT_EQ(VersionString, "3.20");
}

TEST_F(SettingsFileTest, BothResolutionsAtOnceBecomeLowRes)
{
    HighResOnly = LowResOnly = true;

    Save();

    EXPECT_FALSE(HighResOnly);
    EXPECT_EQ(Value("Resolution", "Default Icon Res"), "Low Res Only");
}

TEST_F(SettingsFileTest, EachResolutionHasItsWords)
{
    const auto saved = [&](bool high, bool low) {
        HighResOnly = high;
        LowResOnly = low;
        SettingsSaved = false;
        Save();
        HighResOnly = LowResOnly = !high && !low;
        ReadSettings();
        EXPECT_EQ(HighResOnly, high);
        EXPECT_EQ(LowResOnly, low);
        return Value("Resolution", "Default Icon Res");
    };

    EXPECT_EQ(saved(true, false), "High Res Only");
    EXPECT_EQ(saved(false, true), "Low Res Only");
    EXPECT_EQ(saved(false, false), "Both High and Low Res");
}

TEST_F(SettingsFileTest, TheColourInUseIsWhatIsSaved)
{
    R = 10;
    Rsave = 99;

    Save();

    EXPECT_EQ(Value("PreviewBackColor", "Red"), "10");
    EXPECT_EQ(Rsave, 99) << "still what was read";
}

TEST_F(SettingsFileTest, NothingIsSavedTwiceAtTheExit)
{
    SettingsSaved = true;

    EXPECT_TRUE(Save());

    EXPECT_FALSE(FileExists(SettingsFile()));
    SettingsSaved = false;
}

TEST_F(SettingsFileTest, OtherKeysAndCommentsStay)
{
    WriteFile("; mine\n[Instance Count]\nRun Count=2\n[Mine]\nx=1\n");

    Save();

    EXPECT_THAT(
        File(), ::testing::StartsWith("; mine\n[Instance Count]\nRun Count=2\n[Mine]\nx=1\n"));
}

TEST_F(SettingsFileTest, AFileThatCannotBeWrittenIsToldOf)
{
    MakeFolder(SettingsFile());

    EXPECT_FALSE(InitializeIni());
    EXPECT_FALSE(Save());
}

TEST_F(SettingsFileTest, AFileOfRandomBytesGivesDefaultsAndCanBeSaved)
{
    std::mt19937 random(7);
    Bytes bytes(20'000);
    for (std::uint8_t& byte : bytes)
        byte = static_cast<std::uint8_t>(random());
    WriteBytes(SettingsFile(), bytes);

    EXPECT_TRUE(InitializeIni());
    EXPECT_THAT(ReadSettings(), IsEmpty());
    EXPECT_TRUE(Save());

    EXPECT_EQ(Value("Program", "Name"), "VY Pixelworks");
    EXPECT_EQ(Value("Default Color Depth", "User Color Depth"), "16-Bit");
}

TEST_F(SettingsFileTest, DepthWordsCountInAnyLetterCase)
{
    WriteText(SettingsFile(), "[Default Color Depth]\nUser Color Depth=8-BIT\n");

    ReadSettings();

    EXPECT_EQ(DefaultColorDepth, ColorDepth::Bits8);
    EXPECT_EQ(DefaultColorDepthWord(), "8-Bit");
}

TEST_F(SettingsFileTest, AnotherDepthWordStaysInTheFile)
{
    WriteText(SettingsFile(), "[Default Color Depth]\nUser Color Depth=24-bit\n");

    ReadSettings();
    Save();

    EXPECT_EQ(DefaultColorDepth, ColorDepth::Other);
    EXPECT_EQ(BitsOf(DefaultColorDepth), 16) << "files are read and written so";
    EXPECT_EQ(Value("Default Color Depth", "User Color Depth"), "24-bit");
}

TEST_F(SettingsFileTest, ColoursAreCutToWhatAComponentCanBe)
{
    WriteText(SettingsFile(), "[PreviewBackColor]\nRemember=True\nRed=-1\nGreen=256\nBlue=32767\n");

    EXPECT_THAT(ReadSettings(), IsEmpty());

    EXPECT_EQ(Rsave, 0);
    EXPECT_EQ(Gsave, 255);
    EXPECT_EQ(Bsave, 255);
}

} // namespace
} // namespace vypx::test
