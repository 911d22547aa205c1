// SPDX-License-Identifier: MIT
#include "SectionedCollectionViewFixture.h"

#include <gmock/gmock.h>

namespace tessera {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class SectionedCollectionViewKeysTest : public test::SectionedCollectionViewFixture { };

TEST_F(SectionedCollectionViewKeysTest, TheFirstArrowKeySelectsTheFirstItem)
{
    show({{2, 200, 400}}, 450);
    QTest::keyClick(&view, Qt::Key_Down);
    EXPECT_THAT(told, ElementsAre("select 0.0"));
}

TEST_F(SectionedCollectionViewKeysTest, LeftAndRightGoThroughAllSections)
{
    show({{1, 200, 400}, {1, 100, 200}}, 450);
    click(1);
    QTest::keyClick(&view, Qt::Key_Right);
    EXPECT_EQ(selection(), "selected 1.0");
    QTest::keyClick(&view, Qt::Key_Right);
    EXPECT_EQ(selection(), "selected 1.0");
    QTest::keyClick(&view, Qt::Key_Left);
    EXPECT_EQ(selection(), "selected 0.0");
    QTest::keyClick(&view, Qt::Key_Left);
    EXPECT_EQ(selection(), "selected 0.0");
}

TEST_F(SectionedCollectionViewKeysTest, UpAndDownGoToTheNextRowsNearestItem)
{
    show({{5, 200, 200}, {4, 100, 100}}, 450);
    click(2);
    QTest::keyClick(&view, Qt::Key_Down);
    EXPECT_EQ(selection(), "selected 0.3");
    QTest::keyClick(&view, Qt::Key_Down);
    EXPECT_EQ(selection(), "selected 0.4");
    QTest::keyClick(&view, Qt::Key_Down);
    EXPECT_EQ(selection(), "selected 1.0");
    QTest::keyClick(&view, Qt::Key_Up);
    EXPECT_EQ(selection(), "selected 0.4");
}

TEST_F(SectionedCollectionViewKeysTest, HomeAndEndGoToTheFirstAndTheLast)
{
    show({{2, 200, 400}, {2, 100, 200}}, 450);
    QTest::keyClick(&view, Qt::Key_End);
    QTest::keyClick(&view, Qt::Key_End);
    EXPECT_EQ(selection(), "selected 1.1");
    QTest::keyClick(&view, Qt::Key_Home);
    EXPECT_EQ(selection(), "selected 0.0");
}

TEST_F(SectionedCollectionViewKeysTest, KeysPassOverUnavailableItems)
{
    show({{3, 100, 100}}, 450);
    click(1);
    item(2).isUnavailable = true;
    QTest::keyClick(&view, Qt::Key_Right);
    EXPECT_EQ(selection(), "selected 0.2");
}

TEST_F(SectionedCollectionViewKeysTest, WhileNotInteractiveKeysChangeNothing)
{
    show({{2, 200, 400}}, 450);
    view.setInteractive(false);
    QTest::keyClick(&view, Qt::Key_Down);
    EXPECT_THAT(told, IsEmpty());
}

TEST_F(SectionedCollectionViewKeysTest, TabMarksTheItemThatAKeyWouldSelect)
{
    show({{2, 200, 400}}, 450);
    focus(Qt::TabFocusReason);
    EXPECT_TRUE(item(1).isNextForKeys());
    EXPECT_EQ(view.selectedView(), nullptr);
    QTest::keyClick(&view, Qt::Key_Right);
    EXPECT_FALSE(item(1).isNextForKeys());
    EXPECT_EQ(view.selectedView(), &item(1));
}

TEST_F(SectionedCollectionViewKeysTest, NothingIsMarkedOnceTheKeyboardIsElsewhere)
{
    show({{2, 200, 400}}, 450);
    focus(Qt::TabFocusReason);
    ASSERT_TRUE(item(1).isNextForKeys());
    view.clearFocus();
    EXPECT_FALSE(item(1).isNextForKeys());
}

TEST_F(SectionedCollectionViewKeysTest, AClickMarksNothing)
{
    show({{2, 200, 400}}, 450);
    focus(Qt::MouseFocusReason);
    EXPECT_FALSE(item(1).isNextForKeys());
}

TEST_F(SectionedCollectionViewKeysTest, BesideASelectionNothingIsMarked)
{
    show({{2, 200, 400}}, 450);
    view.selectItem(0, 1);
    focus(Qt::TabFocusReason);
    EXPECT_FALSE(item(1).isNextForKeys());
}

TEST_F(SectionedCollectionViewKeysTest, AMarkedItemMayGo)
{
    show({{2, 200, 400}}, 450);
    focus(Qt::TabFocusReason);
    view.setSections(test::made({{2, 200, 400}}));
    QTest::keyClick(&view, Qt::Key_Right);
    EXPECT_EQ(view.selectedView(), &item(1));
}

} // namespace
} // namespace tessera
