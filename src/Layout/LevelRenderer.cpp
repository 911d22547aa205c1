// SPDX-License-Identifier: MIT
#include "Layout/LevelRenderer.h"

#include "Layout/BoxMetrics.h"
#include "Layout/LayoutBuilder.h"
#include "Layout/MultiLayoutObject.h"
#include "Model/Allocation.h"
#include "Model/Folder.h"

#include <algorithm>
#include <cstdint>

namespace tessera {

namespace {

std::unique_ptr<LayoutObject> boxFor(File& file, std::uint64_t totalAllocation)
{
    auto box = std::make_unique<LayoutObject>();
    box->ref = &file;
    box->totalAllocation = static_cast<double>(totalAllocation);
    return box;
}

} // namespace

/// The children that take part, each with its size beside it: a folder of a million files is read
/// through only once, since every visit to a node waits for memory.
class LevelRenderer::Candidates {
public:
    struct Candidate {
        std::uint64_t totalAllocation;
        File* file;
    };

    void reserve(std::size_t count) { m_candidates.reserve(count); }

    void add(File& file)
    {
        m_total = saturatingSum(m_total, file.totalAllocation());
        m_candidates.push_back({file.totalAllocation(), &file});
    }

    std::uint64_t total() const { return m_total; }
    std::vector<Candidate>::const_iterator begin() const { return m_candidates.begin(); }
    std::vector<Candidate>::const_iterator end() const { return m_candidates.end(); }

private:
    std::vector<Candidate> m_candidates;
    std::uint64_t m_total = 0;
};

namespace {

/// The boxes of one level in their order, before they are laid out: the large children, and at
/// the end one box for what is too small for boxes of its own.
class LevelItems {
public:
    void addLarge(File& file, std::uint64_t totalAllocation)
    {
        m_items.push_back(boxFor(file, totalAllocation));
        if (file.isFolder()) {
            m_folderItems.push_back(m_items.back().get());
        }
    }

    void addSmall(File& file, std::uint64_t totalAllocation)
    {
        m_small->refs.push_back(&file);
        m_smallAllocation = saturatingSum(m_smallAllocation, totalAllocation);
    }

    /// A single small child becomes an ordinary box, but never one with a level inside.
    void finish()
    {
        if (m_small->refs.size() == 1) {
            m_items.push_back(boxFor(*m_small->refs.front(), m_smallAllocation));
        } else if (m_small->refs.size() > 1) {
            m_small->totalAllocation = static_cast<double>(m_smallAllocation);
            m_small->refs.shrink_to_fit();
            m_items.push_back(std::move(m_small));
        }
    }

    void layOut(LayoutBuilder& builder) const
    {
        std::vector<LayoutObject*> items;
        items.reserve(m_items.size());
        for (const auto& item : m_items) {
            items.push_back(item.get());
        }
        builder.layoutItems(items);
    }

    const std::vector<LayoutObject*>& folderItems() const { return m_folderItems; }
    std::vector<std::unique_ptr<LayoutObject>> take() { return std::move(m_items); }

private:
    std::vector<std::unique_ptr<LayoutObject>> m_items;
    std::vector<LayoutObject*> m_folderItems;
    std::unique_ptr<MultiLayoutObject> m_small = std::make_unique<MultiLayoutObject>();
    std::uint64_t m_smallAllocation = 0;
};

} // namespace

// Calls itself once a level on screen: each is lower than the one around it by what a box takes
// for itself, so the depth is bounded by the window's height, not by the disk.
RenderedLevel LevelRenderer::render(
    Folder* folder, const Rect& frame, Placement placement, long level) const
{
    const Rect layoutArea = placement == Placement::Top
        ? frame.inset(kTopLevelMargin, kTopLevelMargin)
        : Rect{0, 0, frame.width, frame.height};
    RenderedLevel result{folder, frame, level, {}, {}};
    if (folder == nullptr || !(layoutArea.width > 0) || !(layoutArea.height > 0)) {
        return result;
    }
    const Candidates candidates = visibleChildren(*folder);
    LayoutBuilder builder(candidates.total(), layoutArea);
    const double smallest = builder.minSize() * builder.minSize();
    LevelItems items;
    for (const auto& candidate : candidates) {
        const double budget = builder.pixelsFor(static_cast<double>(candidate.totalAllocation));
        if (smallest > budget) {
            items.addSmall(*candidate.file, candidate.totalAllocation);
        } else {
            items.addLarge(*candidate.file, candidate.totalAllocation);
        }
    }
    items.finish();
    items.layOut(builder);
    result.nested = renderNested(items.folderItems(), level + 1);
    result.layoutItems = items.take();
    return result;
}

std::vector<RenderedLevel> LevelRenderer::renderNested(
    const std::vector<LayoutObject*>& folderItems, long level) const
{
    std::vector<RenderedLevel> nested;
    for (const LayoutObject* item : folderItems) {
        if (hasRoomForLevel(item->rect) && !item->ref->rescanning()) {
            auto* folder = static_cast<Folder*>(item->ref);
            const Rect frame = nestedLevelFrame(item->rect);
            nested.push_back(render(folder, frame, Placement::Nested, level));
        }
    }
    return nested;
}

LevelRenderer::Candidates LevelRenderer::visibleChildren(const Folder& folder) const
{
    Candidates candidates;
    candidates.reserve(folder.children().size());
    for (File* child : folder.children()) {
        const bool isLeftOut = child->ignored() || (m_ignoreHiddenFiles && child->hidden());
        if (!isLeftOut) {
            candidates.add(*child);
        }
    }
    return candidates;
}

} // namespace tessera
