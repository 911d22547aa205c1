// SPDX-License-Identifier: MIT
#include "LedgerPanel/LedgerList.h"

#include "LedgerDisk.h"
#include "NumbersOf.h"

#include <gtest/gtest.h>

namespace tessera {
namespace {

using Kind = LedgerLine::Kind;

LedgerAccount withUnreadable(std::size_t count)
{
    LedgerAccount account;
    for (std::size_t i = 0; i < count; ++i) {
        account.unseen.unreadable.push_back({"/f" + std::to_string(i), test::systemError(EACCES)});
    }
    account.unseen.unreadableCount = count;
    return account;
}

TEST(LedgerList, IsEmptyWhereThereIsNothingToList)
{
    EXPECT_TRUE(ledgerList(Kind::UnreadableFolders, {}).rows.empty());
    EXPECT_TRUE(ledgerList(Kind::CoveredFolders, {}).rows.empty());
    EXPECT_TRUE(ledgerList(Kind::Rest, withUnreadable(2)).rows.empty());
}

TEST(LedgerList, NamesAFolderAndWhyItCouldNotBeRead)
{
    const LedgerList list = ledgerList(Kind::UnreadableFolders, withUnreadable(1));
    ASSERT_EQ(list.rows.size(), 1U);
    EXPECT_EQ(list.rows[0], QStringList({QStringLiteral("/f0"), QStringLiteral("No permission")}));
    EXPECT_TRUE(list.more.isEmpty());
}

TEST(LedgerList, SaysHowManyThereAreBesideTheNamedOnes)
{
    const test::NumbersOf locale(QLocale::English);
    LedgerAccount account = withUnreadable(10'000);
    account.unseen.unreadableCount = 11'234;
    const LedgerList list = ledgerList(Kind::UnreadableFolders, account);
    EXPECT_EQ(list.rows.size(), 10'000U);
    EXPECT_EQ(ledgerListLength(Kind::UnreadableFolders, account), 10'000U);
    EXPECT_EQ(list.more, QStringLiteral("and 1,234 more"));
}

TEST(LedgerList, NamesTheProgramsThatHoldAFile)
{
    LedgerAccount account;
    account.open.files.push_back(
        {.identity = {},
         .allocatedBytes = 5'000'000,
         .holders = {{12, "data\nbase"}, {7, "%1 back\xFF"}},
         .path = "/var/<b>gone"});
    const LedgerList list = ledgerList(Kind::HeldOpen, account);
    ASSERT_EQ(list.rows.size(), 1U);
    EXPECT_EQ(list.rows[0][0], QString::fromUtf8("data\u240Abase (12), %1 back\uFFFD (7)"));
    EXPECT_EQ(list.rows[0][1], QStringLiteral("5.0 MB"));
    EXPECT_EQ(list.rows[0][2], QStringLiteral("/var/<b>gone"));
}

TEST(LedgerList, SaysWhatIsNotKnownOfAnOpenFile)
{
    LedgerAccount account;
    account.open.files.push_back({.identity = {}, .allocatedBytes = {}, .holders = {{1, "x"}}});
    const LedgerList list = ledgerList(Kind::HeldOpen, account);
    EXPECT_EQ(list.rows[0][1], QStringLiteral("not known"));
    EXPECT_EQ(list.rows[0][2], QStringLiteral("not known"));
}

TEST(LedgerList, NamesWhatCoversAFolder)
{
    LedgerAccount account;
    account.covered = std::vector<CoveredFolder>{{.path = "/dev", .type = "devtmpfs"}};
    EXPECT_EQ(
        ledgerList(Kind::CoveredFolders, account).rows[0],
        QStringList({QStringLiteral("/dev"), QStringLiteral("devtmpfs")}));
}

TEST(LedgerListModel, ItsTooltipsAreNoMarkup)
{
    LedgerListModel model;
    model.setList({{QStringLiteral("Place")}, {{QStringLiteral("<b>x")}}, {}});
    const QModelIndex index = model.index(0, 0);
    EXPECT_EQ(model.data(index, Qt::DisplayRole).toString(), QStringLiteral("<b>x"));
    EXPECT_FALSE(model.data(index, Qt::ToolTipRole).toString().contains(QStringLiteral("<b>")));
}

} // namespace
} // namespace tessera
