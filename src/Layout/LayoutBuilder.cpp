// SPDX-License-Identifier: MIT
#include "Layout/LayoutBuilder.h"

#include "Layout/LayoutObject.h"

#include <cmath>

namespace tessera {

namespace {

/// How many whole ratio units a new item may differ in squareness from the first of its strip.
constexpr float kMaxRatioDifference = 5.0F;

/// Beyond this a whole number does not fit 32 bits.
constexpr float kIntegerLimit = 2147483648.0F;

/// The difference counts in whole units, so 5.99 still passes and 6.0 does not. Differences
/// without a 32-bit whole part, infinities and NaN among them, do not pass.
bool isCloseEnough(float difference)
{
    if (!(std::fabs(difference) < kIntegerLimit)) {
        return false;
    }
    const auto wholeUnits = static_cast<std::int32_t>(difference);
    return !(std::fabs(static_cast<float>(wholeUnits)) > kMaxRatioDifference);
}

} // namespace

LayoutBuilder::LayoutBuilder(std::uint64_t size, const Rect& rect)
    : m_totalSize(size == 0 ? 1.0 : static_cast<double>(size))
    , m_totalPixels(rect.width * rect.height)
    , m_remainingRect(rect)
{
    updateDirection();
}

std::vector<LayoutObject*> LayoutBuilder::layoutItems(std::span<LayoutObject* const> items)
{
    std::vector<LayoutObject*> result;
    result.reserve(items.size());
    const auto seal = [&](IsLast last) {
        const std::vector<LayoutObject*> sealed = sealGroup(last);
        result.insert(result.end(), sealed.begin(), sealed.end());
    };
    for (LayoutObject* item : items) {
        if (!addItem(*item)) {
            seal(IsLast::No);
            addItem(*item);
        }
    }
    seal(IsLast::Yes);
    return result;
}

float LayoutBuilder::aspectRatio(const Rect& rect)
{
    return static_cast<float>(
        rect.width > rect.height ? rect.width / rect.height : rect.height / rect.width);
}

void LayoutBuilder::updateDirection()
{
    m_groupDirection = m_remainingRect.width >= m_remainingRect.height ? GroupDirection::Column
                                                                       : GroupDirection::Row;
}

bool LayoutBuilder::addItem(LayoutObject& item)
{
    item.pixelCount = pixelsFor(item.totalAllocation);
    m_groupPixels += item.pixelCount;
    if (m_groupItems.empty()) {
        openGroup(item);
        return true;
    }
    LayoutObject& first = *m_groupItems.front();
    const Rect firstTrial = trialRect(first);
    const float oldRatio = aspectRatio(first.rect);
    const float firstRatio = aspectRatio(firstTrial);
    const float itemRatio = aspectRatio(trialRect(item));
    if (oldRatio > firstRatio && isCloseEnough(itemRatio - firstRatio)) {
        first.rect = firstTrial;
        m_groupItems.push_back(&item);
        return true;
    }
    m_groupPixels -= item.pixelCount;
    return false;
}

void LayoutBuilder::openGroup(LayoutObject& item)
{
    const Rect& area = m_remainingRect;
    item.rect = m_groupDirection == GroupDirection::Row
        ? Rect{area.x, area.y, area.width, item.pixelCount / area.width}
        : Rect{area.x, area.y, item.pixelCount / area.height, area.height};
    m_groupItems.push_back(&item);
}

/// The item's extent if the group, which counts it already, were sealed now.
Rect LayoutBuilder::trialRect(const LayoutObject& item) const
{
    const Rect& area = m_remainingRect;
    const double share = item.pixelCount / m_groupPixels;
    if (m_groupDirection == GroupDirection::Row) {
        const double width = share * area.width;
        return {area.x, area.y, width, item.pixelCount / width};
    }
    const double height = share * area.height;
    return {area.x, area.y, item.pixelCount / height, height};
}

std::vector<LayoutObject*> LayoutBuilder::sealGroup(IsLast last)
{
    const Rect& area = m_remainingRect;
    if (m_groupDirection == GroupDirection::Row) {
        placeRow(stripThickness(area.height, area.width, last));
    } else {
        placeColumn(stripThickness(area.width, area.height, last));
    }
    std::vector<LayoutObject*> sealed;
    sealed.swap(m_groupItems);
    m_groupPixels = 0;
    updateDirection();
    return sealed;
}

/// How thick the open strip becomes where `available` points are left across it and it is `along`
/// points long. Every strip but the last leaves kMinSize for the rest, or, where less than two of
/// that are left, about half.
double LayoutBuilder::stripThickness(double available, double along, IsLast last) const
{
    if (last == IsLast::Yes) {
        return available;
    }
    // Without pixels a strip has no thickness, whatever its length.
    const double thickness = m_groupPixels == 0 ? 0 : std::round(m_groupPixels / along);
    const double allowed = available - kMinSize;
    if (thickness > allowed) {
        return kMinSize > allowed ? allowed + std::ceil((kMinSize - allowed) * 0.5) : allowed;
    }
    return thickness;
}

void LayoutBuilder::placeRow(double thickness)
{
    Rect& area = m_remainingRect;
    double x = area.x;
    for (LayoutObject* item : m_groupItems) {
        const bool endsTheRow = item == m_groupItems.back();
        const double width = endsTheRow ? area.width - (x - area.x)
                                        : std::round(item->pixelCount / m_groupPixels * area.width);
        item->rect = {x, area.y, width, thickness};
        x += width;
    }
    area = {area.x, area.y + thickness, area.width, area.height - thickness};
}

void LayoutBuilder::placeColumn(double thickness)
{
    Rect& area = m_remainingRect;
    double y = area.y;
    for (LayoutObject* item : m_groupItems) {
        const bool endsTheColumn = item == m_groupItems.back();
        const double height = endsTheColumn
            ? area.height - (y - area.y)
            : std::round(item->pixelCount / m_groupPixels * area.height);
        item->rect = {area.x, y, thickness, height};
        y += height;
    }
    area = {area.x + thickness, area.y, area.width - thickness, area.height};
}

} // namespace tessera
