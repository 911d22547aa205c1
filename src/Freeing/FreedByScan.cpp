// SPDX-License-Identifier: MIT
#include "Freeing/FreedByScan.h"

#include "Model/Allocation.h"
#include "Model/NodeLookup.h"
#include "Model/TopFolder.h"

#include <queue>

#include <algorithm>
#include <functional>

namespace tessera {

namespace {

/// Files of one reason, as they are met.
struct KeptNodes {
    std::size_t count = 0;
    const LinkedNames::Share* largest = nullptr;

    void add(const LinkedNames::Share& file)
    {
        ++count;
        const bool isLarger = largest == nullptr
            || file.countedAt->totalAllocation() > largest->countedAt->totalAllocation();
        largest = isLarger ? &file : largest;
    }

    void tell(KeptFiles::Reason reason, std::vector<KeptFiles>& kept) const
    {
        if (largest != nullptr) {
            kept.push_back({reason, count, largest->inside->absolutePath()});
        }
    }
};

/// Calls it for each node at and below the items.
template <typename Visit>
void visitAll(const ChosenItems& items, const Visit& visit)
{
    std::vector<const File*> left = items.outermost();
    while (!left.empty()) {
        const File* const node = left.back();
        left.pop_back();
        visit(*node);
        if (const auto* const folder = nodeCast<Folder>(node)) {
            left.insert(left.end(), folder->children().begin(), folder->children().end());
        }
    }
}

} // namespace

/// The largest of those that are added.
class FreedByScan::LargestFiles {
public:
    explicit LargestFiles(std::size_t most)
        : m_most(most)
    {
    }

    void add(const File& name, std::uint64_t bytes, std::size_t names)
    {
        if (bytes == 0) {
            return;
        }
        m_files.push({bytes, names, &name});
        if (m_files.size() > m_most) {
            m_files.pop();
            ++m_others;
        }
    }

    void tell(FreeingQuestion& question)
    {
        for (; !m_files.empty(); m_files.pop()) {
            const Sized& file = m_files.top();
            question.files.push_back({placeOnDisk(*file.name).path(), file.bytes, file.names});
        }
        std::reverse(question.files.begin(), question.files.end());
        question.otherFiles = m_others;
    }

private:
    struct Sized {
        std::uint64_t bytes;
        std::size_t names;
        const File* name;

        bool operator>(const Sized& other) const { return bytes > other.bytes; }
    };

    std::size_t m_most;
    std::size_t m_others = 0;
    std::priority_queue<Sized, std::vector<Sized>, std::greater<>> m_files; ///< the smallest on top
};

FreedByScan::FreedByScan(const std::vector<const File*>& items)
    : m_items(items)
{
    for (const File* const item : m_items.outermost()) {
        m_space.most = saturatingSum(m_space.most, item->totalAllocation());
    }
    m_space.least = m_space.most;
    countLinks();
    countFolders();
    m_space.least = saturatingSum(m_space.least, m_folderBytes);
    m_space.most = saturatingSum(m_space.most, m_folderBytes);
}

/// The sum so far has each file whose size stands at a name inside, and none of the others.
void FreedByScan::countLinks()
{
    const TopFolder* const root = m_items.root();
    if (root == nullptr) {
        return;
    }
    m_shares
        = root->linkedNames().sharesOf([this](const File& name) { return m_items.contain(name); });
    KeptNodes elsewhere;
    KeptNodes outside;
    for (const LinkedNames::Share& file : m_shares) {
        const std::uint64_t bytes
            = m_items.contain(*file.countedAt) ? file.countedAt->totalAllocation() : 0;
        if (file.namesInside < file.names) {
            m_space.least = saturatingDifference(m_space.least, bytes);
            m_space.most = saturatingDifference(m_space.most, bytes);
            elsewhere.add(file);
        } else if (file.names < file.linkCount) {
            m_space.least = saturatingDifference(m_space.least, bytes);
            outside.add(file);
        }
    }
    elsewhere.tell(KeptFiles::Reason::LinksElsewhere, m_space.kept);
    outside.tell(KeptFiles::Reason::LinksOutsideScan, m_space.kept);
}

void FreedByScan::countFolders()
{
    visitAll(m_items, [this](const File& node) {
        if (const auto* const folder = nodeCast<Folder>(&node)) {
            m_folderBytes = saturatingSum(m_folderBytes, folder->ownAllocation());
        }
    });
}

FreeingQuestion FreedByScan::questionAbout(std::size_t mostFiles) const
{
    FreeingQuestion question{m_space, m_folderBytes, {}, 0};
    LargestFiles files(mostFiles);
    visitAll(m_items, [&files](const File& node) {
        if (!node.isFolder() && isItem(node) && !node.isLinkedName()) {
            files.add(node, node.totalAllocation(), 1);
        }
    });
    for (const LinkedNames::Share& file : m_shares) {
        if (file.namesInside == file.names) {
            files.add(*file.inside, file.countedAt->totalAllocation(), file.namesInside);
        }
    }
    files.tell(question);
    return question;
}

} // namespace tessera
