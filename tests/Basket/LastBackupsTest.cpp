// SPDX-License-Identifier: MIT
#include "Basket/LastBackups.h"

#include "support/MakeTree.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace tessera {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::UnorderedElementsAre;

using Program = BackupSet::Program;

constexpr std::string_view kRestic
    = "( config:1 data/ ( ab/ ( pack:900 ) ) index/ ( i:1 ) keys/ ( k:1 ) snapshots/ ( s:1 ) )";
constexpr std::string_view kBorg = "( README:1 config:1 data/ ( 0/ ( 1:900 ) ) hints.7:1 )";

class LastBackupsTest : public testing::Test {
protected:
    void isScanned(const std::string& items, std::string_view origin = "/disk")
    {
        m_top = test::makeTree(origin, items);
    }

    /// What no backup is left of without the items.
    std::vector<BackupSet> without(const std::vector<std::string>& paths)
    {
        std::vector<const File*> items;
        items.reserve(paths.size());
        for (const std::string& path : paths) {
            items.push_back(&test::at(*m_top, path));
        }
        return lastBackupsAmong(items);
    }

    std::unique_ptr<TopFolder> m_top;
};

TEST_F(LastBackupsTest, ARepositoryOfResticGoesWithItsFolder)
{
    isScanned("repo/ " + std::string(kRestic));
    EXPECT_THAT(without({"repo"}), ElementsAre(BackupSet{Program::Restic, "/disk/repo"}));
}

TEST_F(LastBackupsTest, ItGoesWithAFolderAroundIt)
{
    isScanned("usb/ ( backups/ ( repo/ " + std::string(kRestic) + " ) )");
    EXPECT_THAT(
        without({"usb"}), ElementsAre(BackupSet{Program::Restic, "/disk/usb/backups/repo"}));
}

TEST_F(LastBackupsTest, ItGoesWithEachPartThatAllItsBackupsNeed)
{
    isScanned("repo/ " + std::string(kRestic));
    for (const char* const part : {"config", "data", "index", "keys", "snapshots"}) {
        EXPECT_THAT(
            without({std::string("repo/") + part}),
            ElementsAre(BackupSet{Program::Restic, "/disk/repo"}))
            << part;
    }
}

TEST_F(LastBackupsTest, WhatIsChosenDeepInARepositoryIsNotTold)
{
    isScanned("repo/ " + std::string(kRestic));
    EXPECT_THAT(without({"repo/data/ab"}), IsEmpty());
    EXPECT_THAT(without({"repo/keys/k"}), IsEmpty());
}

TEST_F(LastBackupsTest, WhereAPartIsMissingThereIsNoRepository)
{
    isScanned("a/ ( config:1 data/ ( x:1 ) index/ ( x:1 ) keys/ ( x:1 ) ) "
              "b/ ( config/ ( x:1 ) data/ ( x:1 ) index/ ( x:1 ) keys/ ( x:1 ) snapshots/ ( ) ) "
              "c/ ( README:1 config:1 data/ ( x:1 ) )");
    EXPECT_THAT(without({"a", "b", "c"}), IsEmpty());
}

TEST_F(LastBackupsTest, ARepositoryOfBorgGoesWithItsFolderOrAPart)
{
    isScanned("repo/ " + std::string(kBorg));
    const BackupSet set{Program::Borg, "/disk/repo"};
    for (const char* const item : {"repo", "repo/data", "repo/config"}) {
        EXPECT_THAT(without({item}), ElementsAre(set)) << item;
    }
    EXPECT_THAT(without({"repo/hints.7"}), IsEmpty());
}

TEST_F(LastBackupsTest, AnIndexMarksARepositoryOfBorgToo)
{
    isScanned("repo/ ( README:1 config:1 data/ ( x:1 ) index.12:1 ) "
              "no/ ( README:1 config:1 data/ ( x:1 ) index.:1 index.html:1 index:1 )");
    EXPECT_THAT(without({"repo", "no"}), ElementsAre(BackupSet{Program::Borg, "/disk/repo"}));
}

TEST_F(LastBackupsTest, EachRepositoryIsToldOnce)
{
    isScanned("a/ " + std::string(kRestic) + " b/ " + std::string(kBorg));
    EXPECT_THAT(
        without({"a/data", "b", "a/config"}),
        UnorderedElementsAre(
            BackupSet{Program::Restic, "/disk/a"}, BackupSet{Program::Borg, "/disk/b"}));
}

class SeriesOfBackups : public LastBackupsTest {
protected:
    SeriesOfBackups()
    {
        isScanned("timeshift/ ( snapshots/ ( 2026-01-31_18-00-01/ ( root:9 ) "
                  "2026-02-01_18-00-01/ ( root:9 ) info:1 ) )");
    }

    const BackupSet m_set{Program::Timeshift, "/disk/timeshift/snapshots"};
    const std::string m_first = "timeshift/snapshots/2026-01-31_18-00-01";
    const std::string m_second = "timeshift/snapshots/2026-02-01_18-00-01";
};

TEST_F(SeriesOfBackups, OneOfTwoMayGo)
{
    EXPECT_THAT(without({m_first}), IsEmpty());
}

TEST_F(SeriesOfBackups, BothAreTheLast)
{
    EXPECT_THAT(without({m_first, m_second}), ElementsAre(m_set));
}

TEST_F(SeriesOfBackups, AFolderAroundThemHasThemAll)
{
    EXPECT_THAT(without({"timeshift/snapshots"}), ElementsAre(m_set));
    EXPECT_THAT(without({"timeshift"}), ElementsAre(m_set));
}

TEST_F(SeriesOfBackups, WhatLiesInOneIsNoLossOfIt)
{
    EXPECT_THAT(without({m_first + "/root", m_second}), IsEmpty());
}

TEST_F(SeriesOfBackups, WhatLiesBesideThemIsNone)
{
    EXPECT_THAT(without({"timeshift/snapshots/info"}), IsEmpty());
}

TEST_F(SeriesOfBackups, ARepositoryInABackupIsACopy)
{
    isScanned(
        "timeshift/ ( snapshots/ ( 2026-01-31_18-00-01/ ( repo/ " + std::string(kRestic)
        + " ) 2026-02-01_18-00-01/ ( root:9 ) ) )");
    EXPECT_THAT(without({m_first}), IsEmpty());
    EXPECT_THAT(without({"timeshift"}), ElementsAre(m_set));
}

TEST_F(SeriesOfBackups, TheScanMayHaveBegunAmongThem)
{
    isScanned("2026-01-31_18-00-01/ ( root:9 )", "/disk/timeshift/snapshots");
    EXPECT_THAT(without({"2026-01-31_18-00-01"}), ElementsAre(m_set));
}

TEST_F(SeriesOfBackups, ElsewhereDatesAreNoBackups)
{
    isScanned("pictures/ ( 2026-01-31_18-00-01/ ( a:9 ) ) "
              "timeshift/ ( log/ ( 2026-01-31_18-00-01/ ( a:9 ) ) ) "
              "x/ ( snapshots/ ( 2026-01-31_18-00-01/ ( a:9 ) ) )");
    EXPECT_THAT(without({"pictures", "timeshift", "x"}), IsEmpty());
}

TEST_F(SeriesOfBackups, FilesOfSuchNamesAreNone)
{
    isScanned("timeshift/ ( snapshots/ ( 2026-01-31_18-00-01:1 ) )");
    EXPECT_THAT(without({"timeshift"}), IsEmpty());
}

/// A folder, backups in it, and a name in the same place that is none of them.
struct Layout {
    const char* name;
    Program program;
    std::string folder;
    std::vector<std::string> backups;
    std::string other;
};

class LayoutsOfBackups : public LastBackupsTest, public testing::WithParamInterface<Layout> {
protected:
    LayoutsOfBackups()
    {
        std::string items;
        for (const std::string& backup : GetParam().backups) {
            items += backup + "/ ( x:1 ) ";
        }
        isScanned(items + GetParam().other + "/ ( x:1 ) ", "/disk/" + GetParam().folder);
    }
};

TEST_P(LayoutsOfBackups, AllOfThemAreTheLast)
{
    EXPECT_THAT(
        without(GetParam().backups),
        ElementsAre(BackupSet{GetParam().program, "/disk/" + GetParam().folder}));
}

TEST_P(LayoutsOfBackups, AllButOneAreNot)
{
    std::vector<std::string> backups = GetParam().backups;
    backups.pop_back();
    backups.push_back(GetParam().other);
    EXPECT_THAT(without(backups), IsEmpty());
}

INSTANTIATE_TEST_SUITE_P(
    Programs,
    LayoutsOfBackups,
    testing::Values(
        Layout{
            "Timeshift",
            Program::Timeshift,
            "timeshift/snapshots",
            {"2026-01-31_18-00-01", "2026-02-01_18-00-01"},
            "2026-01-31_18-00"},
        Layout{
            "Rsnapshot",
            Program::Rsnapshot,
            "anywhere",
            {"hourly.0",
             "daily.12",
             "weekly.1",
             "monthly.0",
             "yearly.0",
             "alpha.0",
             "beta.1",
             "gamma.2",
             "delta.3"},
            "daily."},
        Layout{
            "BackInTime",
            Program::BackInTime,
            "backintime/host/me/1",
            {"20260131-180001-123", "20260201-180001-123"},
            "last_snapshot"},
        Layout{
            "TimeMachine",
            Program::TimeMachine,
            "Backups.backupdb/machine",
            {"2026-01-31-180001", "2026-02-01-180001"},
            "2026-01-31-180001.inProgress"}),
    [](const testing::TestParamInfo<Layout>& layout) { return layout.param.name; });

TEST_F(LastBackupsTest, APlaceWithoutTheProgramsFolderHasNoBackups)
{
    isScanned("host/ ( me/ ( 1/ ( 20260131-180001-123/ ( x:1 ) ) ) ) "
              "machine/ ( 2026-01-31-180001/ ( x:1 ) )");
    EXPECT_THAT(without({"host", "machine"}), IsEmpty());
}

TEST_F(LastBackupsTest, SeveralMachinesAreSeveralSets)
{
    isScanned("Backups.backupdb/ ( a/ ( 2026-01-31-180001/ ( x:1 ) ) "
              "b/ ( 2026-01-31-180001/ ( x:1 ) ) )");
    EXPECT_THAT(
        without({"Backups.backupdb"}),
        UnorderedElementsAre(
            BackupSet{Program::TimeMachine, "/disk/Backups.backupdb/a"},
            BackupSet{Program::TimeMachine, "/disk/Backups.backupdb/b"}));
    EXPECT_THAT(
        without({"Backups.backupdb/a"}),
        ElementsAre(BackupSet{Program::TimeMachine, "/disk/Backups.backupdb/a"}));
}

TEST_F(LastBackupsTest, AnImageOfBackupsGoesWithItsFolderOrItsBands)
{
    isScanned("mac.sparsebundle/ ( bands/ ( 0:9 ) token:1 ) mac.backupbundle/ ( bands/ ( 0:9 ) )");
    EXPECT_THAT(
        without({"mac.sparsebundle"}),
        ElementsAre(BackupSet{Program::TimeMachine, "/disk/mac.sparsebundle"}));
    EXPECT_THAT(
        without({"mac.backupbundle/bands"}),
        ElementsAre(BackupSet{Program::TimeMachine, "/disk/mac.backupbundle"}));
    EXPECT_THAT(without({"mac.sparsebundle/token"}), IsEmpty());
    EXPECT_THAT(without({"mac.sparsebundle/bands/0"}), IsEmpty());
}

class BackupsOfDuplicity : public LastBackupsTest {
protected:
    BackupsOfDuplicity()
    {
        isScanned("b/ ( duplicity-full.20260131T180001Z.manifest.gpg:1 "
                  "duplicity-full.20260131T180001Z.vol1.difftar.gpg:9 "
                  "duplicity-full.20260201T180001Z.manifest:1 "
                  "duplicity-full.20260201T180001Z.vol1.difftar.gz:9 "
                  "duplicity-inc.20260131T180001Z.to.20260201T000001Z.manifest:1 )");
    }

    const BackupSet m_set{Program::Duplicity, "/disk/b"};
    const std::string m_first = "b/duplicity-full.20260131T180001Z.";
    const std::string m_second = "b/duplicity-full.20260201T180001Z.";
};

TEST_F(BackupsOfDuplicity, OneOfTwoFullOnesMayGo)
{
    EXPECT_THAT(without({m_first + "manifest.gpg", m_first + "vol1.difftar.gpg"}), IsEmpty());
}

TEST_F(BackupsOfDuplicity, AnyFileOfEachIsTheLast)
{
    EXPECT_THAT(
        without({m_first + "manifest.gpg", m_second + "vol1.difftar.gz"}), ElementsAre(m_set));
}

TEST_F(BackupsOfDuplicity, TheFolderHasThemAll)
{
    EXPECT_THAT(without({"b"}), ElementsAre(m_set));
}

TEST_F(BackupsOfDuplicity, IncrementsAloneMayGo)
{
    EXPECT_THAT(
        without({"b/duplicity-inc.20260131T180001Z.to.20260201T000001Z.manifest"}), IsEmpty());
}

TEST_F(BackupsOfDuplicity, VolumesWithoutAListAreNoBackup)
{
    isScanned("b/ ( duplicity-full.20260131T180001Z.vol1.difftar.gpg:9 )");
    EXPECT_THAT(without({"b"}), IsEmpty());
}

TEST_F(LastBackupsTest, NothingElseIsABackup)
{
    isScanned("docs/ ( a:1 b/ ( c:1 ) ) d\xFF:1");
    EXPECT_THAT(without({"docs", "d\xFF"}), IsEmpty());
    EXPECT_THAT(lastBackupsAmong({}), IsEmpty());
}

TEST_F(LastBackupsTest, EachFolderIsLookedThroughOnceInWhateverOrderTheItemsAreChosen)
{
    isScanned(
        "usb/ ( hourly.0/ ( a:1 ) hourly.1/ ( a:1 ) x/ ( ) ) disk/ ( hourly.0/ ( a:1 ) y/ ( ) )");
    std::vector<std::string> looked;
    const std::vector<const File*> items{
        &test::at(*m_top, "usb/hourly.0"),
        &test::at(*m_top, "disk/hourly.0"),
        &test::at(*m_top, "usb/x"),
        &test::at(*m_top, "disk/y"),
        &test::at(*m_top, "usb/hourly.1")};
    const auto lost = lastBackupsAmong(
        items, [&looked](const File& folder) { looked.push_back(folder.absolutePath()); });
    EXPECT_THAT(
        looked, UnorderedElementsAre("/disk/usb", "/disk/disk", "/disk/usb/x", "/disk/disk/y"));
    EXPECT_THAT(
        lost,
        UnorderedElementsAre(
            BackupSet{Program::Rsnapshot, "/disk/usb"},
            BackupSet{Program::Rsnapshot, "/disk/disk"}));
}

} // namespace
} // namespace tessera
