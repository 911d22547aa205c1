// SPDX-License-Identifier: MIT
#include "Basket/Basket.h"

#include "Model/Allocation.h"
#include "Model/Folder.h"
#include "Model/NodeLookup.h"

#include <algorithm>
#include <iterator>
#include <string_view>
#include <utility>

namespace tessera {

namespace {

using Replacements = std::unordered_map<const File*, File*>;

/// Finds items of one folder by their names in the folder that took its place: all in one pass, for
/// there may be thousands of each.
void findAgain(const std::vector<File*>& items, const Folder& with, Replacements& found)
{
    std::unordered_map<std::string_view, const File*> wanted;
    for (const File* const item : items) {
        wanted.emplace(item->fragment(), item);
    }
    for (File* const child : with.children()) {
        const auto old = wanted.find(child->fragment());
        const bool isSame
            = old != wanted.end() && isItem(*child) && child->isFolder() == old->second->isFolder();
        if (isSame) {
            found.emplace(old->second, child);
        }
    }
}

/// Each of the items with what has its path now.
Replacements replacementsOf(const std::vector<File*>& items, const Folder& folder, TopFolder& top)
{
    std::unordered_map<const Folder*, std::vector<File*>> byParent;
    Replacements found;
    for (File* const item : items) {
        if (item != &folder) {
            byParent[item->parent()].push_back(item);
        } else if (File* const with = nodeAtPath(top, folder.absolutePath())) {
            found.emplace(item, with);
        }
    }
    for (const auto& [parent, children] : byParent) {
        const auto* const with = nodeCast<Folder>(nodeAtPath(top, parent->absolutePath()));
        if (with != nullptr) {
            findAgain(children, *with, found);
        }
    }
    return found;
}

} // namespace

bool Basket::add(File& item)
{
    if (item.parent() == nullptr || !isItem(item) || isMarked(item)) {
        return false;
    }
    m_items.push_back(&item);
    mark(item);
    return true;
}

bool Basket::remove(const File& item)
{
    if (!isMarked(item)) {
        return false;
    }
    m_items.erase(std::find(m_items.begin(), m_items.end(), &item));
    unmark(item);
    return true;
}

bool Basket::toggle(File& item)
{
    return !remove(item) && add(item);
}

void Basket::clear()
{
    m_items.clear();
    m_marked.clear();
    m_above.clear();
}

std::vector<Basket::Entry> Basket::entries() const
{
    std::vector<Entry> entries;
    entries.reserve(m_items.size());
    for (File* const item : m_items) {
        entries.push_back({item, nearestMarkedAround(*item)});
    }
    return entries;
}

std::vector<Basket::Entry> Basket::entriesBySize() const
{
    std::vector<Entry> entries = this->entries();
    // The smallest first: what is put on the stack last is taken from it first.
    std::reverse(entries.begin(), entries.end());
    std::stable_sort(entries.begin(), entries.end(), [](const Entry& a, const Entry& b) {
        return a.item->totalAllocation() < b.item->totalAllocation();
    });
    std::unordered_map<const File*, std::vector<Entry>> inside;
    for (const Entry& entry : entries) {
        inside[entry.inside].push_back(entry);
    }
    std::vector<Entry> left = std::move(inside[nullptr]);
    entries.clear();
    while (!left.empty()) {
        entries.push_back(left.back());
        left.pop_back();
        const auto below = inside.find(entries.back().item);
        if (below != inside.end()) {
            left.insert(left.end(), below->second.begin(), below->second.end());
        }
    }
    return entries;
}

std::vector<File*> Basket::outermost() const
{
    std::vector<File*> items;
    std::copy_if(m_items.begin(), m_items.end(), std::back_inserter(items), [this](File* item) {
        return nearestMarkedAround(*item) == nullptr;
    });
    return items;
}

std::uint64_t Basket::totalAllocation() const
{
    std::uint64_t bytes = 0;
    for (const File* const item : outermost()) {
        bytes = saturatingSum(bytes, item->totalAllocation());
    }
    return bytes;
}

std::vector<std::string> Basket::nodeWillLeave(const File& node)
{
    std::vector<std::string> paths;
    const std::vector<File*> leaving = itemsAtOrBelow(node);
    for (const File* const item : leaving) {
        paths.push_back(item->absolutePath());
        unmark(*item);
    }
    if (!leaving.empty()) {
        std::erase_if(m_items, [this](const File* item) { return !isMarked(*item); });
    }
    return paths;
}

std::vector<std::string> Basket::folderWasReplaced(const Folder& folder, TopFolder& top)
{
    std::vector<std::string> gone;
    const std::vector<File*> old = itemsAtOrBelow(folder);
    const Replacements found = replacementsOf(old, folder, top);
    std::unordered_set<const File*> leaving;
    for (const File* const item : old) {
        if (!found.contains(item)) {
            gone.push_back(item->absolutePath());
            leaving.insert(item);
        }
    }
    std::erase_if(m_items, [&leaving](const File* item) { return leaving.contains(item); });
    for (File*& item : m_items) {
        const auto with = found.find(item);
        item = with == found.end() ? item : with->second;
    }
    markAllAnew();
    return gone;
}

/// Nodes may have moved from the old folder into the new one by themselves.
void Basket::markAllAnew()
{
    m_marked.clear();
    m_above.clear();
    for (const File* const item : m_items) {
        mark(*item);
    }
}

const File* Basket::nearestMarkedAround(const File& item) const
{
    const File* around = item.parent();
    while (around != nullptr && !isMarked(*around)) {
        around = around->parent();
    }
    return around;
}

void Basket::mark(const File& item)
{
    m_marked.insert(&item);
    for (const File* above = item.parent(); above != nullptr; above = above->parent()) {
        ++m_above[above];
    }
}

void Basket::unmark(const File& item)
{
    m_marked.erase(&item);
    for (const File* above = item.parent(); above != nullptr; above = above->parent()) {
        const auto found = m_above.find(above);
        if (--found->second == 0) {
            m_above.erase(found);
        }
    }
}

std::vector<File*> Basket::itemsAtOrBelow(const File& node) const
{
    std::vector<File*> items;
    if (isMarked(node) || holdsMarked(node)) {
        std::copy_if(
            m_items.begin(), m_items.end(), std::back_inserter(items), [&node](File* item) {
                return isAtOrBelow(*item, node);
            });
    }
    return items;
}

} // namespace tessera
