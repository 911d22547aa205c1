// SPDX-License-Identifier: MIT
#include "Freeing/FreedSpaceText.h"

#include "Freeing/FreedSpace.h"

#include <gtest/gtest.h>

namespace tessera {
namespace {

using Reason = KeptFiles::Reason;

QString reasonFor(const KeptFiles& kept)
{
    return freedSpaceReasons({0, 0, {kept}, false}).join(u'|');
}

TEST(FreedSpaceText, OneNumberIsToldAsOne)
{
    EXPECT_EQ(freedSpaceText({1'200'000'000, 1'200'000'000, {}, false}), u"1.2 GB");
}

TEST(FreedSpaceText, ARangeIsToldWithBothEnds)
{
    EXPECT_EQ(freedSpaceText({0, 2'000'000, {}, false}), u"0 B to 2.0 MB");
}

TEST(FreedSpaceText, ARangeWhoseEndsLookTheSameIsToldAsOne)
{
    EXPECT_EQ(freedSpaceText({1'200'000'001, 1'200'000'900, {}, false}), u"1.2 GB");
}

TEST(FreedSpaceText, WhereNotAllWasLookedAtItIsAtLeastSoMuch)
{
    EXPECT_EQ(
        freedSpaceText({1'000, 2'000, {{Reason::NotLookedAt, 5, {}, {}}}, false}),
        u"at least 1 KB");
}

TEST(FreedSpaceText, WithoutReasonsNothingIsSaid)
{
    EXPECT_TRUE(freedSpaceReasons({5, 5, {}, false}).isEmpty());
}

TEST(FreedSpaceText, AReasonNamesTheLargestFile)
{
    EXPECT_EQ(
        reasonFor({Reason::SharedExtents, 1, "/t/disk.img", {}}),
        u"“disk.img” is shared with other files.");
    EXPECT_EQ(
        reasonFor({Reason::LinksElsewhere, 2, "/t/a", {}}),
        u"“a” and one other file have other names elsewhere, and stay.");
    EXPECT_EQ(
        reasonFor({Reason::Changed, 4, "/t/a", {}}),
        u"“a” and 3 other files have changed since the scan.");
}

TEST(FreedSpaceText, FilesThatNobodyNamesAreCounted)
{
    EXPECT_EQ(reasonFor({Reason::NotLookedAt, 1, {}, {}}), u"One file was not looked at.");
    EXPECT_EQ(reasonFor({Reason::NotLookedAt, 20, {}, {}}), u"20 files were not looked at.");
}

TEST(FreedSpaceText, WhoHoldsAFileOpenIsNamed)
{
    EXPECT_EQ(
        reasonFor({Reason::HeldOpen, 1, "/t/a", {{1234, "firefox"}}}),
        u"“a” is held open by firefox (1234).");
    EXPECT_EQ(
        reasonFor(
            {Reason::HeldOpen, 1, "/t/a", {{1, "a"}, {2, "b"}, {3, "c"}, {4, "d"}, {5, "e"}}}),
        u"“a” is held open by a (1), b (2), c (3), 2 more.");
}

TEST(FreedSpaceText, NamesThatLookLikePlacesOfATextStayAsTheyAre)
{
    EXPECT_EQ(
        reasonFor({Reason::HeldOpen, 1, "/t/%2", {{5, "%1\n"}}}), u"“%2” is held open by %1␊ (5).");
}

TEST(FreedSpaceText, ProcessesThatNobodyMayLookAtAreMentioned)
{
    EXPECT_EQ(
        freedSpaceReasons({5, 5, {}, true}).join(u'|'),
        u"Programs that may not be looked at may hold files open.");
}

} // namespace
} // namespace tessera
