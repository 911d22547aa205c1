// SPDX-License-Identifier: MIT
// Lists of recent documents that are not written anew, and what becomes of what was noted.
#include "XbelRecentDocumentsFixture.h"
#include "support/Machine/OwnMounts.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <iterator>
#include <string>
#include <vector>

namespace tessera {
namespace {

namespace fs = std::filesystem;

using testing::AllOf;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

using test::foreignEntry;
using test::kListHead;
using test::XbelRecentDocumentsOnDisk;

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
        OthersList{"Truncated", kListHead + foreignEntry("file:///other") + "<bookmark"},
        OthersList{"NoXml", "nothing of the kind"},
        OthersList{
            "EntryWithoutPrograms",
            kListHead + foreignEntry("file:///other")
                + "<bookmark href=\"file:///x\" added=\"2020-01-02T03:04:05Z\"/></xbel>"},
        OthersList{
            "Comment",
            kListHead + foreignEntry("file:///other") + "<!-- mine, do not touch --></xbel>"},
        OthersList{
            "Folder",
            kListHead + ("<folder><title>f</title>" + foreignEntry("file:///other"))
                + "</folder></xbel>"},
        OthersList{
            "ForeignMetadata",
            kListHead + foreignEntry("file:///other")
                + "<bookmark href=\"file:///x\"><info><metadata owner=\"http://me\">stars"
                  "</metadata></info></bookmark></xbel>"},
        OthersList{
            "ForeignAttribute",
            kListHead
                + foreignEntry(
                    "file:///other",
                    "<bookmark:application name=\"x\" exec=\"x\" count=\"1\" stars=\"5\" "
                    "modified=\"2020-01-02T03:04:06Z\"/>")
                + "</xbel>"}),
    [](const auto& list) { return std::string(list.param.name); });

TEST_F(XbelRecentDocumentsOnDisk, AListThatTheUserProtectedIsLeftAlone)
{
    const std::string list = kListHead + foreignEntry("file:///other") + "</xbel>";
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
    writeFile(kListHead + foreignEntry("file:///other") + "</xbel>");
    test::OwnMounts mounts;
    mounts.bind(m_file.string(), m_file.string());
    test::OwnMounts::makeReadOnly(m_file.string());
    const Url a = makeFolder("a");
    m_settings.records["recents"] = {{a.path(), 5, {}}};
    EXPECT_THAT(documents().recentDocumentUrls(), ElementsAre(a));
}

TEST_F(XbelRecentDocumentsOnDisk, WhatWasNotedBesideAProtectedListStaysListedWhenItIsOpenAgain)
{
    writeFile(kListHead + foreignEntry("file:///other") + "</xbel>");
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
    writeFile(kListHead + foreignEntry("file:///other") + "</xbel>");
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
    std::string list = kListHead + foreignEntry("file:///other") + "</xbel>";
    list += std::string(XbelRecentDocuments::kMostBytes + 1 - list.size(), '\n');
    writeFile(list);
    documents().noteNewRecentDocumentUrl(makeFolder("a"));
    EXPECT_EQ(readFile(m_file), list);
    list.pop_back();
    writeFile(list);
    documents().noteNewRecentDocumentUrl(makeFolder("a"));
    EXPECT_THAT(readFile(m_file), HasSubstr("tessera"));
}

} // namespace
} // namespace tessera
