// SPDX-License-Identifier: MIT
#include "Platform/Linux/Files/LinuxSharedExtents.h"

#include "Platform/Linux/Files/FileStatus.h"
#include "support/Machine/InChild.h"
#include "support/Machine/OwnMounts.h"
#include "support/Machine/TempTree.h"

#include <fcntl.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <linux/fiemap.h>

#include <cerrno>
#include <cstring>

namespace tessera {
namespace {

using testing::Each;
using testing::ElementsAre;
using testing::Eq;

using State = FileExtents::State;

constexpr std::chrono::minutes kLong{1};

FileExtents known(const ExtentBytes& bytes)
{
    return {State::Known, bytes};
}

FileExtents unknown(State state)
{
    return {state};
}

/// What a file system tells of a file, a few extents at a time.
class FakeExtents {
public:
    explicit FakeExtents(std::vector<fiemap_extent> extents)
        : m_extents(std::move(extents))
    {
    }

    int operator()(int /*descriptor*/, fiemap& request) const
    {
        constexpr std::uint32_t kAtOnce = 2;
        EXPECT_EQ(request.fm_flags, 0U) << "nothing is to be written for it";
        EXPECT_GE(request.fm_extent_count, kAtOnce);
        request.fm_mapped_extents = 0;
        auto* place = reinterpret_cast<std::byte*>(&request) + sizeof(request);
        for (const fiemap_extent& extent : m_extents) {
            const bool isAsked = extent.fe_logical + extent.fe_length > request.fm_start;
            if (isAsked && request.fm_mapped_extents < kAtOnce) {
                std::memcpy(place, &extent, sizeof(extent));
                place += sizeof(extent);
                ++request.fm_mapped_extents;
            }
        }
        return 0;
    }

private:
    std::vector<fiemap_extent> m_extents;
};

fiemap_extent extent(std::uint64_t begin, std::uint64_t length, std::uint32_t flags = 0)
{
    fiemap_extent made{};
    made.fe_logical = begin;
    made.fe_length = length;
    made.fe_flags = flags;
    return made;
}

class LinuxSharedExtentsTest : public testing::Test {
protected:
    NamedFile file(const std::string& name) const
    {
        return {
            m_tree.pathOf(name), statusAt(AT_FDCWD, m_tree.pathOf(name).c_str()).status.identity};
    }

    NamedFile makeFile(const std::string& name) const
    {
        m_tree.makeFile(name, 10);
        return file(name);
    }

    static SharedExtentsAnswer ask(
        const LinuxSharedExtents::ExtentsOf& extents,
        const std::vector<NamedFile>& files,
        std::size_t mostFiles = 100)
    {
        return LinuxSharedExtents({mostFiles, kLong}, extents).extentsOf(files, {});
    }

    FileExtents ask(std::vector<fiemap_extent> extents) const
    {
        return ask(FakeExtents(std::move(extents)), {makeFile("file")}).files.at(0);
    }

    const test::TempTree m_tree;
};

TEST_F(LinuxSharedExtentsTest, ExtentsCountByWhetherTheyAreShared)
{
    EXPECT_EQ(
        ask({extent(0, 4096, FIEMAP_EXTENT_SHARED), extent(4096, 512, FIEMAP_EXTENT_LAST)}),
        known({4096, 512, 0}));
}

TEST_F(LinuxSharedExtentsTest, WhatIsItsOwnButNotStoredAsItIsIsTold)
{
    EXPECT_EQ(
        ask(
            {extent(0, 4096, FIEMAP_EXTENT_ENCODED),
             extent(8192, 300, FIEMAP_EXTENT_SHARED | FIEMAP_EXTENT_ENCODED),
             extent(16384, 512),
             extent(65536, 20, FIEMAP_EXTENT_ENCODED | FIEMAP_EXTENT_LAST)}),
        known({300, 4096 + 512 + 20, 4096 + 20}));
}

TEST_F(LinuxSharedExtentsTest, AllAnswersCount)
{
    EXPECT_EQ(
        ask(
            {extent(0, 1),
             extent(1, 20),
             extent(50, 300, FIEMAP_EXTENT_SHARED),
             extent(400, 4000),
             extent(5000, 50000, FIEMAP_EXTENT_SHARED | FIEMAP_EXTENT_LAST)}),
        known({50300, 4021, 0}));
}

TEST_F(LinuxSharedExtentsTest, AnswersWithoutALastExtentEndWhereThereAreNoMore)
{
    EXPECT_EQ(ask({extent(0, 1), extent(1, 2), extent(3, 4)}), known({0, 7, 0}));
}

TEST_F(LinuxSharedExtentsTest, AFileOfHolesHasNothing)
{
    EXPECT_EQ(ask(std::vector<fiemap_extent>{}), known({0, 0, 0}));
}

TEST_F(LinuxSharedExtentsTest, WhatIsToldTwiceCountsOnce)
{
    EXPECT_EQ(
        ask({extent(0, 100), extent(100, 100), extent(150, 100, FIEMAP_EXTENT_LAST)}),
        known({0, 250, 0}));
}

TEST_F(LinuxSharedExtentsTest, ExtentsThatLeadBackAreNotKnown)
{
    EXPECT_EQ(ask({extent(100, 100), extent(0, 120)}), unknown(State::NotLookedAt));
    EXPECT_EQ(ask({extent(0, 100), extent(100, 0)}), unknown(State::NotLookedAt));
}

TEST_F(LinuxSharedExtentsTest, AFileSystemThatDoesNotTellIsNotKnown)
{
    const auto answer
        = ask([](int, fiemap&) { return EOPNOTSUPP; }, {makeFile("a"), makeFile("b")});
    EXPECT_THAT(
        answer.files, ElementsAre(Eq(unknown(State::NotTold)), Eq(unknown(State::NotTold))));
    EXPECT_FALSE(answer.isCutShort);
}

TEST_F(LinuxSharedExtentsTest, AnErrorInTheMiddleLeavesNothingKnown)
{
    int calls = 0;
    const FakeExtents extents({extent(0, 1), extent(1, 1), extent(2, 1)});
    const auto answer = ask(
        [&calls, &extents](int descriptor, fiemap& request) {
            return ++calls == 2 ? EIO : extents(descriptor, request);
        },
        {makeFile("a"), makeFile("b")});
    EXPECT_THAT(answer.files, ElementsAre(Eq(unknown(State::NotLookedAt)), Eq(known({0, 3, 0}))));
}

TEST_F(LinuxSharedExtentsTest, NoMoreThanSoManyFilesAreLookedAt)
{
    const NamedFile named = makeFile("file");
    const FakeExtents extents({extent(0, 5, FIEMAP_EXTENT_LAST)});
    const auto two = ask(extents, {named, named}, 2);
    EXPECT_FALSE(two.isCutShort);
    const auto three = ask(extents, {named, named, named}, 2);
    EXPECT_TRUE(three.isCutShort);
    EXPECT_THAT(
        three.files,
        ElementsAre(Eq(known({0, 5, 0})), Eq(known({0, 5, 0})), Eq(unknown(State::NotLookedAt))));
}

TEST_F(LinuxSharedExtentsTest, WithoutTimeOrAfterAStopNothingIsKnown)
{
    const NamedFile named = makeFile("file");
    const auto late
        = LinuxSharedExtents({100, std::chrono::milliseconds(0)}).extentsOf({named}, {});
    EXPECT_TRUE(late.isCutShort);
    EXPECT_THAT(late.files, ElementsAre(Eq(unknown(State::NotLookedAt))));
    std::stop_source stop;
    stop.request_stop();
    const auto stopped = LinuxSharedExtents({100, kLong}).extentsOf({named}, stop.get_token());
    EXPECT_TRUE(stopped.isCutShort);
    EXPECT_THAT(stopped.files, ElementsAre(Eq(unknown(State::NotLookedAt))));
}

TEST_F(LinuxSharedExtentsTest, AnotherFileThatTookTheNameIsNotOpened)
{
    NamedFile named = makeFile("file");
    const NamedFile other = makeFile("other");
    m_tree.rename("other", "file");
    bool isAsked = false;
    const auto extents = [&isAsked](int, fiemap&) {
        isAsked = true;
        return 0;
    };
    EXPECT_THAT(ask(extents, {named, other}).files, Each(Eq(unknown(State::Changed))));
    EXPECT_FALSE(isAsked);
}

TEST_F(LinuxSharedExtentsTest, AFileThatIsGoneHasChanged)
{
    const NamedFile named = makeFile("file");
    m_tree.removeFile("file");
    EXPECT_THAT(ask(FakeExtents({}), {named}).files, ElementsAre(Eq(unknown(State::Changed))));
}

TEST_F(LinuxSharedExtentsTest, AFileThatMayNotBeReadSaysSo)
{
    const NamedFile named = makeFile("file");
    m_tree.setMode("file", 0);
    EXPECT_EQ(
        test::asPlainUser([&named] {
            const auto files = LinuxSharedExtents({100, kLong}).extentsOf({named}, {}).files;
            return files.at(0) == unknown(State::MayNotRead) ? 1 : 0;
        }),
        1);
}

TEST_F(LinuxSharedExtentsTest, OnlyRegularFilesAreOpened)
{
    m_tree.makeFolder("folder");
    m_tree.makeFifo("fifo");
    m_tree.makeFile("file", 10);
    m_tree.makeSymbolicLink("link", "file");
    m_tree.makeSymbolicLink("way", ".");
    const NamedFile overALink{m_tree.pathOf("way/file"), file("file").identity};
    const FakeExtents extents({extent(0, 5, FIEMAP_EXTENT_LAST)});
    EXPECT_THAT(
        ask(extents, {file("folder"), file("fifo"), file("link"), overALink}).files,
        Each(Eq(unknown(State::Changed))));
    EXPECT_THAT(ask(extents, {file("file")}).files, Each(Eq(known({0, 5, 0}))));
}

TEST_F(LinuxSharedExtentsTest, OfFilesInMemoryNothingIsKnown)
{
    if (!test::OwnMounts::enter()) {
        GTEST_SKIP() << "this process may not mount";
    }
    test::OwnMounts mounts;
    mounts.mountMemory(m_tree.path());
    const auto answer = LinuxSharedExtents({100, kLong}).extentsOf({makeFile("file")}, {});
    EXPECT_THAT(answer.files, ElementsAre(Eq(unknown(State::NotTold))));
    EXPECT_FALSE(answer.isCutShort);
}

} // namespace
} // namespace tessera
