// SPDX-License-Identifier: MIT
#include "XbelRecentDocumentsFixture.h"
#include "support/Machine/BuiltPaths.h"
#include "support/Machine/DeadFileSystem.h"

#include <QProcess>
#include <QStandardPaths>

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/stat.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <thread>
#include <vector>

namespace tessera {
namespace {

namespace fs = std::filesystem;

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

using test::foreignEntry;
using test::kListHead;
using test::XbelRecentDocumentsOnDisk;

TEST_F(XbelRecentDocumentsOnDisk, IsEmptyWithoutAFile)
{
    EXPECT_THAT(documents().recentDocumentUrls(), IsEmpty());
    documents().clearRecentDocuments();
    EXPECT_FALSE(fs::exists(m_file));
}

TEST_F(XbelRecentDocumentsOnDisk, ListsTheNewestFirstAlsoWhenTheClockStandsStill)
{
    const Url a = makeFolder("a");
    const Url b = makeFolder("b");
    const Url c = makeFolder("c");
    for (const Url& url : {a, b, c, a}) {
        documents().noteNewRecentDocumentUrl(url);
    }
    EXPECT_THAT(documents().recentDocumentUrls(), ElementsAre(a, c, b));
}

TEST_F(XbelRecentDocumentsOnDisk, ListsTheNewestFirstAlsoWhenTheClockWasSetBack)
{
    const Url a = makeFolder("a");
    const Url b = makeFolder("b");
    documents().noteNewRecentDocumentUrl(a);
    m_now -= std::chrono::hours(24);
    documents().noteNewRecentDocumentUrl(b);
    EXPECT_THAT(documents().recentDocumentUrls(), ElementsAre(b, a));
}

TEST_F(XbelRecentDocumentsOnDisk, KeepsNamesThatAreNoText)
{
    const Url url = makeFolder("odd \xFF\n%&<\"name");
    documents().noteNewRecentDocumentUrl(url);
    EXPECT_THAT(documents().recentDocumentUrls(), ElementsAre(url));
    EXPECT_THAT(readFile(m_file), HasSubstr("/odd%20%FF%0A%25&amp;%3C%22name/"));
}

TEST_F(XbelRecentDocumentsOnDisk, ListsTwentyAtMostAndForgetsTheOldest)
{
    for (int i = 0; i < 22; ++i) {
        documents().noteNewRecentDocumentUrl(makeFolder("f" + std::to_string(i)));
    }
    const std::vector<Url> urls = documents().recentDocumentUrls();
    ASSERT_EQ(urls.size(), XbelRecentDocuments::kMaxDocuments);
    EXPECT_EQ(urls.front(), makeFolder("f21"));
    EXPECT_EQ(urls.back(), makeFolder("f2"));
    EXPECT_THAT(readFile(m_file), Not(HasSubstr("/f1/")));
}

TEST_F(XbelRecentDocumentsOnDisk, NotingAgainTakesNoSecondPlace)
{
    for (int i = 0; i < 20; ++i) {
        documents().noteNewRecentDocumentUrl(makeFolder("f" + std::to_string(i)));
    }
    documents().noteNewRecentDocumentUrl(makeFolder("f0"));
    EXPECT_EQ(documents().recentDocumentUrls().size(), 20U);
    EXPECT_EQ(documents().recentDocumentUrls().front(), makeFolder("f0"));
}

TEST_F(XbelRecentDocumentsOnDisk, DropsItemsThatNoLongerExist)
{
    const Url a = makeFolder("a");
    const Url b = makeFolder("b");
    documents().noteNewRecentDocumentUrl(a);
    documents().noteNewRecentDocumentUrl(b);
    fs::remove(b.path());
    EXPECT_THAT(documents().recentDocumentUrls(), ElementsAre(a));
}

TEST_F(XbelRecentDocumentsOnDisk, DropsItemsWhoseFolderIsAFileNow)
{
    makeFolder("folder");
    const Url gone = makeFolder("folder/gone");
    documents().noteNewRecentDocumentUrl(gone);
    fs::remove_all(m_folder / "folder");
    std::ofstream(m_folder / "folder") << "a file";
    EXPECT_THAT(documents().recentDocumentUrls(), IsEmpty());
}

TEST_F(XbelRecentDocumentsOnDisk, KeepsItemsOfADiskThatDoesNotAnswer)
{
    const Url gone = makeFolder("gone");
    documents().noteNewRecentDocumentUrl(gone);
    fs::remove(gone.path());
    const test::DeadFileSystem dead;
    dead.swallow(*m_questions, gone.path(), LinkMode::Keep);
    EXPECT_THAT(documents().recentDocumentUrls(), ElementsAre(gone));
}

TEST_F(XbelRecentDocumentsOnDisk, ListsOnlyOwnEntries)
{
    const Url other = makeFolder("other");
    writeFile(kListHead + foreignEntry(other.absoluteString()) + "</xbel>");
    EXPECT_THAT(documents().recentDocumentUrls(), IsEmpty());
}

TEST_F(XbelRecentDocumentsOnDisk, ClearingForgetsOwnEntriesAlone)
{
    writeFile(
        kListHead + foreignEntry("file:///other") + foreignEntry("http://x/?a=1&amp;b")
        + "</xbel>");
    documents().noteNewRecentDocumentUrl(makeFolder("a"));
    documents().clearRecentDocuments();
    EXPECT_THAT(documents().recentDocumentUrls(), IsEmpty());
    const std::string text = readFile(m_file);
    EXPECT_THAT(text, HasSubstr("\"file:///other\""));
    EXPECT_THAT(text, HasSubstr("\"http://x/?a=1&amp;b\""));
    EXPECT_THAT(text, Not(HasSubstr("tessera")));
}

TEST_F(XbelRecentDocumentsOnDisk, AnEntryThatAnotherProgramSharesKeepsThatProgram)
{
    const Url shared = makeFolder("shared");
    writeFile(kListHead + foreignEntry(shared.absoluteString()) + "</xbel>");
    documents().noteNewRecentDocumentUrl(shared);
    EXPECT_THAT(documents().recentDocumentUrls(), ElementsAre(shared));
    documents().clearRecentDocuments();
    const std::string text = readFile(m_file);
    EXPECT_THAT(text, HasSubstr(shared.absoluteString()));
    EXPECT_THAT(text, HasSubstr("name=\"editor\""));
    EXPECT_THAT(text, Not(HasSubstr("name=\"tessera\"")));
}

TEST_F(XbelRecentDocumentsOnDisk, OtherProgramsEntriesKeepAllTheySay)
{
    writeFile(kListHead + foreignEntry("file:///other%20one") + "</xbel>");
    documents().noteNewRecentDocumentUrl(makeFolder("a"));
    const std::string text = readFile(m_file);
    for (const char* part :
         {"href=\"file:///other%20one\"",
          "added=\"2020-01-02T03:04:05",
          "<title>A title</title>",
          "visited=\"2020-01-02T03:04:07",
          "type=\"text/plain\"",
          "<bookmark:group>Text</bookmark:group>",
          "<bookmark:private/>",
          "name=\"editor\"",
          "exec=\"&apos;editor %u&apos;\"",
          "modified=\"2020-01-02T03:04:06",
          "count=\"3\""}) {
        EXPECT_THAT(text, HasSubstr(part));
    }
}

TEST_F(XbelRecentDocumentsOnDisk, WhatOthersWroteMeanwhileIsKept)
{
    XbelRecentDocuments list = documents();
    list.noteNewRecentDocumentUrl(makeFolder("a"));
    EXPECT_EQ(list.recentDocumentUrls().size(), 1U);
    std::string text = readFile(m_file);
    text.insert(text.rfind("</xbel>"), foreignEntry("file:///meanwhile"));
    writeFile(text);
    list.noteNewRecentDocumentUrl(makeFolder("b"));
    EXPECT_EQ(list.recentDocumentUrls().size(), 2U);
    EXPECT_THAT(readFile(m_file), HasSubstr("file:///meanwhile"));
}

TEST_F(XbelRecentDocumentsOnDisk, AMalformedFileReadsAsEmptyAndStays)
{
    writeFile("<xbel><bookmark");
    EXPECT_THAT(documents().recentDocumentUrls(), IsEmpty());
    EXPECT_EQ(readFile(m_file), "<xbel><bookmark");
}

TEST_F(XbelRecentDocumentsOnDisk, TheSettingsDoNotMatterWhereThereIsAList)
{
    m_settings.records["recents"] = {{makeFolder("a").path(), 5, {}}};
    EXPECT_THAT(documents().recentDocumentUrls(), IsEmpty());
}

TEST_F(XbelRecentDocumentsOnDisk, WritesOnAThreadOfItsOwn)
{
    documents().noteNewRecentDocumentUrl(makeFolder("a"));
    EXPECT_NE(m_thread, std::thread::id());
    EXPECT_NE(m_thread, std::this_thread::get_id());
}

TEST_F(XbelRecentDocumentsOnDisk, ATimeInOtherWordsIsTheSameTime)
{
    std::string list = kListHead + foreignEntry("file:///other") + "</xbel>";
    list.replace(list.find("2020-01-02T03:04:06Z"), 20, "2020-01-02T04:04:06.000+01:00");
    writeFile(list);
    documents().noteNewRecentDocumentUrl(makeFolder("a"));
    EXPECT_THAT(readFile(m_file), HasSubstr("tessera"));
    EXPECT_THAT(readFile(m_file), HasSubstr("file:///other"));
}

TEST_F(XbelRecentDocumentsOnDisk, AnEmptyFileIsAnEmptyList)
{
    writeFile("");
    const Url a = makeFolder("a");
    documents().noteNewRecentDocumentUrl(a);
    EXPECT_THAT(documents().recentDocumentUrls(), ElementsAre(a));
    EXPECT_FALSE(fs::exists(m_file.string() + ".corrupt-1"));
}

/// Some people let it lead to the null device. Where this fails it is no device of the machine's
/// that is replaced.
TEST_F(XbelRecentDocumentsOnDisk, AListThatLeadsToNoRegularFileIsLeftAlone)
{
    fs::create_directories(m_file.parent_path());
    const fs::path pipe = m_folder / "pipe";
    ASSERT_EQ(::mkfifo(pipe.c_str(), 0600), 0);
    fs::create_symlink(pipe, m_file);
    const Url a = makeFolder("a");
    documents().noteNewRecentDocumentUrl(a);
    EXPECT_EQ(fs::read_symlink(m_file), pipe);
    EXPECT_TRUE(fs::is_fifo(pipe));
    EXPECT_THAT(documents().recentDocumentUrls(), ElementsAre(a));
}

TEST_F(XbelRecentDocumentsOnDisk, ALinkToTheListStaysALink)
{
    writeFile("");
    fs::rename(m_file, m_folder / "real");
    fs::create_symlink(m_folder / "real", m_file);
    documents().noteNewRecentDocumentUrl(makeFolder("a"));
    EXPECT_TRUE(fs::is_symlink(m_file));
    EXPECT_EQ(documents().recentDocumentUrls().size(), 1U);
}

TEST_F(XbelRecentDocumentsOnDisk, OnlyTheUserMayReadTheList)
{
    documents().noteNewRecentDocumentUrl(makeFolder("a"));
    EXPECT_EQ(fs::status(m_file).permissions(), fs::perms::owner_read | fs::perms::owner_write);
}

TEST_F(XbelRecentDocumentsOnDisk, OnlyTheUserMayEnterTheFolderThatIsMadeForIt)
{
    documents().noteNewRecentDocumentUrl(makeFolder("a"));
    EXPECT_EQ(fs::status(m_file.parent_path()).permissions(), fs::perms::owner_all);
}

TEST_F(XbelRecentDocumentsOnDisk, AnotherReaderSeesTheSame)
{
    const QString python = QStandardPaths::findExecutable(QStringLiteral("python3"));
    if (python.isEmpty()) {
        GTEST_SKIP() << "python3 is not installed";
    }
    writeFile(kListHead + foreignEntry("file:///other") + "</xbel>");
    const Url url = makeFolder("a \xFF");
    documents().noteNewRecentDocumentUrl(url);
    documents().noteNewRecentDocumentUrl(url);
    QProcess reader;
    reader.start(
        python,
        {QString::fromUtf8(test::built::xbelReader()), QString::fromStdString(m_file.string())});
    ASSERT_TRUE(reader.waitForFinished());
    EXPECT_EQ(reader.exitCode(), 0) << reader.readAllStandardError().toStdString();
    EXPECT_EQ(
        reader.readAllStandardOutput().toStdString(),
        "file:///other text/plain editor|'editor %u'|3\n" + url.absoluteString()
            + " inode/directory tessera|'tessera %u'|2\n");
}

} // namespace
} // namespace tessera
