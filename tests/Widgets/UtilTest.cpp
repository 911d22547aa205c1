// SPDX-License-Identifier: MIT
#include "Widgets/Util.h"

#include "TreeScreen/Tooltip/TooltipWindow.h"

#include <QLabel>

#include <gtest/gtest.h>

namespace tessera {

TEST(Util, LoadsTheViewOfAnInterfaceFileByItsName)
{
    const auto view = Util::loadViewFromNib<TooltipWindow>("TreeTooltip");

    ASSERT_NE(view, nullptr);
    EXPECT_NE(view->findChild<QWidget*>(QStringLiteral("fileView")), nullptr);
}

TEST(Util, AViewCountsAsOneOfItsBaseClass)
{
    EXPECT_NE(Util::loadViewFromNib<QWidget>("TreeTooltip"), nullptr);
}

TEST(Util, EachLoadingBuildsAViewOfItsOwn)
{
    const auto one = Util::loadViewFromNib<QWidget>("TreeTooltip");
    const auto other = Util::loadViewFromNib<QWidget>("TreeTooltip");

    EXPECT_NE(one, other);
}

TEST(Util, AnInterfaceFileWithoutAViewOfTheClassLoadsNothing)
{
    EXPECT_EQ(Util::loadViewFromNib<QLabel>("TreeTooltip"), nullptr);
}

TEST(Util, AnUnknownInterfaceFileLoadsNothing)
{
    EXPECT_EQ(Util::loadViewFromNib<QWidget>("NoSuchFile"), nullptr);
}

} // namespace tessera
