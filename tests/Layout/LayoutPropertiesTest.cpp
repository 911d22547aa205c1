// SPDX-License-Identifier: MIT
#include "Layout/LevelRenderer.h"
#include "Layout/MultiLayoutObject.h"
#include "Model/Document.h"
#include "Model/TopFolder.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <random>
#include <set>
#include <vector>

namespace tessera {
namespace {

using Random = std::mt19937_64;

double uniform(Random& random, double low, double high)
{
    return std::uniform_real_distribution<double>(low, high)(random);
}

std::size_t upTo(Random& random, std::size_t most)
{
    return std::uniform_int_distribution<std::size_t>(0, most)(random);
}

std::unique_ptr<File> randomChild(Random& random, double skew, int depth);

void addRandomChildren(Folder& folder, Random& random, int depth)
{
    const std::size_t count = upTo(random, depth == 0 ? 120 : 20);
    const double skew = uniform(random, 0.5, 14);
    for (std::size_t i = 0; i < count; ++i) {
        folder.addChild(randomChild(random, skew, depth));
    }
}

std::unique_ptr<File> randomChild(Random& random, double skew, int depth)
{
    std::unique_ptr<File> child;
    if (depth < 3 && upTo(random, 3) == 0) {
        auto folder = makeNode<Folder>("f");
        addRandomChildren(*folder, random, depth + 1);
        child = std::move(folder);
    } else {
        child = makeNode<Document>("d");
        child->setTotalAllocation(static_cast<std::uint64_t>(std::exp(uniform(random, 0, skew))));
    }
    child->setHidden(upTo(random, 7) == 0);
    child->setIgnored(upTo(random, 15) == 0);
    return child;
}

bool overlap(const Rect& a, const Rect& b)
{
    constexpr double kTolerance = 1e-9;
    return a.x < b.right() - kTolerance && b.x < a.right() - kTolerance
        && a.y < b.bottom() - kTolerance && b.y < a.bottom() - kTolerance;
}

void expectNoOverlap(const RenderedLevel& level)
{
    for (std::size_t i = 0; i < level.layoutItems.size(); ++i) {
        for (std::size_t j = i + 1; j < level.layoutItems.size(); ++j) {
            ASSERT_FALSE(overlap(level.layoutItems[i]->rect, level.layoutItems[j]->rect));
        }
    }
}

void expectCoversExactly(const RenderedLevel& level, const Rect& area)
{
    double covered = 0;
    for (const auto& item : level.layoutItems) {
        covered += item->rect.area();
        ASSERT_GE(item->rect.x, area.x - 1e-9);
        ASSERT_GE(item->rect.y, area.y - 1e-9);
        ASSERT_LE(item->rect.right(), area.right() + 1e-9);
        ASSERT_LE(item->rect.bottom(), area.bottom() + 1e-9);
    }
    ASSERT_NEAR(covered, area.area(), area.area() * 1e-9);
}

/// Every visible child in exactly one box or group, boxes in the folder's order.
void expectHoldsEachChildOnce(const RenderedLevel& level, bool ignoreHidden)
{
    std::vector<const File*> shown;
    std::vector<const File*> small;
    for (const auto& item : level.layoutItems) {
        if (const auto* group = dynamic_cast<const MultiLayoutObject*>(item.get())) {
            small.insert(small.end(), group->refs.begin(), group->refs.end());
        } else {
            shown.push_back(item->ref);
        }
    }
    shown.insert(shown.end(), small.begin(), small.end());
    std::vector<const File*> expected;
    for (const File* child : level.folder->children()) {
        if (!child->ignored() && !(ignoreHidden && child->hidden())) {
            expected.push_back(child);
        }
    }
    // Sorted by size, so the small ones, which come last, are last in the folder as well.
    ASSERT_EQ(shown, expected);
}

void check(const RenderedLevel& level, const Rect& area, bool ignoreHidden)
{
    ASSERT_NO_FATAL_FAILURE(expectHoldsEachChildOnce(level, ignoreHidden));
    if (!level.layoutItems.empty()) {
        ASSERT_NO_FATAL_FAILURE(expectNoOverlap(level));
        ASSERT_NO_FATAL_FAILURE(expectCoversExactly(level, area));
    }
    for (const RenderedLevel& nested : level.nested) {
        const Rect inner{0, 0, nested.frame.width, nested.frame.height};
        ASSERT_NO_FATAL_FAILURE(check(nested, inner, ignoreHidden));
    }
}

constexpr int kTreesPerTest = 2'500;

class LayoutProperties : public testing::TestWithParam<int> { };

TEST_P(LayoutProperties, BoxesOfRandomTreesFillTheirLevelsInOrderWithoutOverlap)
{
    const int firstSeed = GetParam() * kTreesPerTest;
    for (int seed = firstSeed; seed < firstSeed + kTreesPerTest; ++seed) {
        Random random(static_cast<std::uint64_t>(seed));
        const auto top = makeNode<TopFolder>("t");
        addRandomChildren(*top, random, 0);
        top->sort();
        const Rect bounds{0, 0, uniform(random, 10, 2000), uniform(random, 10, 1500)};
        const bool ignoreHidden = seed % 2 == 0;
        const RenderedLevel level = LevelRenderer(ignoreHidden).renderTop(top.get(), bounds);
        ASSERT_NO_FATAL_FAILURE(check(level, bounds.inset(3, 3), ignoreHidden)) << "seed " << seed;
    }
}

INSTANTIATE_TEST_SUITE_P(TenThousandTrees, LayoutProperties, testing::Range(0, 4));

} // namespace
} // namespace tessera
