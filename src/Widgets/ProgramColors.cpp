// SPDX-License-Identifier: MIT
#include "Widgets/ProgramColors.h"

#include "Widgets/ColorHelper.h"

#include <array>
#include <cmath>
#include <cstdint>
#include <span>

namespace tessera {

namespace {

struct RoleColor {
    QPalette::ColorRole role;
    std::uint32_t hex;
};

constexpr std::array kLight{
    RoleColor{QPalette::Window, 0xEFEFEF},      RoleColor{QPalette::WindowText, 0x000000},
    RoleColor{QPalette::Base, 0xFFFFFF},        RoleColor{QPalette::AlternateBase, 0xF7F7F7},
    RoleColor{QPalette::Text, 0x000000},        RoleColor{QPalette::PlaceholderText, 0x666666},
    RoleColor{QPalette::Button, 0xEFEFEF},      RoleColor{QPalette::ButtonText, 0x000000},
    RoleColor{QPalette::BrightText, 0xFFFFFF},  RoleColor{QPalette::Light, 0xFFFFFF},
    RoleColor{QPalette::Midlight, 0xCBCBCB},    RoleColor{QPalette::Mid, 0xB8B8B8},
    RoleColor{QPalette::Dark, 0x9F9F9F},        RoleColor{QPalette::Shadow, 0x767676},
    RoleColor{QPalette::Highlight, 0x2F6FD0},   RoleColor{QPalette::HighlightedText, 0xFFFFFF},
    RoleColor{QPalette::Link, 0x0B57C4},        RoleColor{QPalette::LinkVisited, 0x7A3FB0},
    RoleColor{QPalette::ToolTipBase, 0xFFFFDC}, RoleColor{QPalette::ToolTipText, 0x000000}};

constexpr std::array kLightDisabled{
    RoleColor{QPalette::WindowText, 0x8A8A8A},
    RoleColor{QPalette::Base, 0xEFEFEF},
    RoleColor{QPalette::Text, 0x8A8A8A},
    RoleColor{QPalette::PlaceholderText, 0x8A8A8A},
    RoleColor{QPalette::ButtonText, 0x8A8A8A},
    RoleColor{QPalette::Highlight, 0xD4D4D4},
    RoleColor{QPalette::HighlightedText, 0x555555}};

constexpr std::array kDark{
    RoleColor{QPalette::Window, 0x303034},      RoleColor{QPalette::WindowText, 0xF2F2F2},
    RoleColor{QPalette::Base, 0x1E1E22},        RoleColor{QPalette::AlternateBase, 0x27272B},
    RoleColor{QPalette::Text, 0xF2F2F2},        RoleColor{QPalette::PlaceholderText, 0xA8A8AE},
    RoleColor{QPalette::Button, 0x3E3E44},      RoleColor{QPalette::ButtonText, 0xF2F2F2},
    RoleColor{QPalette::BrightText, 0xFFFFFF},  RoleColor{QPalette::Light, 0x5A5A60},
    RoleColor{QPalette::Midlight, 0x4A4A50},    RoleColor{QPalette::Mid, 0x26262A},
    RoleColor{QPalette::Dark, 0x1A1A1E},        RoleColor{QPalette::Shadow, 0x0E0E10},
    RoleColor{QPalette::Highlight, 0x2F6FD0},   RoleColor{QPalette::HighlightedText, 0xFFFFFF},
    RoleColor{QPalette::Link, 0x84B4F8},        RoleColor{QPalette::LinkVisited, 0xC0A4F4},
    RoleColor{QPalette::ToolTipBase, 0x3C3C42}, RoleColor{QPalette::ToolTipText, 0xF2F2F2}};

constexpr std::array kDarkDisabled{
    RoleColor{QPalette::WindowText, 0x85858B},
    RoleColor{QPalette::Base, 0x303034},
    RoleColor{QPalette::Text, 0x85858B},
    RoleColor{QPalette::PlaceholderText, 0x85858B},
    RoleColor{QPalette::ButtonText, 0x85858B},
    RoleColor{QPalette::Highlight, 0x50525A},
    RoleColor{QPalette::HighlightedText, 0xC3C7D1}};

/// How bright light of those parts is, from 0 to 1:
/// https://www.w3.org/TR/WCAG21/#dfn-relative-luminance
double luminance(const QColor& color)
{
    const auto linear = [](double part) {
        return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF())
        + 0.0722 * linear(color.blueF());
}

/// Black and white have the same contrast to what is as bright as this.
QColor readableOn(const QColor& ground)
{
    constexpr double kSameContrast = 0.179;
    return luminance(ground) > kSameContrast ? Qt::black : Qt::white;
}

QPalette paletteOf(std::span<const RoleColor> usual, std::span<const RoleColor> disabled)
{
    QPalette palette;
    for (const RoleColor& color : usual) {
        palette.setColor(color.role, colorWithHex(color.hex));
    }
    for (const RoleColor& color : disabled) {
        palette.setColor(QPalette::Disabled, color.role, colorWithHex(color.hex));
    }
    return palette;
}

} // namespace

QPalette lightProgramColors()
{
    return paletteOf(kLight, kLightDisabled);
}

QPalette darkProgramColors()
{
    return paletteOf(kDark, kDarkDisabled);
}

QPalette withAccent(const QPalette& colors, const QColor& accent)
{
    QPalette result = colors;
    for (const QPalette::ColorGroup group : {QPalette::Active, QPalette::Inactive}) {
        result.setColor(group, QPalette::Highlight, accent);
        result.setColor(group, QPalette::HighlightedText, readableOn(accent));
    }
    return result;
}

QPalette withVisibleLines(const QPalette& colors)
{
    constexpr std::uint32_t kOutlineSource = 0xB8B8C0;
    constexpr std::uint32_t kRaised = 0x3A3A40;
    QPalette result = colors;
    if (isDark(colors)) {
        result.setColor(QPalette::Window, colorWithHex(kOutlineSource));
        result.setColor(QPalette::Base, colorWithHex(kRaised));
    }
    return result;
}

} // namespace tessera
