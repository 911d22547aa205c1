// SPDX-License-Identifier: MIT
#include "LedgerPanel/LedgerTexts.h"

#include "LedgerDisk.h"
#include "NumbersOf.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <limits>

namespace tessera {
namespace {

using namespace ledger_texts;
using Kind = LedgerLine::Kind;

TEST(LedgerTexts, RoundsAndKeepsTheSign)
{
    const test::NumbersOf locale(QLocale::English);
    EXPECT_EQ(roundedBytes(1'234'567'890), QStringLiteral("1.2 GB"));
    EXPECT_EQ(roundedBytes(-1'234'567'890), QStringLiteral("-1.2 GB"));
    EXPECT_EQ(roundedBytes(std::numeric_limits<std::int64_t>::min()).left(1), QStringLiteral("-"));
}

TEST(LedgerTexts, WriteExactNumbersAsTheLocaleDoes)
{
    const test::NumbersOf locale(QLocale::German);
    EXPECT_EQ(exactBytes(1'234'567), QStringLiteral("1.234.567 bytes"));
    EXPECT_EQ(exactBytes(-1'234'567), QStringLiteral("-1.234.567 bytes"));
}

TEST(LedgerTexts, SayAtLeastWhereThereMayBeMore)
{
    const LedgerLine line{Kind::HeldOpen, 5000, 0, true};
    EXPECT_EQ(number(line), QStringLiteral("at least 5 KB"));
    EXPECT_TRUE(exactNumber(line).startsWith(QStringLiteral("at least ")));
}

TEST(LedgerTexts, FoldersThatNobodyMeasuredHaveNoBytes)
{
    for (const Kind kind : {Kind::UnreadableFolders, Kind::CoveredFolders, Kind::FoldersLeftOut}) {
        EXPECT_EQ(number({kind, 0, 3}), QStringLiteral("part of the rest"));
        EXPECT_TRUE(exactNumber({kind, 0, 3}).isEmpty());
        EXPECT_TRUE(name({kind, 0, 3}, {}).endsWith(QStringLiteral("(3)")));
    }
}

TEST(LedgerTexts, ARestBelowNothingIsExplainedOtherwise)
{
    LedgerAccount account;
    account.covered.emplace();
    EXPECT_TRUE(
        explanation({Kind::Rest, -1}, account).startsWith(QStringLiteral("More was found")));
    EXPECT_TRUE(explanation({Kind::Rest, 0}, account).startsWith(QStringLiteral("In use")));
}

TEST(LedgerTexts, SayThatHiddenFoldersAreNotKnown)
{
    EXPECT_TRUE(explanation({Kind::Rest, 1}, {}).contains(QStringLiteral("does not tell what")));
    LedgerAccount known;
    known.covered.emplace();
    EXPECT_FALSE(explanation({Kind::Rest, 1}, known).contains(QStringLiteral("does not tell")));
}

TEST(LedgerTexts, OnBtrfsTheReserveIsTheFileSystems)
{
    LedgerAccount account;
    account.sizes.type = "btrfs";
    EXPECT_EQ(name({Kind::Reserved, 1}, account), QStringLiteral("Reserved by the file system"));
    account.sizes.type = "ext4";
    EXPECT_EQ(name({Kind::Reserved, 1}, account), QStringLiteral("Reserved for the administrator"));
}

TEST(LedgerTexts, MoreRightsAreAdvisedForFoldersOfOthersOnly)
{
    LedgerAccount account;
    account.unseen.unreadable.push_back({"/a", test::systemError(EIO)});
    const LedgerLine line{Kind::UnreadableFolders, 0, 1};
    EXPECT_FALSE(explanation(line, account).contains(QStringLiteral("more rights")));
    account.unseen.unreadable.push_back({"/b", test::systemError(EACCES)});
    EXPECT_TRUE(explanation(line, account).contains(QStringLiteral("more rights")));
}

TEST(LedgerTexts, SayWhyThereMayBeMoreThatIsStillOpen)
{
    LedgerAccount account;
    account.open.isCutShort = false;
    account.open.unreadableProcesses = 3;
    EXPECT_TRUE(explanation({Kind::HeldOpen, 0, 0, true}, account)
                    .contains(QStringLiteral("may not look into 3 of the programs")));
    EXPECT_FALSE(
        explanation({Kind::HeldOpen, 0, 0, false}, account).contains(QStringLiteral("more")));
}

TEST(LedgerTexts, ReasonsAreWords)
{
    EXPECT_EQ(reason(test::systemError(EACCES)), QStringLiteral("No permission"));
    EXPECT_EQ(reason(test::systemError(EPERM)), QStringLiteral("No permission"));
    EXPECT_EQ(reason(test::systemError(EIO)), QStringLiteral("The disk has an error"));
    EXPECT_FALSE(reason(test::systemError(ENOMEM)).isEmpty());
}

} // namespace
} // namespace tessera
