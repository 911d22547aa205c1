// SPDX-License-Identifier: MIT
#include "Model/Folder.h"

#include "Model/Allocation.h"

#include <algorithm>
#include <array>
#include <cassert>
#include <cstdint>
#include <limits>
#include <numeric>
#include <vector>

namespace tessera {

namespace {

constexpr std::size_t kHueSlots = 6;
using HueTable = std::array<std::uint8_t, kHueSlots>;

bool isLarger(const File* a, const File* b)
{
    return a->totalAllocation() > b->totalAllocation();
}

/// SplitMix64: numbers that look random and are the same everywhere for the same seed, which those
/// of the standard library's distributions are not.
class HueSource {
public:
    explicit HueSource(PathHash seed)
        : m_state(seed.value())
    {
    }

    std::size_t below(std::size_t bound)
    {
        m_state += 0x9e3779b97f4a7c15;
        std::uint64_t bits = m_state;
        bits = (bits ^ (bits >> 30)) * 0xbf58476d1ce4e5b9;
        bits = (bits ^ (bits >> 27)) * 0x94d049bb133111eb;
        return static_cast<std::size_t>((bits ^ (bits >> 31)) % bound);
    }

private:
    std::uint64_t m_state;
};

void shuffle(HueTable& table, HueSource& source)
{
    for (std::size_t k = table.size(); k >= 2; --k) {
        std::swap(table[source.below(k)], table[k - 1]);
    }
}

/// Of such a total nothing is known but that the true one is larger, so no difference helps. A
/// volume's comes from the file system.
bool isCutOff(const Folder& folder)
{
    return folder.totalAllocation() == kMaxAllocation && folder.type() != NodeType::Volume;
}

std::uint64_t sumOfChildren(const Folder& folder)
{
    const ChildArray& children = folder.children();
    return std::accumulate(
        children.begin(),
        children.end(),
        std::uint64_t{0},
        [](std::uint64_t sum, const File* child) {
            return saturatingSum(sum, child->totalAllocation());
        });
}

/// `delta` is the difference of two sizes, modulo 2^64.
std::uint64_t changedBy(std::uint64_t total, std::uint64_t delta)
{
    const bool isLess = delta > kMaxAllocation;
    return isLess ? saturatingDifference(total, std::uint64_t{0} - delta)
                  : saturatingSum(total, delta);
}

bool hasNoHue(const File* node)
{
    return node->hue() == 0;
}

} // namespace

void Folder::setOwnAllocation(std::uint64_t bytes)
{
    constexpr std::uint64_t kMost = std::numeric_limits<std::uint32_t>::max();
    m_ownBlocks = static_cast<std::uint32_t>(std::min(bytes / kOwnBlock, kMost));
}

File& Folder::addChild(std::unique_ptr<File> child)
{
    File& added = attach(std::move(child));
    if (auto* folder = nodeCast<Folder>(&added)) {
        folder->sort();
        folder->m_children.settle();
    }
    return added;
}

File& Folder::addChild(std::unique_ptr<Folder> child, PathHash path)
{
    Folder& folder = *child;
    attach(std::move(child));
    folder.orderChildren();
    folder.assignHues(path);
    folder.m_children.settle();
    return folder;
}

File& Folder::attach(std::unique_ptr<File> child)
{
    File* added = child.get();
    m_children.append(added);
    child.release(); // NOLINT(bugprone-unused-return-value): the array has it now
    added->setParent(this);
    setTotalAllocation(saturatingSum(totalAllocation(), added->totalAllocation()));
    return *added;
}

File& Folder::insertChild(std::unique_ptr<File> child)
{
    File* inserted = child.get();
    m_children.append(inserted);
    child.release(); // NOLINT(bugprone-unused-return-value): the array has it now
    inserted->setParent(this);
    spread(inserted->totalAllocation());
    return *inserted;
}

std::unique_ptr<File> Folder::replaceChild(File& child, std::unique_ptr<File> with)
{
    const std::size_t position = m_children.indexOf(child);
    assert(position < m_children.size());
    const std::uint64_t delta = with->totalAllocation() - child.totalAllocation();
    with->setParent(this);
    m_children.set(position, with.release());
    spread(delta);
    return std::unique_ptr<File>(&child);
}

std::unique_ptr<File> Folder::removeChild(File& child)
{
    const std::size_t position = m_children.indexOf(child);
    assert(position < m_children.size());
    m_children.removeAt(position);
    spread(std::uint64_t{0} - child.totalAllocation());
    return std::unique_ptr<File>(&child);
}

std::vector<std::unique_ptr<File>> Folder::takeChildren()
{
    std::vector<std::unique_ptr<File>> taken(m_children.size());
    std::for_each(taken.rbegin(), taken.rend(), [this](std::unique_ptr<File>& child) {
        child.reset(m_children.takeLast());
    });
    return taken;
}

void Folder::spread(std::uint64_t delta)
{
    for (Folder* folder = this; folder != nullptr; folder = folder->parent()) {
        folder->childChanged(delta);
        folder->sort();
    }
}

void Folder::childChanged(std::uint64_t delta)
{
    setTotalAllocation(
        isCutOff(*this) ? sumOfChildren(*this) : changedBy(totalAllocation(), delta));
}

void Folder::sort()
{
    orderChildren();
    // Asked only when it matters: in a deep tree the path is long.
    if (std::any_of(m_children.begin(), m_children.end(), hasNoHue)) {
        assignHues(PathHash(absolutePath()));
    }
}

void Folder::orderChildren()
{
    // After a change to a finished tree nearly everything is in order already.
    if (std::is_sorted(m_children.begin(), m_children.end(), isLarger)) {
        return;
    }
    // The sizes beside the pointers: comparing through a hundred thousand pointers would wait for
    // memory at every step.
    struct Entry {
        std::uint64_t allocation;
        File* node;
    };
    std::vector<Entry> entries;
    entries.reserve(m_children.size());
    for (File* child : m_children) {
        entries.push_back({child->totalAllocation(), child});
    }
    // Stable, so that equal files stay in the order in which they lie in memory.
    std::stable_sort(entries.begin(), entries.end(), [](const Entry& a, const Entry& b) {
        return a.allocation > b.allocation;
    });
    std::transform(entries.begin(), entries.end(), m_children.begin(), [](const Entry& entry) {
        return entry.node;
    });
}

void Folder::assignHues(PathHash seed)
{
    HueSource source(seed);
    HueTable table{1, 2, 3, 4, 5, 6};
    for (std::size_t i = 0; i < m_children.size(); ++i) {
        if (i % kHueSlots == 0) {
            shuffle(table, source);
        }
        if (hasNoHue(m_children[i])) {
            m_children[i]->setHue(table[i % kHueSlots]);
        }
    }
}

bool isAtOrBelow(const File& node, const File& above)
{
    for (const File* at = &node; at != nullptr; at = at->parent()) {
        if (at == &above) {
            return true;
        }
    }
    return false;
}

} // namespace tessera
