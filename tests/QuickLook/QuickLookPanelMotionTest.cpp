// SPDX-License-Identifier: MIT
#include "QuickLook/PanelFixture.h"

#include <QPlainTextEdit>

namespace tessera {

namespace {

const QRectF kItem(150, 120, 40, 30);

class QuickLookPanelMotionTest : public test::PanelTest {
protected:
    QuickLookPanelMotionTest() { screen.frame = kItem; }

    void advanceTo(double seconds)
    {
        now = seconds;
        panel.animation().advance();
    }
};

} // namespace

TEST_F(QuickLookPanelMotionTest, GrowsOutOfTheItem)
{
    open("docs");
    EXPECT_EQ(panel.geometry(), kItem.toRect());

    advanceTo(0.1);
    const QRect onItsWay = panel.geometry();
    advanceTo(0.3);

    EXPECT_GT(onItsWay.width(), kItem.width());
    EXPECT_LT(onItsWay.width(), panel.width());
    EXPECT_FALSE(panel.animation().isRunning());
    EXPECT_EQ(panel.geometry().center(), window.frameGeometry().center());
}

TEST_F(QuickLookPanelMotionTest, ShrinksBackIntoTheItem)
{
    open("docs");
    advanceTo(0.3);

    QTest::keyClick(&panel, Qt::Key_Escape);
    EXPECT_FALSE(panel.isOpen());
    EXPECT_TRUE(panel.isVisible());
    advanceTo(0.45);
    EXPECT_LT(panel.width(), 200);
    advanceTo(0.6);

    EXPECT_FALSE(panel.isVisible());
}

TEST_F(QuickLookPanelMotionTest, IsThereAtOnceWhenTheDesktopWantsNoMotion)
{
    motion.reduced = true;

    open("docs");
    EXPECT_FALSE(panel.animation().isRunning());
    EXPECT_GT(panel.width(), 400);
    panel.dismiss();

    EXPECT_FALSE(panel.isVisible());
}

TEST_F(QuickLookPanelMotionTest, IsThereAtOnceWhenTheItemIsNowhereToBeSeen)
{
    screen.frame = {};

    open("docs");

    EXPECT_FALSE(panel.animation().isRunning());
    EXPECT_GT(panel.width(), 400);
}

TEST_F(QuickLookPanelMotionTest, ContentThatArrivesOnTheWayIsGrownTo)
{
    constexpr int kSummaryWidth = 462;
    open("a.txt");
    files->waitUntilAsked("/home/anna/a.txt");
    ASSERT_TRUE(QTest::qWaitFor(
        [this] {
            const auto* const text = panel.findChild<QPlainTextEdit*>();
            return text->toPlainText() == QStringLiteral("text of a");
        },
        60000));
    ASSERT_TRUE(panel.animation().isRunning());

    advanceTo(0.3);

    EXPECT_GT(panel.width(), kSummaryWidth);
    EXPECT_NE(visibleChild<QPlainTextEdit>(), nullptr);
}

TEST_F(QuickLookPanelMotionTest, SpaceOnTheWayBackOpensItAgain)
{
    open("docs");
    advanceTo(0.3);
    QTest::keyClick(&panel, Qt::Key_Space);
    advanceTo(0.35);

    QTest::keyClick(&panel, Qt::Key_Space);
    EXPECT_TRUE(panel.isOpen());
    advanceTo(0.6);

    EXPECT_TRUE(panel.isVisible());
    EXPECT_GT(panel.width(), 400);
}

TEST_F(QuickLookPanelMotionTest, ClosingOnTheWayInGoesBackFromThere)
{
    open("docs");
    advanceTo(0.05);
    const QRect onItsWay = panel.geometry();

    panel.dismiss();
    EXPECT_EQ(panel.geometry(), onItsWay);
    advanceTo(0.3);

    EXPECT_FALSE(panel.isVisible());
}

TEST_F(QuickLookPanelMotionTest, ShrinksIntoTheItemWhereThatIsByThen)
{
    open("docs");
    advanceTo(0.3);
    screen.frame.moveTo(300, 200);

    panel.dismiss();
    advanceTo(0.499);

    EXPECT_EQ(screen.frameQuestions, 2);
    EXPECT_EQ(panel.geometry().center(), screen.frame.toRect().center());
}

TEST_F(QuickLookPanelMotionTest, EndsWhenTheMainWindowIsHidden)
{
    open("docs");
    advanceTo(0.1);

    window.hide();

    EXPECT_FALSE(panel.isVisible());
    EXPECT_FALSE(panel.animation().isRunning());
}

} // namespace tessera
