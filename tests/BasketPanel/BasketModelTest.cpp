// SPDX-License-Identifier: MIT
#include "BasketPanel/BasketModel.h"

#include "Basket/Basket.h"
#include "Model/Folder.h"
#include "support/MakeTree.h"

#include <QSignalSpy>

#include <gtest/gtest.h>

#include <memory>
#include <string_view>

namespace tessera {
namespace {

class BasketModelTest : public testing::Test {
protected:
    void choose(std::string_view items, std::initializer_list<std::string_view> paths)
    {
        tree = test::makeTree("/home/me", items);
        for (const std::string_view path : paths) {
            basket.add(test::at(*tree, path));
        }
        model.bringUpToDate();
    }

    QString text(int row, int column, int role = Qt::DisplayRole) const
    {
        return model.index(row, column).data(role).toString();
    }

    std::unique_ptr<TopFolder> tree;
    Basket basket;
    BasketModel model{basket};
};

TEST_F(BasketModelTest, TheLargestStandsFirst)
{
    choose("a:50 b:700 c:300", {"a", "b", "c"});
    ASSERT_EQ(model.rowCount(), 3);
    EXPECT_EQ(text(0, BasketModel::Item), QStringLiteral("b"));
    EXPECT_EQ(text(0, BasketModel::Size), QStringLiteral("700 B"));
    EXPECT_EQ(text(1, BasketModel::Item), QStringLiteral("c"));
    EXPECT_EQ(text(2, BasketModel::Item), QStringLiteral("a"));
}

TEST_F(BasketModelTest, WhatLiesInsideAnotherStandsBelowThatAndSaysSo)
{
    choose("docs/ ( in/ ( a:700 ) b:200 ) c:800", {"docs/in/a", "c", "docs", "docs/in"});
    ASSERT_EQ(model.rowCount(), 4);
    EXPECT_EQ(text(0, BasketModel::Item), QStringLiteral("docs"));
    EXPECT_EQ(model.depth(0), 0);
    EXPECT_EQ(text(1, BasketModel::Item), QStringLiteral("in"));
    EXPECT_EQ(text(1, BasketModel::WillFree), QStringLiteral("inside “docs”"));
    EXPECT_EQ(model.depth(1), 1);
    EXPECT_EQ(text(2, BasketModel::Item), QStringLiteral("a"));
    EXPECT_EQ(text(2, BasketModel::WillFree), QStringLiteral("inside “in”"));
    EXPECT_EQ(model.depth(2), 2);
    EXPECT_EQ(text(3, BasketModel::Item), QStringLiteral("c"));
    EXPECT_EQ(model.depth(3), 0);
}

TEST_F(BasketModelTest, SaysWhatARowFreesOnceItIsWorkedOut)
{
    choose("docs/ ( a:700 b:300 ) c:50", {"docs", "c"});
    EXPECT_EQ(text(0, BasketModel::WillFree), QStringLiteral("…"));
    const QSignalSpy changes(&model, &QAbstractItemModel::dataChanged);
    EXPECT_TRUE(model.isToBeWorkedOut(0));
    model.workOut(0);
    EXPECT_FALSE(model.isToBeWorkedOut(0));
    EXPECT_EQ(text(0, BasketModel::WillFree), QStringLiteral("1 KB"));
    EXPECT_EQ(text(1, BasketModel::WillFree), QStringLiteral("…"));
    ASSERT_EQ(changes.size(), 1);
    EXPECT_EQ(changes.at(0).at(0).toModelIndex(), model.index(0, BasketModel::WillFree));
}

TEST_F(BasketModelTest, ARowIsWorkedOutOnce)
{
    choose("c:50", {"c"});
    model.workOut(0);
    const QSignalSpy changes(&model, &QAbstractItemModel::dataChanged);
    model.workOut(0);
    EXPECT_TRUE(changes.isEmpty());
}

TEST_F(BasketModelTest, WhatLiesInsideAnotherNeedsNoFigure)
{
    choose("docs/ ( a:700 )", {"docs", "docs/a"});
    EXPECT_FALSE(model.isToBeWorkedOut(1));
}

TEST_F(BasketModelTest, ARowIsAboutItsItemAlone)
{
    choose("a:700#5/2 b:0#5/2 c:300", {"a", "b", "c"});
    for (int row = 0; row < 3; ++row) {
        model.workOut(row);
    }
    EXPECT_EQ(text(0, BasketModel::WillFree), QStringLiteral("0 B"));
    EXPECT_EQ(text(1, BasketModel::WillFree), QStringLiteral("300 B"));
    EXPECT_EQ(
        text(0, BasketModel::WillFree, Qt::ToolTipRole),
        QStringLiteral("0 B\n“a” has another name elsewhere, and stays."));
}

TEST_F(BasketModelTest, ShowsNamesOnOneLineAndPathsAsNoMarkup)
{
    choose("x:1", {});
    test::at(*tree, "x").setFragment("<b>a\nb\xFF");
    basket.add(*tree->children()[0]);
    model.setStale();
    model.bringUpToDate();
    EXPECT_EQ(text(0, BasketModel::Item), QStringLiteral("<b>a\u240Ab\uFFFD"));
    const QString tooltip = text(0, BasketModel::Item, Qt::ToolTipRole);
    EXPECT_TRUE(tooltip.contains(QStringLiteral("/home/me/&lt;b&gt;a"))) << tooltip.toStdString();
    EXPECT_EQ(model.path(0), "/home/me/<b>a\nb\xFF");
}

TEST_F(BasketModelTest, TellsScreenReadersWhereAnItemLies)
{
    choose("docs/ ( a:700 )", {"docs", "docs/a"});
    EXPECT_EQ(
        text(1, BasketModel::Item, Qt::AccessibleTextRole), QStringLiteral("a, inside “docs”"));
    EXPECT_EQ(text(0, BasketModel::Item, Qt::AccessibleTextRole), QStringLiteral("docs"));
    EXPECT_EQ(
        text(0, BasketModel::WillFree, Qt::AccessibleTextRole), QStringLiteral("not counted yet"));
}

TEST_F(BasketModelTest, StaleItSaysWhatWasAndTouchesNoNode)
{
    choose("docs/ ( a:700 ) c:50", {"docs", "docs/a", "c"});
    model.workOut(0);
    basket.clear();
    model.setStale();
    tree.reset();
    ASSERT_EQ(model.rowCount(), 3);
    for (int row = 0; row < model.rowCount(); ++row) {
        EXPECT_EQ(model.item(row), nullptr);
        EXPECT_FALSE(model.isToBeWorkedOut(row));
        model.workOut(row);
        EXPECT_FALSE(text(row, BasketModel::Item).isEmpty());
        EXPECT_FALSE(text(row, BasketModel::Item, Qt::ToolTipRole).isEmpty());
    }
    EXPECT_EQ(text(0, BasketModel::WillFree), QStringLiteral("700 B"));
    model.bringUpToDate();
    EXPECT_EQ(model.rowCount(), 0);
}

TEST_F(BasketModelTest, UpToDateItIsNotReset)
{
    choose("a:50", {"a"});
    const QSignalSpy resets(&model, &QAbstractItemModel::modelReset);
    model.bringUpToDate();
    EXPECT_TRUE(resets.isEmpty());
    model.setStale();
    model.bringUpToDate();
    EXPECT_EQ(resets.size(), 1);
}

TEST_F(BasketModelTest, FiguresAreForgottenWithTheTreeTheyWereOf)
{
    choose("docs/ ( a:700 b:300 )", {"docs"});
    model.workOut(0);
    auto& docs = static_cast<Folder&>(test::at(*tree, "docs"));
    (void)docs.removeChild(test::at(docs, "b"));
    model.setStale();
    model.bringUpToDate();
    EXPECT_TRUE(model.isToBeWorkedOut(0));
    model.workOut(0);
    EXPECT_EQ(text(0, BasketModel::WillFree), QStringLiteral("700 B"));
}

} // namespace
} // namespace tessera
