// SPDX-License-Identifier: MIT
#include "MainWindow/WindowFrame.h"

#include "support/Fakes/FakeUserDefaults.h"

#include <QMainWindow>
#include <QScreen>

#include <gtest/gtest.h>

namespace tessera {
namespace {

TEST(PlaceOnScreen, IsTheWantedOneWhereThatFits)
{
    EXPECT_EQ(placeOnScreen({100, 80, 1080, 720}, {0, 0, 1920, 1200}), QRect(100, 80, 1080, 720));
}

TEST(PlaceOnScreen, IsAsLargeAsAScaledScreenAllows)
{
    // A laptop of 1920 × 1080 pixels at one and a half, and a screen of 1600 × 1000 at two.
    EXPECT_EQ(placeOnScreen({0, 0, 1080, 720}, {0, 0, 1280, 720}), QRect(4, 40, 1080, 676));
    EXPECT_EQ(placeOnScreen({0, 0, 1080, 720}, {0, 0, 800, 500}), QRect(4, 40, 792, 456));
}

TEST(PlaceOnScreen, MovesBackWhatReachesOverAnEdge)
{
    const QRect available(0, 30, 1600, 970);
    EXPECT_EQ(placeOnScreen({900, 600, 800, 600}, available), QRect(796, 396, 800, 600));
    EXPECT_EQ(placeOnScreen({-300, -20, 800, 600}, available), QRect(4, 70, 800, 600));
}

TEST(PlaceOnScreen, LeavesAloneWhatTouchesTheEdges)
{
    EXPECT_EQ(placeOnScreen({4, 40, 792, 456}, {0, 0, 800, 500}), QRect(4, 40, 792, 456));
}

TEST(PlaceOnScreen, StaysOnAScreenBesideTheFirst)
{
    EXPECT_EQ(
        placeOnScreen({1500, 100, 900, 600}, {1600, 0, 1280, 1024}), QRect(1604, 100, 900, 600));
}

TEST(RestoreFrame, OnAScreenSmallerThanTheLeastWindowThatGivesWay)
{
    QMainWindow window;
    window.setMinimumSize(9000, 8000);
    restoreFrame(window, test::FakeUserDefaults());
    const QSize available = window.screen()->availableSize();
    EXPECT_EQ(window.size(), available - QSize(8, 44));
}

TEST(RestoreFrame, TheFirstWindowIsPlacedByTheDesktop)
{
    QMainWindow window;
    restoreFrame(window, test::FakeUserDefaults());
    EXPECT_FALSE(window.testAttribute(Qt::WA_Moved));
}

} // namespace
} // namespace tessera
