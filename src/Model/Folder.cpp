// SPDX-License-Identifier: MIT
#include "Model/Folder.h"

#include "Model/allocation.h"

#include <algorithm>
#include <array>
#include <cassert>
#include <numeric>
#include <random>
#include <vector>

namespace tessera {

namespace {

constexpr std::size_t kHueSlots = 6;
using HueTable = std::array<std::uint8_t, kHueSlots>;

bool isLarger(const File* a, const File* b)
{
    return a->totalAllocation() > b->totalAllocation();
}

/// Each thread that sorts has a source of its own, so that building needs no lock.
std::minstd_rand& hueSource()
{
    thread_local std::minstd_rand source{std::random_device{}()};
    return source;
}

void shuffle(HueTable& table)
{
    for (std::size_t k = table.size(); k >= 2; --k) {
        std::uniform_int_distribution<std::size_t> pick(0, k - 1);
        std::swap(table[pick(hueSource())], table[k - 1]);
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

} // namespace

File& Folder::addChild(std::unique_ptr<File> child)
{
    File* added = child.get();
    m_children.append(added);
    child.release(); // NOLINT(bugprone-unused-return-value): the array has it now
    added->setParent(this);
    setTotalAllocation(saturatingSum(totalAllocation(), added->totalAllocation()));
    if (auto* folder = nodeCast<Folder>(added)) {
        folder->sort();
        folder->m_children.settle();
    }
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
        folder->setTotalAllocation(
            isCutOff(*folder) ? sumOfChildren(*folder)
                              : changedBy(folder->totalAllocation(), delta));
        folder->sort();
    }
}

void Folder::sort()
{
    orderChildren();
    assignHues();
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

void Folder::assignHues()
{
    HueTable table{1, 2, 3, 4, 5, 6};
    for (std::size_t i = 0; i < m_children.size(); ++i) {
        if (i % kHueSlots == 0) {
            shuffle(table);
        }
        if (m_children[i]->hue() == 0) {
            m_children[i]->setHue(table[i % kHueSlots]);
        }
    }
}

} // namespace tessera
