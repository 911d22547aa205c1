// SPDX-License-Identifier: MIT
#include "Platform/Linux/Trash/TrashInfo.h"

#include "Platform/Linux/Files/FileStatus.h"
#include "support/Machine/TempTree.h"

#include <fcntl.h>
#include <gtest/gtest.h>

#include <cerrno>
#include <cstdlib>
#include <ctime>
#include <string>

namespace tessera {
namespace {

std::string repeated(const std::string& text, int times)
{
    std::string result;
    for (int i = 0; i < times; ++i) {
        result += text;
    }
    return result;
}

/// Puts another time zone in force as long as it lives.
class TimeZone {
public:
    explicit TimeZone(const char* zone) { set(zone); }
    TimeZone(const TimeZone&) = delete;
    TimeZone& operator=(const TimeZone&) = delete;
    ~TimeZone() { set(m_before.empty() ? nullptr : m_before.c_str()); }

private:
    static void set(const char* zone)
    {
        if (zone != nullptr) {
            ::setenv("TZ", zone, 1); // NOLINT(concurrency-mt-unsafe): no other thread is running
        } else {
            ::unsetenv("TZ"); // NOLINT(concurrency-mt-unsafe): no other thread is running
        }
        ::tzset();
    }

    // NOLINTNEXTLINE(concurrency-mt-unsafe): no other thread is running
    std::string m_before = std::getenv("TZ") != nullptr ? std::getenv("TZ") : "";
};

TEST(TrashInfo, HasThePathAndTheLocalTime)
{
    const TimeZone zone("ABC-3:30");
    EXPECT_EQ(
        trashInfoText("/home/me/a", 1'700'000'000),
        "[Trash Info]\nPath=/home/me/a\nDeletionDate=2023-11-15T01:43:20\n");
}

TEST(TrashInfo, ThePathsBytesArePercentEncodedButItsSlashesAreNot)
{
    const TimeZone zone("UTC");
    EXPECT_EQ(
        trashInfoText("a b/\xC3\xBC\xFF\n%=[", 0),
        "[Trash Info]\nPath=a%20b/%C3%BC%FF%0A%25=%5B\nDeletionDate=1970-01-01T00:00:00\n");
}

TEST(TrashInfo, TakesTheNameUntilItIsRemoved)
{
    const test::TempTree tree;
    const FileDescriptor folder = openDirectoryAt(AT_FDCWD, tree.path().c_str());
    EXPECT_EQ(makeTrashInfo(folder, "a", "/home/me/a"), 0);
    EXPECT_TRUE(statusAt(folder.number(), "a.trashinfo"));
    EXPECT_EQ(makeTrashInfo(folder, "a", "/home/me/b"), EEXIST);
    removeTrashInfo(folder, "a");
    EXPECT_EQ(statusAt(folder.number(), "a.trashinfo").error, ENOENT);
}

TEST(TrashInfo, SaysItsPathAgain)
{
    const std::string path = "/a b/\xC3\xBC\xFF\n%=[";
    EXPECT_EQ(originalPathIn(trashInfoText(path, 0), "/top"), path);
}

TEST(TrashInfo, APathThatIsNotAbsoluteIsRelativeToTheTop)
{
    EXPECT_EQ(originalPathIn("[Trash Info]\nPath=a/b\n", "/top"), "/top/a/b");
    EXPECT_EQ(originalPathIn("[Trash Info]\nPath=a/b\n", "/"), "/a/b");
}

TEST(TrashInfo, WhatIsNoInfoFileSaysNoPath)
{
    for (const char* text :
         {"",
          "Path=/a\n",
          "[Other]\nPath=/a\n",
          "[Trash Info]\n",
          "[Trash Info]\nOtherPath=/a\n",
          "[Trash Info]\nPath=\n",
          "[Trash Info]\nPath=%\n"}) {
        EXPECT_EQ(originalPathIn(text, "/top"), "") << text;
    }
}

class TrashInfoFile : public testing::Test {
protected:
    InfoSays says(const std::string& name) const
    {
        return infoSays(m_folder, name, "/home/me/a", "/home");
    }

    const test::TempTree m_tree;
    const FileDescriptor m_folder = openDirectoryAt(AT_FDCWD, m_tree.path().c_str());
};

TEST_F(TrashInfoFile, SaysThisPathOrAnother)
{
    ASSERT_EQ(makeTrashInfo(m_folder, "absolute", "/home/me/a"), 0);
    ASSERT_EQ(makeTrashInfo(m_folder, "relative", "me/a"), 0);
    ASSERT_EQ(makeTrashInfo(m_folder, "other", "/home/me/b"), 0);
    EXPECT_EQ(says("absolute"), InfoSays::ThisPath);
    EXPECT_EQ(says("relative"), InfoSays::ThisPath);
    EXPECT_EQ(says("other"), InfoSays::AnotherPath);
}

TEST_F(TrashInfoFile, SaysNothingWhereThereIsNoneOrNoPathInIt)
{
    m_tree.writeFile("empty.trashinfo", "");
    m_tree.makeFolder("folder.trashinfo");
    m_tree.makeFifo("pipe.trashinfo");
    for (const char* name : {"missing", "empty", "folder", "pipe"}) {
        EXPECT_EQ(says(name), InfoSays::Nothing) << name;
    }
}

TEST(TrashName, TheFirstIsTheItemsOwn)
{
    for (const char* name : {"a", "a.txt", ".hidden", "a.", "a b.tar.gz", "\xFF"}) {
        EXPECT_EQ(trashName(name, 1), name);
    }
}

TEST(TrashName, LaterOnesHaveTheirNumberBeforeTheExtension)
{
    EXPECT_EQ(trashName("a.txt", 2), "a 2.txt");
    EXPECT_EQ(trashName("a.tar.gz", 10), "a.tar 10.gz");
    EXPECT_EQ(trashName("a", 3), "a 3");
}

TEST(TrashName, ADotThatBeginsOrEndsANameMakesNoExtension)
{
    EXPECT_EQ(trashName(".hidden", 2), ".hidden 2");
    EXPECT_EQ(trashName("a.", 2), "a. 2");
}

TEST(TrashName, WhatIsTooLongForAnExtensionIsNone)
{
    EXPECT_EQ(trashName("a.123456789012345", 2), "a 2.123456789012345");
    EXPECT_EQ(trashName("a.1234567890123456", 2), "a.1234567890123456 2");
}

TEST(TrashName, LeavesRoomForTheSuffix)
{
    EXPECT_EQ(trashName(std::string(245, 'x'), 1), std::string(245, 'x'));
    EXPECT_EQ(trashName(std::string(246, 'x'), 1), std::string(245, 'x'));
    EXPECT_EQ(trashName(std::string(255, 'x'), 2), std::string(243, 'x') + " 2");
}

TEST(TrashName, TheStemIsShortenedAndTheExtensionStays)
{
    EXPECT_EQ(trashName(std::string(251, 'x') + ".txt", 1), std::string(241, 'x') + ".txt");
    EXPECT_EQ(trashName(std::string(251, 'x') + ".txt", 12), std::string(238, 'x') + " 12.txt");
}

TEST(TrashName, NoCharacterOfUtf8IsCutApart)
{
    const std::string face = "\xF0\x9F\x98\x80";
    EXPECT_EQ(trashName(repeated(face, 63), 1), repeated(face, 61));
    EXPECT_EQ(trashName("x" + repeated(face, 63), 1), "x" + repeated(face, 61));
    EXPECT_EQ(trashName("xx" + repeated(face, 63), 1), "xx" + repeated(face, 60));
}

TEST(TrashName, BytesThatAreNoUtf8AreCutAnywhere)
{
    EXPECT_EQ(trashName(std::string(255, '\x80'), 1), std::string(245, '\x80'));
    EXPECT_EQ(trashName(std::string(255, '\xFF'), 1), std::string(245, '\xFF'));
}

TEST(TrashName, DisksWithShorterNamesGetShorterOnes)
{
    EXPECT_EQ(trashName(std::string(143, 'x'), 1, 143), std::string(133, 'x'));
}

} // namespace
} // namespace tessera
