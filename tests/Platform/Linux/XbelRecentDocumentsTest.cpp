// SPDX-License-Identifier: MIT
#include "Platform/Linux/XbelRecentDocuments.h"

#include "support/DeadFileSystem.h"
#include "support/FakeUserDefaults.h"
#include "support/OwnMounts.h"

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

using std::chrono::microseconds;
using testing::AllOf;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

constexpr const char* kHead = R"(<?xml version="1.0" encoding="UTF-8"?>
<xbel version="1.0"
      xmlns:bookmark="http://www.freedesktop.org/standards/desktop-bookmarks"
      xmlns:mime="http://www.freedesktop.org/standards/shared-mime-info">
)";

/// An entry as other programs write it; `extra` stands among its applications.
std::string foreignEntry(const std::string& uri, const std::string& extra = {})
{
    return R"(  <bookmark href=")" + uri
        + R"(" added="2020-01-02T03:04:05Z" modified="2020-01-02T03:04:06Z" visited="2020-01-02T03:04:07Z">
    <title>A title</title>
    <info>
      <metadata owner="http://freedesktop.org">
        <mime:mime-type type="text/plain"/>
        <bookmark:groups>
          <bookmark:group>Text</bookmark:group>
        </bookmark:groups>
        <bookmark:applications>
          <bookmark:application name="editor" exec="&apos;editor %u&apos;" modified="2020-01-02T03:04:06Z" count="3"/>
)" + extra
        + R"(        </bookmark:applications>
        <bookmark:private/>
      </metadata>
    </info>
  </bookmark>
)";
}

class XbelRecentDocumentsOnDisk : public testing::Test {
protected:
    void SetUp() override
    {
        std::string pattern = testing::TempDir() + "xbel-XXXXXX";
        ASSERT_NE(::mkdtemp(pattern.data()), nullptr);
        m_folder = pattern;
        m_file = m_folder / "data" / "recently-used.xbel";
    }

    void TearDown() override { fs::remove_all(m_folder); }

    /// A clock that stands still unless a test moves it.
    XbelRecentDocuments documents()
    {
        return {m_file.string(), m_settings, m_questions, [this] {
                    m_thread = std::this_thread::get_id();
                    return m_now;
                }};
    }

    Url makeFolder(const std::string& name) const
    {
        fs::create_directories(m_folder / name);
        return {(m_folder / name).string(), true};
    }

    void writeFile(const std::string& content) const
    {
        fs::create_directories(m_file.parent_path());
        std::ofstream(m_file, std::ios::binary) << content;
    }

    static std::string readFile(const fs::path& path)
    {
        std::ifstream file(path, std::ios::binary);
        return {std::istreambuf_iterator<char>(file), {}};
    }

    fs::path m_folder;
    fs::path m_file;
    microseconds m_now{1700000000000000};
    std::thread::id m_thread; ///< that looked at the clock
    test::FakeUserDefaults m_settings;
    std::shared_ptr<const FileSystemQuestions> m_questions
        = std::make_shared<const FileSystemQuestions>(std::chrono::minutes(1));
};

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
    writeFile(kHead + foreignEntry(other.absoluteString()) + "</xbel>");
    EXPECT_THAT(documents().recentDocumentUrls(), IsEmpty());
}

TEST_F(XbelRecentDocumentsOnDisk, ClearingForgetsOwnEntriesAlone)
{
    writeFile(
        kHead + foreignEntry("file:///other") + foreignEntry("http://x/?a=1&amp;b") + "</xbel>");
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
    writeFile(kHead + foreignEntry(shared.absoluteString()) + "</xbel>");
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
    writeFile(kHead + foreignEntry("file:///other%20one") + "</xbel>");
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

/// Lists that lose something when GLib writes them anew, or that it does not take at all.
struct OthersList {
    const char* name;
    std::string content;
};

class XbelRecentDocumentsBeside : public XbelRecentDocumentsOnDisk,
                                  public testing::WithParamInterface<OthersList> { };

TEST_P(XbelRecentDocumentsBeside, LeavesTheListAsItIs)
{
    writeFile(GetParam().content);
    documents().noteNewRecentDocumentUrl(makeFolder("a"));
    documents().clearRecentDocuments();
    EXPECT_EQ(readFile(m_file), GetParam().content);
    EXPECT_EQ(std::distance(fs::directory_iterator(m_file.parent_path()), {}), 1);
}

TEST_P(XbelRecentDocumentsBeside, ListsWhatTheSettingsRemember)
{
    writeFile(GetParam().content);
    const Url a = makeFolder("a");
    const Url b = makeFolder("b");
    m_settings.records["recents"]
        = {{b.path(), 5, {}}, {(m_folder / "gone").string(), 5, {}}, {a.path(), 5, {}}};
    EXPECT_THAT(documents().recentDocumentUrls(), ElementsAre(b, a));
}

INSTANTIATE_TEST_SUITE_P(
    Lists,
    XbelRecentDocumentsBeside,
    testing::Values(
        OthersList{"Truncated", kHead + foreignEntry("file:///other") + "<bookmark"},
        OthersList{"NoXml", "nothing of the kind"},
        OthersList{
            "EntryWithoutPrograms",
            kHead + foreignEntry("file:///other")
                + "<bookmark href=\"file:///x\" added=\"2020-01-02T03:04:05Z\"/></xbel>"},
        OthersList{
            "Comment",
            kHead + foreignEntry("file:///other") + "<!-- mine, do not touch --></xbel>"},
        OthersList{
            "Folder",
            kHead + ("<folder><title>f</title>" + foreignEntry("file:///other"))
                + "</folder></xbel>"},
        OthersList{
            "ForeignMetadata",
            kHead + foreignEntry("file:///other")
                + "<bookmark href=\"file:///x\"><info><metadata owner=\"http://me\">stars"
                  "</metadata></info></bookmark></xbel>"},
        OthersList{
            "ForeignAttribute",
            kHead
                + foreignEntry(
                    "file:///other",
                    "<bookmark:application name=\"x\" exec=\"x\" count=\"1\" stars=\"5\" "
                    "modified=\"2020-01-02T03:04:06Z\"/>")
                + "</xbel>"}),
    [](const auto& list) { return std::string(list.param.name); });

TEST_F(XbelRecentDocumentsOnDisk, AListThatTheUserProtectedIsLeftAlone)
{
    const std::string list = kHead + foreignEntry("file:///other") + "</xbel>";
    writeFile(list);
    fs::permissions(m_file, fs::perms::owner_read);
    const Url a = makeFolder("a");
    documents().noteNewRecentDocumentUrl(a);
    m_settings.records["recents"] = {{a.path(), 5, {}}};
    EXPECT_THAT(documents().recentDocumentUrls(), ElementsAre(a));
    EXPECT_EQ(readFile(m_file), list);
    EXPECT_EQ(fs::status(m_file).permissions(), fs::perms::owner_read);
}

TEST_F(XbelRecentDocumentsOnDisk, AListThatNobodyMayWriteGivesWayToTheSettings)
{
    if (!test::OwnMounts::enter()) {
        GTEST_SKIP() << "this process may not mount";
    }
    writeFile(kHead + foreignEntry("file:///other") + "</xbel>");
    test::OwnMounts mounts;
    mounts.bind(m_file.string(), m_file.string());
    test::OwnMounts::makeReadOnly(m_file.string());
    const Url a = makeFolder("a");
    m_settings.records["recents"] = {{a.path(), 5, {}}};
    EXPECT_THAT(documents().recentDocumentUrls(), ElementsAre(a));
}

TEST_F(XbelRecentDocumentsOnDisk, WhatWasNotedBesideAProtectedListStaysListedWhenItIsOpenAgain)
{
    writeFile(kHead + foreignEntry("file:///other") + "</xbel>");
    const Url before = makeFolder("before");
    documents().noteNewRecentDocumentUrl(before);
    fs::permissions(m_file, fs::perms::owner_read);
    const Url a = makeFolder("a");
    const Url b = makeFolder("b");
    documents().noteNewRecentDocumentUrl(a);
    XbelRecentDocuments recent = documents();
    recent.noteNewRecentDocumentUrl(b);
    EXPECT_THAT(recent.recentDocumentUrls(), ElementsAre(b, a));
    fs::permissions(m_file, fs::perms::owner_read | fs::perms::owner_write);
    EXPECT_THAT(recent.recentDocumentUrls(), ElementsAre(b, a, before));
}

TEST_F(XbelRecentDocumentsOnDisk, WhatWasNotedBesideAProtectedListIsEnteredWhenItIsOpenAgain)
{
    writeFile(kHead + foreignEntry("file:///other") + "</xbel>");
    fs::permissions(m_file, fs::perms::owner_read);
    const Url a = makeFolder("a");
    const Url b = makeFolder("b");
    documents().noteNewRecentDocumentUrl(a);
    documents().noteNewRecentDocumentUrl(b);
    fs::permissions(m_file, fs::perms::owner_read | fs::perms::owner_write);
    (void)documents();
    EXPECT_THAT(readFile(m_file), AllOf(HasSubstr(a.path()), HasSubstr(b.path())));
    EXPECT_THAT(m_settings.records["unlistedRecents"], IsEmpty());
    EXPECT_THAT(documents().recentDocumentUrls(), ElementsAre(b, a));
}

/// A folder for the list that cannot be made: a link to nowhere has its name.
class XbelRecentDocumentsInNoFolder : public XbelRecentDocumentsOnDisk {
protected:
    void SetUp() override
    {
        XbelRecentDocumentsOnDisk::SetUp();
        fs::create_directory_symlink("nowhere", m_file.parent_path());
    }
};

TEST_F(XbelRecentDocumentsInNoFolder, WhatWasNotedIsListedAtTheNextStart)
{
    const Url a = makeFolder("a");
    documents().noteNewRecentDocumentUrl(a);
    EXPECT_THAT(documents().recentDocumentUrls(), ElementsAre(a));
}

TEST_F(XbelRecentDocumentsInNoFolder, WhatWasNotedIsForgottenWhenCleared)
{
    documents().noteNewRecentDocumentUrl(makeFolder("a"));
    documents().clearRecentDocuments();
    EXPECT_THAT(documents().recentDocumentUrls(), IsEmpty());
}

TEST_F(XbelRecentDocumentsInNoFolder, TwentyAtMostAreRemembered)
{
    for (int i = 0; i < 25; ++i) {
        documents().noteNewRecentDocumentUrl(makeFolder(std::to_string(i)));
    }
    EXPECT_EQ(documents().recentDocumentUrls().size(), 20U);
}

TEST_F(XbelRecentDocumentsOnDisk, AListOfMegabytesIsLeftAlone)
{
    std::string list = kHead + foreignEntry("file:///other") + "</xbel>";
    list += std::string(XbelRecentDocuments::kMostBytes + 1 - list.size(), '\n');
    writeFile(list);
    documents().noteNewRecentDocumentUrl(makeFolder("a"));
    EXPECT_EQ(readFile(m_file), list);
    list.pop_back();
    writeFile(list);
    documents().noteNewRecentDocumentUrl(makeFolder("a"));
    EXPECT_THAT(readFile(m_file), HasSubstr("tessera"));
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
    std::string list = kHead + foreignEntry("file:///other") + "</xbel>";
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
    documents().noteNewRecentDocumentUrl(makeFolder("a"));
    EXPECT_EQ(fs::read_symlink(m_file), pipe);
    EXPECT_TRUE(fs::is_fifo(pipe));
    EXPECT_THAT(documents().recentDocumentUrls(), IsEmpty());
    fs::create_symlink("/dev/null", m_file);
    const Url a = makeFolder("a");
    documents().noteNewRecentDocumentUrl(a);
    EXPECT_EQ(fs::read_symlink(m_file), "/dev/null");
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
    writeFile(kHead + foreignEntry("file:///other") + "</xbel>");
    const Url url = makeFolder("a \xFF");
    documents().noteNewRecentDocumentUrl(url);
    documents().noteNewRecentDocumentUrl(url);
    QProcess reader;
    reader.start(
        python, {QStringLiteral(TESSERA_XBEL_READER), QString::fromStdString(m_file.string())});
    ASSERT_TRUE(reader.waitForFinished());
    EXPECT_EQ(reader.exitCode(), 0) << reader.readAllStandardError().toStdString();
    EXPECT_EQ(
        reader.readAllStandardOutput().toStdString(),
        "file:///other text/plain editor|'editor %u'|3\n" + url.absoluteString()
            + " inode/directory tessera|'tessera %u'|2\n");
}

} // namespace
} // namespace tessera
