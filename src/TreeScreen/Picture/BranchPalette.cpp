// SPDX-License-Identifier: MIT
#include "TreeScreen/Picture/BranchPalette.h"

#include "Model/Folder.h"
#include "Widgets/ColorHelper.h"

#include <array>
#include <cstddef>

namespace tessera {

namespace {

constexpr std::size_t kColorCount = 7;
constexpr double kLevelsToFullBrightness = 15;
constexpr double kMaxBrightnessAdded = 0.2;
constexpr double kSelectedBrightness = -0.3;

std::array<QColor, kColorCount> makePalette()
{
    return {
        colorWithHex(0xCCCCCC), // no slot
        colorWithHex(0x6F9CDA), // blue
        colorWithHex(0x54AC61), // green
        colorWithHex(0x5AA89F), // teal
        colorWithHex(0xC09054), // ochre
        colorWithHex(0xEB7877), // salmon red
        colorWithHex(0xA785F3), // violet
    };
}

const File& ancestor(const File& node, long generations)
{
    const File* found = &node;
    for (long i = 0; i < generations && found->parent() != nullptr; ++i) {
        found = found->parent();
    }
    return *found;
}

/// In single precision, as the amounts always were: a third of a fifth is not exact in either.
float brightnessAdded(long level)
{
    const double added = static_cast<double>(level) / kLevelsToFullBrightness;
    return static_cast<float>(added < kMaxBrightnessAdded ? added : kMaxBrightnessAdded);
}

} // namespace

const QColor& branchPaletteColor(std::uint8_t hue)
{
    static const std::array<QColor, kColorCount> palette = makePalette();
    // Folders hand out slots 1 to 6 only, though a node has room for 15.
    return palette.at(hue < kColorCount ? hue : 0);
}

QColor boxColor(const File& node, long level)
{
    if (level <= 0) {
        return branchPaletteColor(node.hue());
    }
    const QColor& color = branchPaletteColor(ancestor(node, level).hue());
    return withBrightnessAdded(color, static_cast<double>(brightnessAdded(level)));
}

QColor folderBoxColor(const File& folder, long level)
{
    const QColor color = boxColor(folder, level);
    return folder.selected() ? withBrightnessAdded(color, kSelectedBrightness) : color;
}

} // namespace tessera
