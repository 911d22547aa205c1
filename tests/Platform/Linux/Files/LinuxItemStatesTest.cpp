// SPDX-License-Identifier: MIT
#include "Platform/Linux/Files/LinuxItemStates.h"

#include "support/Machine/InChild.h"
#include "support/Machine/TempTree.h"

#include <fcntl.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <optional>

namespace tessera {
namespace {

using testing::Each;
using testing::ElementsAre;
using testing::Eq;

using Kind = ItemState::Kind;
using Outcome = ItemAnswer::Outcome;

constexpr std::chrono::minutes kLong{1};

class LinuxItemStatesTest : public testing::Test {
protected:
    ItemAnswer ask(const std::string& name) const
    {
        return LinuxItemStates(kLong).statesOf({m_tree.pathOf(name)}, {}).at(0);
    }

    /// As the system tells it; nothing where the file system does not.
    std::optional<FileTime> birthOf(const std::string& name) const
    {
        struct statx found { };
        EXPECT_EQ(
            ::statx(
                AT_FDCWD, m_tree.pathOf(name).c_str(), AT_SYMLINK_NOFOLLOW, STATX_BTIME, &found),
            0);
        if ((found.stx_mask & STATX_BTIME) == 0) {
            return std::nullopt;
        }
        return FileTime{found.stx_btime.tv_sec, found.stx_btime.tv_nsec};
    }

    const test::TempTree m_tree;
};

TEST_F(LinuxItemStatesTest, AFileIsToldAsTheSystemTellsIt)
{
    m_tree.makeFile("file", 5000);
    m_tree.makeHardLink("other", "file");
    const std::array<timespec, 2> times{{{1, 2}, {-1000, 300}}};
    ASSERT_EQ(::utimensat(AT_FDCWD, m_tree.pathOf("file").c_str(), times.data(), 0), 0);
    struct stat found { };
    ASSERT_EQ(::stat(m_tree.pathOf("file").c_str(), &found), 0);
    const ItemState expected{
        Kind::File,
        {found.st_dev, found.st_ino},
        2,
        m_tree.allocatedBytes("file"),
        {-1000, 300},
        {found.st_ctim.tv_sec, static_cast<std::uint32_t>(found.st_ctim.tv_nsec)},
        found.st_uid,
        birthOf("file")};
    EXPECT_EQ(ask("file"), (ItemAnswer{Outcome::Known, expected}));
}

TEST_F(LinuxItemStatesTest, AnothersFileIsToldWithItsOwner)
{
    constexpr uid_t kOther = 12345;
    m_tree.makeFile("file");
    if (::chown(m_tree.pathOf("file").c_str(), kOther, kOther) != 0) {
        GTEST_SKIP() << "only the super-user can give files away";
    }
    EXPECT_EQ(ask("file").state.owner, kOther);
}

TEST_F(LinuxItemStatesTest, KindsAreToldApartAndLinksNotFollowed)
{
    m_tree.makeFolder("folder");
    m_tree.makeFifo("fifo");
    m_tree.makeSymbolicLink("link", "folder");
    EXPECT_EQ(ask("folder").state.kind, Kind::Folder);
    EXPECT_EQ(ask("fifo").state.kind, Kind::Other);
    EXPECT_EQ(ask("link").state.kind, Kind::SymbolicLink);
}

TEST_F(LinuxItemStatesTest, WhatIsGoneOrBehindALinkIsGone)
{
    m_tree.makeFolder("folder");
    m_tree.makeFile("folder/file");
    m_tree.makeSymbolicLink("way", "folder");
    EXPECT_EQ(ask("nothing"), ItemAnswer{Outcome::Gone});
    EXPECT_EQ(ask("folder/file/inside"), ItemAnswer{Outcome::Gone});
    EXPECT_EQ(ask("way/file"), ItemAnswer{Outcome::Gone});
    EXPECT_EQ(ask("folder/file").outcome, Outcome::Known);
}

TEST_F(LinuxItemStatesTest, WhatLiesInAClosedFolderMayNotBeLookedAt)
{
    m_tree.makeFolder("closed");
    m_tree.makeFile("closed/file");
    m_tree.setMode("closed", 0);
    EXPECT_EQ(
        test::asPlainUser([this] { return static_cast<int>(ask("closed/file").outcome); }),
        static_cast<int>(Outcome::MayNotLook));
}

TEST_F(LinuxItemStatesTest, AnswersStandInTheOrderOfTheQuestion)
{
    m_tree.makeFile("file");
    m_tree.makeFolder("folder");
    const auto answers = LinuxItemStates(kLong).statesOf(
        {m_tree.pathOf("folder"), m_tree.pathOf("nothing"), m_tree.pathOf("file")}, {});
    ASSERT_EQ(answers.size(), 3U);
    EXPECT_EQ(answers[0].state.kind, Kind::Folder);
    EXPECT_EQ(answers[1].outcome, Outcome::Gone);
    EXPECT_EQ(answers[2].state.kind, Kind::File);
}

TEST_F(LinuxItemStatesTest, WithoutTimeOrAfterAStopNothingIsKnown)
{
    m_tree.makeFile("file");
    const std::vector<std::string> paths(2, m_tree.pathOf("file"));
    const auto late = LinuxItemStates(std::chrono::milliseconds(0)).statesOf(paths, {});
    EXPECT_THAT(late, ElementsAre(Eq(ItemAnswer()), Eq(ItemAnswer())));
    std::stop_source stop;
    stop.request_stop();
    EXPECT_THAT(LinuxItemStates(kLong).statesOf(paths, stop.get_token()), Each(ItemAnswer()));
}

TEST_F(LinuxItemStatesTest, WhatIsMadeAfterAMomentIsDatedAfterTheTimeBeforeChanges)
{
    constexpr int kFiles = 200;
    for (int i = 0; i < kFiles; ++i) {
        const FileTime before = timeBeforeChanges();
        m_tree.makeFile("file" + std::to_string(i));
        EXPECT_LT(before, ask("file" + std::to_string(i)).state.changed);
    }
}

} // namespace
} // namespace tessera
