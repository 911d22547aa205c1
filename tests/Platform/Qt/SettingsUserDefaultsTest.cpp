// SPDX-License-Identifier: MIT
#include "Platform/Qt/SettingsUserDefaults.h"

#include "support/Machine/BuiltPaths.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <optional>
#include <vector>

namespace tessera {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;

constexpr std::chrono::sys_seconds kDate{std::chrono::seconds{1700000000}};

class SettingsUserDefaultsOnDisk : public testing::Test {
protected:
    QString path() const { return m_folder.filePath(QStringLiteral("tessera/tessera.ini")); }

    void writeFile(const QByteArray& content)
    {
        QDir().mkpath(m_folder.filePath(QStringLiteral("tessera")));
        QFile file(path());
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        ASSERT_EQ(file.write(content), content.size());
    }

    static std::string readFile(const QString& path)
    {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll().toStdString() : "(missing)";
    }

    QTemporaryDir m_folder;
};

TEST_F(SettingsUserDefaultsOnDisk, WithoutAFileEverythingIsAsRegistered)
{
    SettingsUserDefaults defaults(path());
    defaults.registerDefaults({{"TooltipType", 2}});
    EXPECT_EQ(defaults.integer("TooltipType"), 2);
    EXPECT_TRUE(defaults.synchronize());
    EXPECT_FALSE(QFile::exists(path()));
}

TEST_F(SettingsUserDefaultsOnDisk, OnlyTheUserMayReadAFileThatItMakes)
{
    SettingsUserDefaults defaults(path());
    defaults.setInteger("number", 1);
    ASSERT_TRUE(defaults.synchronize());
    constexpr QFile::Permissions kOwners = QFile::ReadOwner | QFile::WriteOwner;
    EXPECT_EQ(QFile::permissions(path()) & ~(QFile::ReadUser | QFile::WriteUser), kOwners);
}

TEST_F(SettingsUserDefaultsOnDisk, AFileOfOldBecomesTheUsersAloneWithTheNextChange)
{
    writeFile("number=1\n");
    ASSERT_TRUE(QFile::setPermissions(
        path(), QFile::ReadOwner | QFile::WriteOwner | QFile::ReadGroup | QFile::ReadOther));
    SettingsUserDefaults defaults(path());
    defaults.setRecentRecords("recents", {{"/data", 5, kDate}});
    ASSERT_TRUE(defaults.synchronize());
    EXPECT_FALSE(QFile::permissions(path()) & (QFile::ReadGroup | QFile::ReadOther));
    EXPECT_THAT(readFile(path()), HasSubstr("number=1"));
}

TEST_F(SettingsUserDefaultsOnDisk, KeepsEveryKindOfValue)
{
    {
        SettingsUserDefaults defaults(path());
        defaults.setInteger("number", -7);
        defaults.setBoolean("switch", true);
        defaults.setString("text", "@a, \"b\"; c=\xC3\xA9\n%20");
        EXPECT_TRUE(defaults.synchronize());
    }
    const SettingsUserDefaults defaults(path());
    EXPECT_EQ(defaults.integer("number"), -7);
    EXPECT_TRUE(defaults.boolean("switch"));
    EXPECT_EQ(defaults.string("text"), "@a, \"b\"; c=\xC3\xA9\n%20");
}

TEST_F(SettingsUserDefaultsOnDisk, KeepsRecordsWithPathsThatAreNoText)
{
    const std::vector<RecentRecord> records{
        {"/a\xFF;,=\n%", std::numeric_limits<std::uint64_t>::max(), kDate},
        {"/", 0, std::chrono::sys_seconds{}},
    };
    {
        SettingsUserDefaults defaults(path());
        defaults.setRecentRecords(kRecentsKey, records);
    }
    EXPECT_EQ(SettingsUserDefaults(path()).recentRecords(kRecentsKey), records);
}

TEST_F(SettingsUserDefaultsOnDisk, WritesTimesAsIso8601AndPathsPercentEncoded)
{
    SettingsUserDefaults defaults(path());
    defaults.setRecentRecords(kRecentsKey, {RecentRecord{"/a \xFF", 5, kDate}});
    ASSERT_TRUE(defaults.synchronize());
    const std::string text = readFile(path());
    EXPECT_THAT(text, HasSubstr("path=/a%20%FF\n"));
    EXPECT_THAT(text, HasSubstr("date=2023-11-14T22:13:20Z\n"));
}

TEST_F(SettingsUserDefaultsOnDisk, AShorterListLeavesNothingOfTheLongerOne)
{
    SettingsUserDefaults defaults(path());
    const RecentRecord record{"/a", 5, kDate};
    defaults.setRecentRecords(kRecentsKey, {record, RecentRecord{"/gone", 6, kDate}});
    defaults.setRecentRecords(kRecentsKey, {record});
    ASSERT_TRUE(defaults.synchronize());
    EXPECT_THAT(defaults.recentRecords(kRecentsKey), ElementsAre(record));
    EXPECT_THAT(readFile(path()), testing::Not(HasSubstr("gone")));
}

TEST_F(SettingsUserDefaultsOnDisk, RegisteredDefaultsAreNotWritten)
{
    SettingsUserDefaults defaults(path());
    defaults.registerDefaults({{"registered", 2}});
    defaults.setInteger("set", 1);
    ASSERT_TRUE(defaults.synchronize());
    EXPECT_THAT(readFile(path()), testing::Not(HasSubstr("registered")));
}

TEST_F(SettingsUserDefaultsOnDisk, BrokenRecordsAreLeftOut)
{
    writeFile("[recents]\n"
              "1\\path=/good\n1\\size=5\n1\\date=2023-11-14T22:13:20Z\n"
              "2\\path=/a%G0\n2\\size=5\n2\\date=2023-11-14T22:13:20Z\n"
              "3\\path=relative\n3\\size=5\n3\\date=2023-11-14T22:13:20Z\n"
              "4\\path=/a\n4\\size=-5\n4\\date=2023-11-14T22:13:20Z\n"
              "5\\path=/a\n5\\size=5\n5\\date=yesterday\n"
              "size=2000000000\n");
    EXPECT_THAT(
        SettingsUserDefaults(path()).recentRecords(kRecentsKey),
        ElementsAre(RecentRecord{"/good", 5, kDate}));
}

TEST_F(SettingsUserDefaultsOnDisk, AMalformedListReadsAsEmpty)
{
    writeFile("recents=7\n[other]\nsize=many\n");
    const SettingsUserDefaults defaults(path());
    EXPECT_TRUE(defaults.recentRecords("recents").empty());
    EXPECT_TRUE(defaults.recentRecords("other").empty());
}

TEST_F(SettingsUserDefaultsOnDisk, AMalformedFileReadsAsEmptyAndIsKeptAside)
{
    for (const QByteArray& content :
         {QByteArray("number=3\nthis is no settings file\n"), QByteArray(64, '\0')}) {
        QFile::remove(path() + QStringLiteral(".corrupt-1"));
        writeFile(content);
        SettingsUserDefaults defaults(path());
        EXPECT_EQ(defaults.integer("number"), 0);
        EXPECT_EQ(readFile(path() + QStringLiteral(".corrupt-1")), content.toStdString());
        defaults.setInteger("number", 4);
        ASSERT_TRUE(defaults.synchronize());
        EXPECT_THAT(readFile(path()), HasSubstr("number=4"));
    }
}

TEST_F(SettingsUserDefaultsOnDisk, ASecondMalformedFileDoesNotReplaceTheFirst)
{
    for (const char* content : {"first one\n", "second one\n"}) {
        writeFile(content);
        const SettingsUserDefaults defaults(path());
    }
    EXPECT_EQ(readFile(path() + QStringLiteral(".corrupt-1")), "first one\n");
    EXPECT_EQ(readFile(path() + QStringLiteral(".corrupt-2")), "second one\n");
}

TEST_F(SettingsUserDefaultsOnDisk, ChangesReachTheFileWithTheEventLoop)
{
    SettingsUserDefaults defaults(path());
    defaults.setInteger("number", 4);
    QCoreApplication::processEvents();
    EXPECT_THAT(readFile(path()), HasSubstr("number=4"));
}

TEST_F(SettingsUserDefaultsOnDisk, AFolderThatCannotBeWrittenIsReported)
{
    QFile obstacle(m_folder.filePath(QStringLiteral("tessera")));
    ASSERT_TRUE(obstacle.open(QIODevice::WriteOnly));
    SettingsUserDefaults defaults(path());
    defaults.setInteger("number", 4);
    EXPECT_FALSE(defaults.synchronize());
    EXPECT_EQ(defaults.integer("number"), 4);
}

/// The settings' path is a link to a node that is no file.
class SettingsUserDefaultsBesideANode : public SettingsUserDefaultsOnDisk {
protected:
    static constexpr mode_t kRights = 0666;
    static constexpr mode_t kMode = S_IFIFO | kRights;

    SettingsUserDefaultsBesideANode()
    {
        QDir().mkpath(m_folder.filePath(QStringLiteral("tessera")));
        EXPECT_EQ(::mkfifo(m_node.constData(), 0600), 0);
        EXPECT_EQ(::chmod(m_node.constData(), kRights), 0); // whatever the umask is
        EXPECT_EQ(::symlink(m_node.constData(), QFile::encodeName(path()).constData()), 0);
    }

    static mode_t modeOf(const QByteArray& path)
    {
        struct stat status { };
        return ::lstat(path.constData(), &status) == 0 ? status.st_mode : 0;
    }

    const QByteArray m_node = QFile::encodeName(m_folder.filePath(QStringLiteral("node")));
};

TEST_F(SettingsUserDefaultsBesideANode, RememberAsLongAsTheyLast)
{
    SettingsUserDefaults defaults(path());
    defaults.setInteger("number", 7);
    defaults.setRecentRecords("recents", {{"/data", 5, kDate}});
    EXPECT_FALSE(defaults.synchronize());
    EXPECT_EQ(defaults.integer("number"), 7);
    EXPECT_THAT(defaults.recentRecords("recents"), ElementsAre(RecentRecord{"/data", 5, kDate}));
}

TEST_F(SettingsUserDefaultsBesideANode, LeaveTheNodeAndTheLinkAsTheyAre)
{
    {
        SettingsUserDefaults defaults(path());
        defaults.setInteger("number", 7);
        (void)defaults.synchronize();
    }
    EXPECT_EQ(modeOf(m_node), kMode);
    EXPECT_TRUE(S_ISLNK(modeOf(QFile::encodeName(path()))));
}

TEST_F(SettingsUserDefaultsBesideANode, NothingIsLeftForTheNextStart)
{
    SettingsUserDefaults(path()).setInteger("number", 7);
    EXPECT_EQ(SettingsUserDefaults(path()).integer("number"), 0);
}

TEST_F(SettingsUserDefaultsOnDisk, AnEmptyLockOfAKilledProcessIsRemoved)
{
    writeFile("number=3\n");
    const QString lock = path() + QStringLiteral(".lock");
    ASSERT_TRUE(QFile(lock).open(QIODevice::WriteOnly));
    const SettingsUserDefaults defaults(path());
    EXPECT_FALSE(QFile::exists(lock));
}

/// Lets the writer write for a while and kills it at some point of a write; the last number that
/// it began to write.
int lastNumberOfAKilledWriter(const QString& path, int writes)
{
    QProcess writer;
    writer.start(QString::fromUtf8(test::built::settingsWriter()), {path});
    QByteArray output;
    while (output.count('\n') < writes && writer.waitForReadyRead()) {
        output += writer.readAllStandardOutput();
    }
    writer.kill();
    writer.waitForFinished();
    output += writer.readAllStandardOutput();
    const QList<QByteArray> lines = output.left(output.lastIndexOf('\n')).split('\n');
    return lines.back().toInt();
}

/// The number that all values of the file say; -1 when they do not agree.
int numberInAll(const SettingsUserDefaults& defaults)
{
    constexpr std::size_t kManyRecords = 200;
    const int number = defaults.integer("first");
    const RecentRecord record{"/folder", static_cast<std::uint64_t>(number), {}};
    const bool isWhole = defaults.integer("zlast") == number
        && defaults.recentRecords(kRecentsKey) == std::vector<RecentRecord>(kManyRecords, record);
    return isWhole ? number : -1;
}

TEST_F(SettingsUserDefaultsOnDisk, AKilledWriterLeavesTheOldOrTheNewContent)
{
    constexpr int kKills = 40;
    for (int kill = 0; kill < kKills; ++kill) {
        const int begun = lastNumberOfAKilledWriter(path(), 2 + kill % 3);
        ASSERT_GT(begun, 1);
        EXPECT_THAT(numberInAll(SettingsUserDefaults(path())), testing::AnyOf(begun, begun - 1));
    }
    EXPECT_FALSE(QFile::exists(path() + QStringLiteral(".corrupt-1")));
}

} // namespace
} // namespace tessera
