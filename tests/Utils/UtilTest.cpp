// SPDX-License-Identifier: MIT
#include "Utils/Util.h"

#include "TreeView/TooltipWindow.h"

#include <QLabel>

#include <gtest/gtest.h>

namespace tessera {

TEST(UtilTest, loadsTheViewOfAnInterfaceFileByItsName)
{
    const auto view = Util::loadViewFromNib<TooltipWindow>("TreeTooltip");

    ASSERT_NE(view, nullptr);
    EXPECT_NE(view->findChild<QWidget*>(QStringLiteral("fileView")), nullptr);
}

TEST(UtilTest, aViewCountsAsOneOfItsBaseClass)
{
    EXPECT_NE(Util::loadViewFromNib<QWidget>("TreeTooltip"), nullptr);
}

TEST(UtilTest, eachLoadingBuildsAViewOfItsOwn)
{
    const auto one = Util::loadViewFromNib<QWidget>("TreeTooltip");
    const auto other = Util::loadViewFromNib<QWidget>("TreeTooltip");

    EXPECT_NE(one, other);
}

TEST(UtilTest, anInterfaceFileWithoutAViewOfTheClassLoadsNothing)
{
    EXPECT_EQ(Util::loadViewFromNib<QLabel>("TreeTooltip"), nullptr);
}

TEST(UtilTest, anUnknownInterfaceFileLoadsNothing)
{
    EXPECT_EQ(Util::loadViewFromNib<QWidget>("NoSuchFile"), nullptr);
}

TEST(UtilTest, viewsShortenTextsAtTheTail)
{
    EXPECT_EQ(Util::truncatedParagraphStyle(), Qt::ElideRight);
}

} // namespace tessera
