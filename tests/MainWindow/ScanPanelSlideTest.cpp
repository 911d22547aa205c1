// SPDX-License-Identifier: MIT
#include "MainWindow/ScanPanelSlide.h"

#include "support/Fakes/FakeTreeViewServices.h"

#include <QSignalSpy>

#include <gtest/gtest.h>

namespace tessera {
namespace {

class ScanPanelSlideTest : public testing::Test {
protected:
    void advanceTo(double seconds)
    {
        now = 100 + seconds;
        slide.advance();
    }

    void slideInWholly()
    {
        slide.slideIn();
        advanceTo(0.5);
        now = 100;
    }

    double now = 100;
    test::FakeMotionPreference motion;
    ScanPanelSlide slide{motion, [this] { return now; }};
    QSignalSpy moved{&slide, &ScanPanelSlide::moved};
    QSignalSpy cleanUpDue{&slide, &ScanPanelSlide::cleanUpDue};
};

TEST_F(ScanPanelSlideTest, SlidesInWithinHalfASecond)
{
    slide.slideIn();
    EXPECT_EQ(slide.place(), ScanPanelPlace::before());
    advanceTo(0.25);
    EXPECT_DOUBLE_EQ(slide.place().panelTop, 115);
    EXPECT_DOUBLE_EQ(slide.place().homeBottom, 87);
    advanceTo(0.5);
    EXPECT_EQ(slide.place(), ScanPanelPlace::slidIn());
}

TEST_F(ScanPanelSlideTest, BeginsAndEndsSlowly)
{
    slide.slideIn();
    advanceTo(0.05);
    EXPECT_LT(slide.place().panelTop, 23);
    EXPECT_GT(slide.place().panelTop, 0);
    advanceTo(0.45);
    EXPECT_GT(slide.place().panelTop, 207);
}

TEST_F(ScanPanelSlideTest, AfterSlidingInThereIsNothingToCleanUp)
{
    slideInWholly();
    advanceTo(1);
    EXPECT_EQ(cleanUpDue.size(), 0);
}

TEST_F(ScanPanelSlideTest, SlidesOutInHalfASecondAndAsksForTheCleanUpAfter55Hundredths)
{
    slideInWholly();
    slide.slideOut();
    advanceTo(0.5);
    EXPECT_EQ(slide.place(), ScanPanelPlace::before());
    EXPECT_EQ(cleanUpDue.size(), 0);
    advanceTo(0.546875);
    EXPECT_EQ(cleanUpDue.size(), 0);
    advanceTo(0.5625);
    EXPECT_EQ(cleanUpDue.size(), 1);
}

TEST_F(ScanPanelSlideTest, AsksForTheCleanUpOnce)
{
    slideInWholly();
    slide.slideOut();
    advanceTo(1);
    advanceTo(2);
    EXPECT_EQ(cleanUpDue.size(), 1);
}

TEST_F(ScanPanelSlideTest, SlidingInAgainMeanwhileBeginsWherePanelAndHomeAreAndCancelsTheCleanUp)
{
    slideInWholly();
    slide.slideOut();
    advanceTo(0.25);
    slide.slideIn();
    EXPECT_DOUBLE_EQ(slide.place().panelTop, 115);
    advanceTo(0.75);
    EXPECT_EQ(slide.place(), ScanPanelPlace::slidIn());
    advanceTo(2);
    EXPECT_EQ(cleanUpDue.size(), 0);
}

TEST_F(ScanPanelSlideTest, AResetStopsItWithoutAWord)
{
    slideInWholly();
    slide.slideOut();
    moved.clear();
    slide.reset();
    advanceTo(2);
    EXPECT_EQ(slide.place(), ScanPanelPlace::before());
    EXPECT_EQ(moved.size(), 0);
    EXPECT_EQ(cleanUpDue.size(), 0);
}

TEST_F(ScanPanelSlideTest, WithReducedMotionThePanelIsThereAtOnce)
{
    motion.reduced = true;
    slide.slideIn();
    EXPECT_EQ(slide.place(), ScanPanelPlace::slidIn());
    EXPECT_EQ(moved.size(), 1);
}

TEST_F(ScanPanelSlideTest, WithReducedMotionTheCleanUpFollowsFromTheEventLoop)
{
    motion.reduced = true;
    slide.slideIn();
    slide.slideOut();
    EXPECT_EQ(slide.place(), ScanPanelPlace::before());
    EXPECT_EQ(cleanUpDue.size(), 0);
    EXPECT_TRUE(cleanUpDue.wait());
}

} // namespace
} // namespace tessera
