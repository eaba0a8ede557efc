#include "forms/desktop/FileUris.h"

#include <QSysInfo>
#include <gtest/gtest.h>

namespace vypx::test {

namespace {

TEST(PathOfUri, DecodesPercentSigns)
{
    EXPECT_EQ(PathOfUri("file:///tmp/a%20b%25%23.prc"), "/tmp/a b%#.prc");
    EXPECT_EQ(PathOfUri("file:///tmp/%C3%A4.prc"), QString("/tmp/\u00e4.prc"));
    EXPECT_EQ(PathOfUri("file://localhost/tmp/a.prc"), "/tmp/a.prc");
    EXPECT_EQ(PathOfUri("file:/tmp/a.prc"), "/tmp/a.prc");
}

TEST(PathOfUri, TakesWhatIsNotEscapedAsItIs)
{
    EXPECT_EQ(PathOfUri("file:///x/my set.prc"), "/x/my set.prc");
    EXPECT_EQ(PathOfUri("file:///x/my set%20(1) [2] {3} a|b^c`d.prc"),
        "/x/my set (1) [2] {3} a|b^c`d.prc");
    const QString umlauts = QString::fromUtf8("/x/\u00e4\u00d6\u00fc \u00df.prc");
    EXPECT_EQ(PathOfUri("file://" + umlauts), umlauts);
}

TEST(PathOfUri, TakesTheNameOfThisMachine)
{
    const QString name = QSysInfo::machineHostName();
    if (name.isEmpty())
        GTEST_SKIP() << "this machine has no name";

    EXPECT_EQ(PathOfUri("file://" + name + "/tmp/a.prc"), "/tmp/a.prc");
    EXPECT_EQ(PathOfUri("file://" + name.toUpper() + "/tmp/a.prc"), "/tmp/a.prc");
    EXPECT_EQ(PathOfUri("file://" + name + "x/tmp/a.prc"), std::nullopt);
}

TEST(PathOfUri, TakesTheSignForUnknownLettersInAName)
{
    EXPECT_EQ(PathOfUri("file:///%EF%BF%BD.prc"), QString("/%1.prc").arg(QChar(0xFFFD)));
}

TEST(PathOfUri, RefusesWhatIsNoFileOfThisComputer)
{
    for (const char* const uri :
        { "", "file:", "file://", "file://server/share/a.prc", "http://x/a.prc", "/tmp/a.prc",
            "a.prc", "file:a.prc", "file:///tmp/a.prc?x", "file:///tmp/a.prc#x", "file:///a%zz.prc",
            "file:///100%.prc", "file:///a%4", "file:///a b%2.prc", "file:///a%00.prc",
            "file:///a%ff.prc", "file://user@localhost/a.prc", "file://localhost:80/a.prc" })
        EXPECT_EQ(PathOfUri(uri), std::nullopt) << uri;
}

TEST(HasUnreadableName, IsForFilesOfThisComputerAlone)
{
    EXPECT_TRUE(HasUnreadableName("file:///a%ff.prc"));
    EXPECT_TRUE(HasUnreadableName("file:///a b%C3.prc"));
    EXPECT_FALSE(HasUnreadableName("file://server/a%ff.prc"));
    EXPECT_FALSE(HasUnreadableName("file:///a%C3%A4.prc"));
}

TEST(HasKnownEnding, LooksAtTheLastThreeCharactersAlone)
{
    for (const char* const path : { "/a.prc", "/a.PRC", "/a.pdb", "/a.vpt", "/aprc" })
        EXPECT_TRUE(HasKnownEnding(path)) << path;
    for (const char* const path : { "/a.png", "/a.prc~", "/", "" })
        EXPECT_FALSE(HasKnownEnding(path)) << path;
}

} // namespace
} // namespace vypx::test
