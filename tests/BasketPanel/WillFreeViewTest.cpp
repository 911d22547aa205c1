// SPDX-License-Identifier: MIT
#include "BasketPanel/WillFreeView.h"

#include "Freeing/FreedSpace.h"
#include "HeardAnswers.h"
#include "Model/TopFolder.h"
#include "support/Fakes/FakeFreeingServices.h"
#include "support/MakeTree.h"

#include <QLabel>

#include <gtest/gtest.h>

#include <memory>

namespace tessera {
namespace {

class WillFreeViewTest : public testing::Test {
protected:
    WillFreeViewTest()
    {
        ItemAnswer changed{ItemAnswer::Outcome::Gone, {}};
        freeing.itemStates->setAnswer("/home/me/c", changed);
        QObject::connect(&view, &WillFreeView::answered, &view, [this](const FreedSpace& freed) {
            answers.push_back(freed);
        });
    }

    const File* at(std::string_view path) { return &test::at(*tree, path); }
    QString figure() const { return view.findChildren<QLabel*>().at(0)->text(); }
    const QLabel& reasons() const { return *view.findChildren<QLabel*>().at(1); }

    std::unique_ptr<TopFolder> tree
        = test::makeTree("/home/me", "docs/ ( a:700#5/2 b:300 ) c:50 d:0#5/2");
    test::FakeFreeingServices freeing;
    test::HeardAnswers disk;
    WillFreeView view{freeing.get(), disk.mainThread(), std::chrono::minutes(1)};
    std::vector<FreedSpace> answers;
};

TEST_F(WillFreeViewTest, SaysAtOnceWhatTheScanKnowsAndWhy)
{
    view.setItems({at("docs")});
    EXPECT_EQ(figure(), QStringLiteral("Will free: 300 B, once the trash is emptied"));
    EXPECT_EQ(
        reasons().accessibleName(), QStringLiteral("“a” has another name elsewhere, and stays."));
    EXPECT_EQ(view.accessibleName(), figure());
    EXPECT_EQ(view.accessibleDescription(), reasons().accessibleName());
    EXPECT_TRUE(answers.empty());
}

TEST_F(WillFreeViewTest, WithoutReasonsTheirLineIsHidden)
{
    view.setItems({at("docs")});
    EXPECT_FALSE(reasons().isHidden());
    view.setItems({at("docs/b")});
    EXPECT_TRUE(reasons().isHidden());
}

TEST_F(WillFreeViewTest, ANameWithoutSpacesDoesNotMakeItWide)
{
    test::at(*tree, "docs/a").setFragment(std::string(200, 'M'));
    view.setItems({at("docs")});
    EXPECT_LE(reasons().minimumSizeHint().width(), 208);
    view.resize(208, 400);
    view.show();
    EXPECT_GE(reasons().height(), 5 * reasons().fontMetrics().lineSpacing());
    EXPECT_TRUE(reasons().accessibleName().contains(QString(200, QLatin1Char('M'))));
}

TEST_F(WillFreeViewTest, WithoutItemsItIsHidden)
{
    EXPECT_TRUE(view.isHidden());
    view.setItems({at("docs")});
    EXPECT_FALSE(view.isHidden());
    view.setItems({});
    EXPECT_TRUE(view.isHidden());
    EXPECT_TRUE(view.accessibleName().isEmpty());
}

TEST_F(WillFreeViewTest, SaysWhatTheDiskSaysOnceItIsStill)
{
    view.setItems({at("c")});
    ASSERT_TRUE(disk.hearNext());
    EXPECT_EQ(reasons().text(), QStringLiteral("“c” has changed since the scan."));
    ASSERT_EQ(answers.size(), 1U);
    EXPECT_EQ(figure(), QStringLiteral("Will free: 0 B to 50 B, once the trash is emptied"));
}

TEST_F(WillFreeViewTest, ManyItemsInARowAreOneQuestion)
{
    for (int i = 0; i < 20; ++i) {
        view.setItems({at(i % 2 == 0 ? "docs" : "c")});
    }
    ASSERT_TRUE(disk.hearNext());
    EXPECT_EQ(answers.size(), 1U);
    EXPECT_TRUE(disk.isQuiet());
}

TEST_F(WillFreeViewTest, AskedForItAsksAtOnceAndAgain)
{
    view.setItems({at("docs/b")});
    view.askNow();
    ASSERT_TRUE(disk.hearNext());
    view.askNow();
    ASSERT_TRUE(disk.hearNext());
    EXPECT_EQ(answers.size(), 2U);
}

TEST_F(WillFreeViewTest, AfterItForgotNothingIsAskedAndNothingTouched)
{
    view.setItems({at("docs")});
    const QString before = figure();
    view.forget();
    tree.reset();
    view.askNow();
    EXPECT_TRUE(disk.isQuiet());
    EXPECT_EQ(figure(), before);
}

TEST_F(WillFreeViewTest, AnAnswerAboutItemsThatAreGoneIsNotHeard)
{
    view.setItems({at("docs"), at("c")});
    view.askNow();
    ASSERT_TRUE(disk.awaitNext());
    view.forget();
    tree.reset();
    ASSERT_TRUE(disk.hear());
    EXPECT_TRUE(answers.empty());
}

TEST_F(WillFreeViewTest, AnAnswerMayComeWhenTheTreeIsGone)
{
    view.setItems({at("docs"), at("c")});
    view.askNow();
    ASSERT_TRUE(disk.awaitNext());
    tree.reset();
    ASSERT_TRUE(disk.hear());
    EXPECT_EQ(answers.size(), 1U);
}

} // namespace
} // namespace tessera
