// SPDX-License-Identifier: MIT
#include "HomeScreen/HomeViewController.h"
#include "HomeScreen/Parts/GreetingView.h"
#include "HomeScreen/Recents/RecentsTableView.h"
#include "HomeViewControllerFixture.h"
#include "support/BecomesActive.h"

#include <QApplication>
#include <QLabel>
#include <QPushButton>

namespace tessera {
namespace {

class HomeViewControllerGreetingTest : public test::HomeViewControllerFixture {
protected:
    HomeViewControllerGreetingTest() { modelServices.defaults.setBoolean(kGreetedKey, false); }

    /// Null when there is none in sight.
    GreetingView* greeting() const
    {
        auto* const view = home->view().findChild<GreetingView*>();
        return view != nullptr && view->isVisible() ? view : nullptr;
    }

    bool isGreeted() const { return modelServices.defaults.boolean(kGreetedKey); }

    /// What all labels of the widget say.
    static QString textsOf(const QWidget& widget)
    {
        QStringList texts;
        for (const QLabel* const label : widget.findChildren<QLabel*>()) {
            texts.append(label->isVisible() ? label->text() : QString());
        }
        return texts.join(QLatin1Char('|'));
    }
};

TEST_F(HomeViewControllerGreetingTest, TheFirstStartSaysWhatToDoNext)
{
    show();
    ASSERT_NE(greeting(), nullptr);
    EXPECT_TRUE(textsOf(*greeting()).contains(QStringLiteral("Welcome to Tessera")));
    EXPECT_TRUE(textsOf(*greeting()).contains(QStringLiteral("press Scan")));
}

TEST_F(HomeViewControllerGreetingTest, TheSecondStartDoesNot)
{
    show();
    EXPECT_TRUE(isGreeted());
    show();
    EXPECT_EQ(greeting(), nullptr);
}

TEST_F(HomeViewControllerGreetingTest, WhatNobodyHasSeenIsSaidTheNextTime)
{
    model = std::make_unique<RootModel>(modelServices.get());
    const HomeViewController unseen(
        *model,
        {.volumes = volumes,
         .standardFolders = modelServices.folders,
         .account = account,
         .defaults = modelServices.defaults,
         .homeDirectory = homeDirectory,
         .fileSystemAttributes = attributes,
         .resourceValues = resourceValues});
    EXPECT_FALSE(isGreeted());
}

TEST_F(HomeViewControllerGreetingTest, ItsButtonEndsIt)
{
    show();
    QTest::mouseClick(&greeting()->button(), Qt::LeftButton);
    EXPECT_EQ(greeting(), nullptr);
}

TEST_F(HomeViewControllerGreetingTest, EscapeEndsItWhereverTheKeyboardIs)
{
    show();
    QTest::keyClick(&table(), Qt::Key_Escape);
    EXPECT_EQ(greeting(), nullptr);
    modelServices.defaults.setBoolean(kGreetedKey, false);
    show();
    QTest::keyClick(&grid(), Qt::Key_Escape);
    EXPECT_EQ(greeting(), nullptr);
}

TEST_F(HomeViewControllerGreetingTest, ItsButtonHandsTheKeyboardOn)
{
    show();
    ASSERT_TRUE(test::becomesActive(home->view()));
    greeting()->button().setFocus();
    QTest::keyClick(&greeting()->button(), Qt::Key_Return);
    EXPECT_EQ(greeting(), nullptr);
    EXPECT_TRUE(table().hasFocus());
}

TEST_F(HomeViewControllerGreetingTest, AScanEndsItForGood)
{
    show();
    home->setEnabled(false);
    EXPECT_EQ(greeting(), nullptr);
    home->setEnabled(true);
    EXPECT_EQ(greeting(), nullptr);
    EXPECT_TRUE(isGreeted());
}

TEST_F(HomeViewControllerGreetingTest, ItCoversNothing)
{
    show();
    const QRect frame(greeting()->mapTo(&home->view(), QPoint()), greeting()->size());
    for (const QWidget* const other :
         std::initializer_list<const QWidget*>{&grid(), &table(), &home->scanButton()}) {
        const QRect there(other->mapTo(&home->view(), QPoint()), other->size());
        EXPECT_FALSE(there.intersects(frame)) << other->objectName().toStdString();
    }
}

TEST_F(HomeViewControllerGreetingTest, ItTakesNoRoomFromTheGrid)
{
    show();
    EXPECT_EQ(home->scanButton().parentWidget()->height(), 56);
}

TEST_F(HomeViewControllerGreetingTest, ItFitsIntoTheSmallestWindow)
{
    show();
    home->view().resize(760, 420);
    QCoreApplication::processEvents();
    for (const QLabel* const label : greeting()->findChildren<QLabel*>()) {
        EXPECT_GE(label->height(), label->heightForWidth(label->width()));
    }
    EXPECT_TRUE(home->view().rect().contains(
        QRect(greeting()->mapTo(&home->view(), QPoint()), greeting()->size())));
}

TEST_F(HomeViewControllerGreetingTest, MirroredItStandsAtTheOtherSideOfTheButton)
{
    show();
    EXPECT_LT(greeting()->x(), home->scanButton().x());
    home->view().setLayoutDirection(Qt::RightToLeft);
    QCoreApplication::processEvents();
    EXPECT_GT(greeting()->x(), home->scanButton().x());
}

TEST_F(HomeViewControllerGreetingTest, EmptySectionsSayWhatWouldBeThere)
{
    volumes.list.clear();
    resourceValues->directories.clear();
    show();
    EXPECT_TRUE(textsOf(grid()).contains(QStringLiteral("Disks appear here")));
    EXPECT_TRUE(textsOf(grid()).contains(QStringLiteral("Your folders")));
}

TEST_F(HomeViewControllerGreetingTest, SectionsWithItemsSayNothingOfTheKind)
{
    show();
    EXPECT_FALSE(textsOf(grid()).contains(QStringLiteral("appear here")));
}

TEST_F(HomeViewControllerGreetingTest, TheAdministratorIsToldWhyThereAreNoLocations)
{
    isRunningAsRoot = true;
    show();
    EXPECT_TRUE(textsOf(grid()).contains(QStringLiteral("administrator")));
}

TEST_F(HomeViewControllerGreetingTest, AnEmptyListOfScansSaysWhatComesThere)
{
    modelServices.defaults.setRecentRecords(kRecentsKey, {});
    show();
    EXPECT_EQ(table().accessibleDescription(), RecentsTableView::placeholder());
    home->reload();
    addRecent("/home/eve/one");
    home->reload();
    EXPECT_EQ(table().accessibleDescription(), QString());
}

TEST_F(HomeViewControllerGreetingTest, ButtonsWithNothingToDoSayWhy)
{
    modelServices.defaults.setRecentRecords(kRecentsKey, {});
    show();
    ASSERT_FALSE(home->scanButton().isEnabled());
    EXPECT_TRUE(home->scanButton().toolTip().startsWith(QStringLiteral("Select a disk")));
    EXPECT_EQ(home->clearRecentsButton().toolTip(), QStringLiteral("There are no recent scans."));
    click(1);
    EXPECT_EQ(home->scanButton().toolTip(), QStringLiteral("Scan what is selected"));
}

} // namespace
} // namespace tessera
