#include "install/InstAideTalk.h"

#include "companion/Latin1.h"
#include "install/InstAideWay.h"
#include "install/InstallResult.h"
#include "platform/Platform.h"
#include "support/Properties.h"

#include <algorithm>
#include <cstring>
#include <gmock/gmock.h>

namespace vypx::test {

namespace {

using namespace std::string_literals;

/// A library whose system has Latin-1 as its code page, and its helper, behind the way.
class StandInLibrary {
public:
    std::unique_ptr<InstallWay> Way()
    {
        return MakeInstAideWay([this](const std::string& request) {
            return AnswerInstAide(request, Library()).value_or("");
        });
    }
    InstAideLibrary Library()
    {
        return {
            .toCodePage = [](const std::string& text) -> std::optional<std::string> {
                const std::string bytes = Latin1FromUtf8(text);
                if (Utf8FromLatin1(bytes) != text)
                    return std::nullopt;
                return bytes;
            },
            .fromCodePage = [](const std::string& bytes) { return Utf8FromLatin1(bytes); },
            .install =
                [this](char* newUser, char* newFile) {
                    ++calls;
                    user = newUser;
                    file = newFile;
                    rewrite(newUser, newFile);
                    return result;
                },
        };
    }

    std::uint32_t result = 0;
    std::function<void(char* user, char* file)> rewrite = [](char*, char*) {};
    std::string user, file; ///< what it was called with
    int calls = 0;
};

/// With the system's separators.
std::string Preferred(std::string path)
{
    std::replace(path.begin(), path.end(), '/', platform::PathSeparator);
    return path;
}

struct InstAideWay : ::testing::Test {
    StandInLibrary library;
    std::string user = "Ren\xE9", file = Preferred("/sets/\xC3\xA9t\xC3\xA9.prc");
};

TEST_F(InstAideWay, CallsTheLibraryInTheSystemsCodePage)
{
    EXPECT_EQ(library.Way()->Install(user, file), InstallResult::Queued);

    EXPECT_EQ(library.user, "Ren\xE9");
    EXPECT_EQ(library.file, Preferred("/sets/\xE9t\xE9.prc"));
    EXPECT_EQ(user, "Ren\xE9");
    EXPECT_EQ(file, Preferred("/sets/\xC3\xA9t\xC3\xA9.prc"));
}

TEST_F(InstAideWay, AsksForTheUser) { EXPECT_TRUE(library.Way()->UsesUser()); }

TEST_F(InstAideWay, TellsWhoseHotSyncTakesTheFile)
{
    EXPECT_THAT(library.Way()->WhatNext(user, file), ::testing::HasSubstr("the user Ren\xC3\xA9."));
}

TEST_F(InstAideWay, OnPurposeTakesBothTextsAsTheLibraryLeavesThem)
{
    library.rewrite = [](char* newUser, char* newFile) {
        std::strcpy(newUser, "Zo\xEB, who has a longer name now");
        *newFile = '\0';
    };

    library.Way()->Install(user, file);

    EXPECT_EQ(user, "Zo\xEB, who has a longer name now");
    EXPECT_EQ(file, "");
}

TEST_F(InstAideWay, GivesTheLibraryRoomToWriteIn)
{
    library.rewrite = [](char* newUser, char* newFile) {
        std::memset(newUser, 'u', 1024); // to the last byte, without a zero
        std::memset(newFile, 'f', 1024);
    };

    library.Way()->Install(user, file);

    EXPECT_EQ(user, std::string(1024, 'u'));
    EXPECT_EQ(file, std::string(1024, 'f'));
}

TEST_F(InstAideWay, TakesPathsThatAreLongerThanTheRoom)
{
    file = platform::PathSeparator + std::string(30'000, 'x');

    EXPECT_EQ(library.Way()->Install(user, file), InstallResult::Queued);

    EXPECT_EQ(library.file, platform::PathSeparator + std::string(30'000, 'x'));
    EXPECT_EQ(file, library.file);
}

TEST_F(InstAideWay, DoesNotCallWithATextThatTheCodePageLacks)
{
    file = "/sets/\xD0\x96.prc";

    EXPECT_EQ(library.Way()->Install(user, file), InstallResult::Unknown);

    EXPECT_EQ(library.calls, 0);
    EXPECT_EQ(file, "/sets/\xD0\x96.prc");
}

TEST_F(InstAideWay, DoesNotCallWithATextThatEndsBeforeItsEnd)
{
    user = "An\0na"s;

    EXPECT_EQ(library.Way()->Install(user, file), InstallResult::Unknown);

    EXPECT_EQ(library.calls, 0);
}

TEST_F(InstAideWay, DoesNotCallWithMoreThanAnyPath)
{
    file = "/" + std::string(MostInstAideBytes, 'x');

    EXPECT_EQ(library.Way()->Install(user, file), InstallResult::Unknown);

    EXPECT_EQ(library.calls, 0);
}

TEST_F(InstAideWay, KeepsAUserWhomNoSettingCanHold)
{
    const auto way = MakeInstAideWay([](const std::string&) {
        return *WriteInstAideReply({ .result = 0, .user = "\xD0\x96", .file = "/b.prc" });
    });

    EXPECT_EQ(way->Install(user, file), InstallResult::Queued);

    EXPECT_EQ(user, "Ren\xE9");
    EXPECT_EQ(file, "/b.prc");
}

TEST_F(InstAideWay, KeepsBothTextsWhereTheHelperFails)
{
    const std::string whole = *WriteInstAideReply({ .result = 0, .user = "A", .file = "/b.prc" });
    for (std::size_t length = 0; length < whole.size(); ++length) {
        const auto way =
            MakeInstAideWay([&](const std::string&) { return whole.substr(0, length); });
        EXPECT_EQ(way->Install(user, file), InstallResult::Unknown) << length;
    }
    EXPECT_EQ(user, "Ren\xE9");
    EXPECT_EQ(file, Preferred("/sets/\xC3\xA9t\xC3\xA9.prc"));
}

TEST_F(InstAideWay, OnPurposeReadsTheLow16BitsOfAResultAsSigned)
{
    const auto told = [this](std::uint32_t result) {
        library.result = result;
        return library.Way()->Install(user, file);
    };

    EXPECT_EQ(told(0x00000000), 0);
    EXPECT_EQ(told(0xFFFFFE00), -512);
    EXPECT_EQ(told(0x0000FE00), -512);
    EXPECT_EQ(told(0xFFFFFDD6), -554);
    EXPECT_EQ(told(0xFFFFFDFF), -513);
    EXPECT_EQ(told(0x12340000), 0);
    EXPECT_EQ(told(0x00010001), 1);
    EXPECT_EQ(told(0x00008000), -32768);
}

TEST_F(InstAideWay, EachOf16BitsHasItsWords)
{
    const std::pair<std::uint32_t, std::string_view> rows[] = {
        { 0x0000, "" },
        { 0xFE00, "Error! An iconset with this filename is already waiting to be hotsynced." },
        { 0xFDD6,
            "Error! The Palm User ID does not appear to be correct.\n"
            "Please check the Palm User ID in the Program Options screen." },
        { 0xFDFF, "Error! The install tool was unable to locate the file." },
    };
    const auto way = library.Way();
    for (std::uint32_t code = 0; code <= 0xFFFF; ++code) {
        std::string_view words =
            "Error! Unknown error while trying to send the iconset to the Palm Install tool.";
        for (const auto& [special, text] : rows)
            if (code == special)
                words = text;
        library.result = 0xABCD0000 | code;
        ASSERT_EQ(InstallMessage(way->Install(user, file)), words) << code;
    }
}

TEST(InstAideTalk, SaysARequestAndAReplyInTheseBytes)
{
    EXPECT_EQ(WriteInstAideRequest({ .user = "Anna", .file = "/a.prc" }), "Anna\0/a.prc\0"s);
    EXPECT_EQ(WriteInstAideReply({ .result = 0xFFFFFE00, .user = "A", .file = "" }),
        "\xFF\xFF\xFE\x00"
        "A\0\0"s);
}

TEST(InstAideTalk, TakesWholeMessagesAlone)
{
    for (const std::string& bad :
        { ""s, "\0"s, "A"s, "A\0"s, "A\0/a"s, "A\0/a\0b"s, "A\0/a\0\0"s }) {
        EXPECT_FALSE(ReadInstAideRequest(bad)) << bad;
        EXPECT_FALSE(ReadInstAideReply("\0\0\0\0"s + bad)) << bad;
    }
    EXPECT_FALSE(ReadInstAideReply("\0\0\0"s));
    EXPECT_TRUE(ReadInstAideRequest("\0\0"s)) << "two empty texts";
}

TEST(InstAideTalk, HoldsNoMoreThanItsBound)
{
    const std::string most(MostInstAideBytes - 2, 'x');

    EXPECT_TRUE(WriteInstAideRequest({ .user = most, .file = "" }));
    EXPECT_TRUE(ReadInstAideRequest(most + "\0\0"s));
    EXPECT_FALSE(WriteInstAideRequest({ .user = most, .file = "x" }));
    EXPECT_FALSE(ReadInstAideRequest(most + "x\0\0"s));
    EXPECT_FALSE(WriteInstAideReply({ .result = 0, .user = most, .file = "" }));
}

#ifdef RC_GTEST_PROP
RC_GTEST_PROP(
    InstAideTalk, WhatIsSaidIsHeard, (std::uint32_t result, std::string user, std::string file))
{
    std::erase(user, '\0');
    std::erase(file, '\0');

    const auto request = ReadInstAideRequest(*WriteInstAideRequest({ user, file }));
    RC_ASSERT(request->user == user);
    RC_ASSERT(request->file == file);
    const auto reply = ReadInstAideReply(*WriteInstAideReply({ result, user, file }));
    RC_ASSERT(reply->result == result);
    RC_ASSERT(reply->user == user);
    RC_ASSERT(reply->file == file);
}

RC_GTEST_PROP(
    InstAideTalk, AnyBytesAreNoMessageOrAllOfOne, (const std::vector<std::uint8_t>& bytes))
{
    // Few values, so that zeros are among them.
    std::string message;
    for (const std::uint8_t byte : bytes)
        message += static_cast<char>(byte % 3);

    if (const auto request = ReadInstAideRequest(message))
        RC_ASSERT(WriteInstAideRequest(*request) == message);
    if (const auto reply = ReadInstAideReply(message))
        RC_ASSERT(WriteInstAideReply(*reply) == message);
}
#endif

} // namespace
} // namespace vypx::test
