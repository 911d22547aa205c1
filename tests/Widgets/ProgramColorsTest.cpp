// SPDX-License-Identifier: MIT
#include "Widgets/ProgramColors.h"

#include "HomeScreen/Parts/HomeColors.h"
#include "Widgets/ColorHelper.h"
#include "support/Contrast.h"

#include <gtest/gtest.h>

#include <array>

namespace tessera {
namespace {

using test::contrast;
using test::kLegible;

class ProgramColorsTest : public testing::TestWithParam<QPalette (*)()> {
protected:
    const QPalette palette = GetParam()();
    const HomeColors home{palette};
};

INSTANTIATE_TEST_SUITE_P(
    BothSchemes,
    ProgramColorsTest,
    testing::Values(&lightProgramColors, &darkProgramColors),
    [](const auto& scheme) { return scheme.index == 0 ? "light" : "dark"; });

TEST_P(ProgramColorsTest, SelectedTextIsLegibleOnAnyAccent)
{
    constexpr int kStep = 15;
    for (int red = 0; red <= 255; red += kStep) {
        for (int green = 0; green <= 255; green += kStep) {
            for (int blue = 0; blue <= 255; blue += kStep) {
                const QColor accent(red, green, blue);
                const QPalette colors = withAccent(palette, accent);
                ASSERT_GE(contrast(colors.color(QPalette::HighlightedText), accent), kLegible)
                    << accent.name().toStdString();
            }
        }
    }
}

TEST_P(ProgramColorsTest, AnAccentLeavesWhatCannotBeUsedAsItIs)
{
    const QPalette colors = withAccent(palette, Qt::red);
    for (const auto role : {QPalette::Highlight, QPalette::HighlightedText}) {
        EXPECT_EQ(colors.color(QPalette::Disabled, role), palette.color(QPalette::Disabled, role));
    }
}

TEST_P(ProgramColorsTest, TextsAreLegible)
{
    struct Pair {
        QPalette::ColorRole text;
        QPalette::ColorRole ground;
    };
    constexpr std::array kPairs{
        Pair{QPalette::WindowText, QPalette::Window},
        Pair{QPalette::PlaceholderText, QPalette::Window},
        Pair{QPalette::PlaceholderText, QPalette::Base},
        Pair{QPalette::Text, QPalette::Base},
        Pair{QPalette::Text, QPalette::AlternateBase},
        Pair{QPalette::Text, QPalette::Mid},
        Pair{QPalette::ButtonText, QPalette::Button},
        Pair{QPalette::HighlightedText, QPalette::Highlight},
        Pair{QPalette::Link, QPalette::Window},
        Pair{QPalette::Link, QPalette::Base},
        Pair{QPalette::LinkVisited, QPalette::Base},
        Pair{QPalette::ToolTipText, QPalette::ToolTipBase}};
    for (const Pair& pair : kPairs) {
        for (const auto group : {QPalette::Active, QPalette::Inactive}) {
            EXPECT_GE(
                contrast(palette.color(group, pair.text), palette.color(group, pair.ground)),
                kLegible)
                << pair.text << " on " << pair.ground;
        }
    }
}

TEST_P(ProgramColorsTest, DisabledTextsCanBeSeen)
{
    constexpr double kVisible = 3.0;
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
        EXPECT_GE(
            contrast(
                palette.color(QPalette::Disabled, role),
                palette.color(QPalette::Disabled, QPalette::Window)),
            kVisible)
            << role;
    }
}

TEST_P(ProgramColorsTest, TextsOfTheHomeScreenAreLegible)
{
    const QColor base = palette.color(QPalette::Base);
    EXPECT_GE(contrast(home.name, base), kLegible);
    EXPECT_GE(contrast(home.detail, base), kLegible);
    EXPECT_GE(contrast(home.faint, base), kLegible);
    EXPECT_GE(contrast(home.inactiveName, home.inactiveSelection), kLegible);
    EXPECT_GE(contrast(home.inactiveDetail, home.inactiveSelection), kLegible);
    const QColor windowText = palette.color(QPalette::WindowText);
    EXPECT_GE(contrast(windowText, home.panelTop), kLegible);
    EXPECT_GE(contrast(windowText, home.panelBottom), kLegible);
    EXPECT_GE(contrast(windowText, home.buttonTop), kLegible);
}

TEST(ProgramColors, TheSelectionOfADarkHomeScreenIsLegible)
{
    const HomeColors home(darkProgramColors());
    EXPECT_GE(contrast(home.selectedName, home.selection), kLegible);
    EXPECT_GE(contrast(home.selectedDetail, home.selection), kLegible);
}

TEST(ProgramColors, AreLightOrDark)
{
    EXPECT_FALSE(isDark(lightProgramColors()));
    EXPECT_TRUE(isDark(darkProgramColors()));
}

} // namespace
} // namespace tessera
