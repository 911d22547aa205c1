// SPDX-License-Identifier: MIT
#include "TreeScreen/Map/BoxNavigation.h"

#include "Model/File.h"
#include "TreeScreen/Picture/TreeBranch.h"

#include <algorithm>
#include <limits>
#include <vector>

namespace tessera {

namespace {

/// A box straight ahead is wanted, even when one aside of the way is somewhat nearer.
constexpr double kAsideWeight = 3;
/// Layout leaves no gaps, but adds up fractions.
constexpr double kTolerance = 0.01;

struct Place {
    const TreeBranch* branch = nullptr;
    Rect box;
};

bool isSelectable(const LayoutObject& item)
{
    return item.ref != nullptr && (item.ref->isFolder() || item.ref->type() == NodeType::Document);
}

Place placeOf(const File& file, const TreeBranch& top)
{
    std::vector<const TreeBranch*> open{&top};
    while (!open.empty()) {
        const TreeBranch* const branch = open.back();
        open.pop_back();
        for (const auto& item : branch->layoutItems()) {
            if (item->ref == &file) {
                return {branch, item->rect};
            }
        }
        for (const auto& nested : branch->subBranches()) {
            open.push_back(nested.get());
        }
    }
    return {};
}

/// The same picture, turned so that the direction points to the right.
Rect turned(const Rect& box, Direction direction)
{
    switch (direction) {
    case Direction::Left:
        return {-box.right(), box.y, box.width, box.height};
    case Direction::Up:
        return {-box.bottom(), box.x, box.height, box.width};
    case Direction::Down:
        return {box.y, box.x, box.height, box.width};
    case Direction::Right:
        break;
    }
    return box;
}

double distanceToRange(double value, double begin, double end)
{
    return std::max({begin - value, value - end, 0.0});
}

/// How far one has to look for `to` from `from`; infinite when it does not lie to the right.
double cost(const Rect& from, const Rect& to)
{
    const double ahead = to.x - from.right();
    if (ahead < -kTolerance) {
        return std::numeric_limits<double>::infinity();
    }
    const double centre = from.y + from.height / 2;
    return ahead + kAsideWeight * distanceToRange(centre, to.y, to.bottom());
}

File* firstSelectable(const TreeBranch& branch)
{
    for (const auto& item : branch.layoutItems()) {
        if (isSelectable(*item)) {
            return item->ref;
        }
    }
    return nullptr;
}

} // namespace

File* nextSelection(const TreeBranch& top, const File* selected, Direction direction)
{
    const Place place = selected == nullptr ? Place{} : placeOf(*selected, top);
    if (place.branch == nullptr) {
        return firstSelectable(top);
    }
    const Rect from = turned(place.box, direction);
    File* best = nullptr;
    double least = std::numeric_limits<double>::infinity();
    for (const auto& item : place.branch->layoutItems()) {
        const double itemCost = cost(from, turned(item->rect, direction));
        if (isSelectable(*item) && item->ref != selected && itemCost < least) {
            best = item->ref;
            least = itemCost;
        }
    }
    return best;
}

} // namespace tessera
