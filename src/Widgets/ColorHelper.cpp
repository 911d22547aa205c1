// SPDX-License-Identifier: MIT
#include "Widgets/ColorHelper.h"

#include <QPalette>

#include <algorithm>

namespace tessera {

namespace {

constexpr int kByteMask = 0xFF;

int byteAt(std::uint32_t hex, unsigned shift)
{
    return static_cast<int>(hex >> shift) & kByteMask;
}

QColor fromComponents(double red, double green, double blue)
{
    return QColor::fromRgbF(
        static_cast<float>(red), static_cast<float>(green), static_cast<float>(blue));
}

} // namespace

QColor colorWithHex(std::uint32_t hex)
{
    return {byteAt(hex, 16), byteAt(hex, 8), byteAt(hex, 0)};
}

QColor colorWithRgba(std::uint32_t hex)
{
    return {byteAt(hex, 24), byteAt(hex, 16), byteAt(hex, 8), byteAt(hex, 0)};
}

QColor withBrightnessAdded(const QColor& color, double amount)
{
    const double red = color.redF();
    const double green = color.greenF();
    const double blue = color.blueF();
    const double brightness = std::max({red, green, blue});
    const double changed = std::clamp(brightness + amount, 0.0, 1.0);
    if (brightness == 0) {
        return fromComponents(changed, changed, changed);
    }
    // With hue and saturation fixed, every component is proportional to the brightness.
    const double factor = changed / brightness;
    return fromComponents(red * factor, green * factor, blue * factor);
}

bool isDark(const QPalette& palette)
{
    const QColor window = palette.color(QPalette::Active, QPalette::Window);
    const QColor text = palette.color(QPalette::Active, QPalette::WindowText);
    return window.lightness() < text.lightness();
}

QColor highlightWithLevel(const QColor& color, double level)
{
    const auto blend = [level](double component) { return component + (1 - component) * level; };
    return fromComponents(blend(color.redF()), blend(color.greenF()), blend(color.blueF()));
}

QColor shadowWithLevel(const QColor& color, double level)
{
    const double kept = 1 - level;
    return fromComponents(color.redF() * kept, color.greenF() * kept, color.blueF() * kept);
}

} // namespace tessera
