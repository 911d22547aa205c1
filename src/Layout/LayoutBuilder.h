// SPDX-License-Identifier: MIT
#pragma once

#include "Base/Rect.h"

#include <cstdint>
#include <span>
#include <vector>

namespace tessera {

class LayoutObject;

/// Lays items out in strips inside a rectangle, with areas in proportion to their sizes. A strip
/// always runs along the shorter side of what is left and takes items for as long as its first
/// one gets squarer by that. Positions are whole points where the area's are.
///
/// One builder serves one call of layoutItems(). It is a pure computation: linear in the number
/// of items, callable on any thread.
class LayoutBuilder {
public:
    /// `size`: bytes that the whole of `rect` stands for.
    LayoutBuilder(std::uint64_t size, const Rect& rect);

    /// The least thickness, in points, that a strip leaves for the rest where there is room.
    // NOLINTNEXTLINE(readability-convert-member-functions-to-static): a property like the others
    double minSize() const { return kMinSize; }

    /// The area in square points that `totalAllocation` bytes are worth.
    double pixelsFor(double totalAllocation) const
    {
        return totalAllocation / m_totalSize * m_totalPixels;
    }

    /// Sets pixelCount and rect of every item and returns the items in the same order. The items'
    /// totalAllocation must be set.
    std::vector<LayoutObject*> layoutItems(std::span<LayoutObject* const> items);

    /// The larger side divided by the smaller.
    static float aspectRatio(const Rect& rect);

private:
    enum class GroupDirection : std::int32_t { Column = 0, Row = 1 };
    enum class IsLast : bool { No, Yes };

    static constexpr double kMinSize = 12.0;

    void updateDirection();
    bool addItem(LayoutObject& item);
    void openGroup(LayoutObject& item);
    Rect trialRect(const LayoutObject& item) const;
    std::vector<LayoutObject*> sealGroup(IsLast last);
    double stripThickness(double available, double along, IsLast last) const;
    void placeRow(double thickness);
    void placeColumn(double thickness);

    double m_totalSize; ///< bytes that the area stands for; never 0
    double m_totalPixels; ///< square points of the area
    Rect m_remainingRect;
    std::vector<LayoutObject*> m_groupItems;
    double m_groupPixels = 0;
    GroupDirection m_groupDirection = GroupDirection::Column;
};

} // namespace tessera
