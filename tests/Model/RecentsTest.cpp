// SPDX-License-Identifier: MIT
#include "Model/Recents.h"

#include "support/Fakes/FakeRecentDocuments.h"
#include "support/Fakes/FakeUserDefaults.h"
#include "support/MakeTree.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

namespace tessera {
namespace {

using std::chrono::sys_seconds;
using testing::ElementsAre;

constexpr sys_seconds kMonday{std::chrono::seconds{1000}};
constexpr sys_seconds kTuesday{std::chrono::seconds{2000}};

class RecentsOnFakes : public testing::Test {
protected:
    Recents makeRecents()
    {
        return {m_defaults, m_documents, [this] { return m_now; }};
    }

    void store(const std::vector<RecentRecord>& records)
    {
        m_defaults.setRecentRecords("recents", records);
        std::for_each(records.rbegin(), records.rend(), [this](const RecentRecord& record) {
            m_documents.noteNewRecentDocumentUrl(Url(record.path, true));
        });
    }

    test::FakeUserDefaults m_defaults;
    test::FakeRecentDocuments m_documents;
    sys_seconds m_now = kTuesday;
    const RecentRecord m_music{"/music", 10, kMonday};
    const RecentRecord m_photos{"/photos\xFF", 20, kMonday};
};

TEST_F(RecentsOnFakes, LoadTheStoredListWhenMade)
{
    store({m_photos, m_music});
    EXPECT_THAT(makeRecents().recentsList(), ElementsAre(m_photos, m_music));
}

TEST_F(RecentsOnFakes, AnAddedFolderComesFirstInBothLists)
{
    store({m_photos});
    Recents recents = makeRecents();
    recents.addToList(*test::makeTree("/music", "a:700"));
    const RecentRecord added{"/music", 700, kTuesday};
    EXPECT_THAT(recents.recentsList(), ElementsAre(added, m_photos));
    EXPECT_THAT(m_defaults.recentRecords("recents"), ElementsAre(added, m_photos));
    EXPECT_THAT(m_documents.urls, ElementsAre(Url("/music", true), Url("/photos\xFF", true)));
}

TEST_F(RecentsOnFakes, AFolderAddedAgainMovesToTheFrontWithItsNewSizeAndDate)
{
    store({m_photos, m_music});
    Recents recents = makeRecents();
    recents.addToList(*test::makeTree("/music", "a:700"));
    EXPECT_THAT(
        recents.recentsList(), ElementsAre(RecentRecord{"/music", 700, kTuesday}, m_photos));
}

TEST_F(RecentsOnFakes, EveryChangeIsOnDiskAtOnce)
{
    Recents recents = makeRecents();
    recents.addToList(*test::makeTree("/music", "a:1"));
    EXPECT_EQ(m_defaults.synchronizeCount, 1);
    recents.clearList();
    EXPECT_EQ(m_defaults.synchronizeCount, 2);
}

TEST_F(RecentsOnFakes, ClearingEmptiesBothListsAndTheStore)
{
    store({m_photos, m_music});
    Recents recents = makeRecents();
    recents.clearList();
    EXPECT_TRUE(recents.recentsList().empty());
    EXPECT_TRUE(m_documents.urls.empty());
    EXPECT_TRUE(m_defaults.recentRecords("recents").empty());
}

TEST_F(RecentsOnFakes, RecordsStoredBeforeTheListWasClearedDoNotComeBack)
{
    store({m_photos, m_music});
    Recents recents = makeRecents();
    recents.clearList();
    m_defaults.setRecentRecords("recents", {m_photos});
    recents.reload();
    EXPECT_TRUE(recents.recentsList().empty());
}

TEST_F(RecentsOnFakes, ARecordThatTheDesktopNoLongerListsIsDroppedAndForgottenAtTheNextSave)
{
    store({m_photos, m_music});
    m_documents.urls = {Url("/music", true)};
    Recents recents = makeRecents();
    EXPECT_THAT(recents.recentsList(), ElementsAre(m_music));
    EXPECT_THAT(m_defaults.recentRecords("recents"), ElementsAre(m_photos, m_music));
    recents.save();
    EXPECT_THAT(m_defaults.recentRecords("recents"), ElementsAre(m_music));
}

TEST_F(RecentsOnFakes, TheOrderIsTheStoredOneWhateverTheDesktopSays)
{
    store({m_photos, m_music});
    m_documents.urls = {Url("/music", true), Url("/photos\xFF", true)};
    EXPECT_THAT(makeRecents().recentsList(), ElementsAre(m_photos, m_music));
}

TEST_F(RecentsOnFakes, HaveNoLimitOfTheirOwn)
{
    constexpr std::size_t kMany = 100;
    std::vector<RecentRecord> records(kMany, m_music);
    for (std::size_t i = 0; i < kMany; ++i) {
        records[i].path += std::to_string(i);
    }
    store(records);
    EXPECT_EQ(makeRecents().recentsList(), records);
}

} // namespace
} // namespace tessera
