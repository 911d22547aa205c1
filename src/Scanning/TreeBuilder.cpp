// SPDX-License-Identifier: MIT
#include "Scanning/TreeBuilder.h"

#include "Model/Allocation.h"
#include "Model/Document.h"

#include <algorithm>
#include <utility>

namespace tessera {

TreeBuilder::TreeBuilder(std::unique_ptr<TopFolder> root)
    : m_root(std::move(root))
    , m_rootPath(m_root->origin())
{
}

bool TreeBuilder::fetchNext(DirectoryEnumerator& walk, DirectoryItem& item)
{
    const bool isThere = walk.next(item);
    if (const EnteredDirectory* const entered = walk.entered()) {
        enter(*entered);
    }
    return isThere;
}

std::uint64_t TreeBuilder::add(const DirectoryItem& item)
{
    closeDownTo(item.level - 1);
    if (item.isDirectory) {
        auto folder = makeNode<Folder>(item.name);
        folder->setHidden(item.isHidden);
        m_open.push_back({std::move(folder), currentPath().of(item.name)});
        return 0;
    }
    auto document = makeNode<Document>(item.name);
    const std::uint64_t bytes = countedBytes(*document, item);
    document->setTotalAllocation(bytes);
    document->setHidden(item.isHidden);
    current().addChild(std::move(document));
    return bytes;
}

void TreeBuilder::enter(const EnteredDirectory& entered)
{
    Folder& folder = current();
    folder.setOwnAllocation(entered.allocatedBytes);
    if (entered.problem) {
        ScanFindings& findings = m_root->findings();
        const std::string path = findings.hasRoomForName() ? pathOfCurrent() : std::string();
        findings.addUnreadable({path, entered.problem, &folder});
    }
}

void TreeBuilder::leaveOutLast()
{
    m_root->findings().addLeftOut(current());
}

std::uint64_t TreeBuilder::countedBytes(File& document, const DirectoryItem& item)
{
    const bool isCounted
        = item.linkCount == 0 || m_root->linkedNames().add(document, item.identity, item.linkCount);
    return isCounted ? std::min(item.allocatedBytes, kMaxAllocation) : 0;
}

std::string TreeBuilder::pathOf(unsigned level, std::string_view name) const
{
    std::string path = m_root->origin();
    const auto append = [&path](std::string_view component) {
        if (path != "/") {
            path += '/';
        }
        path += component;
    };
    const std::size_t foldersAbove = std::min<std::size_t>(level - 1, m_open.size());
    for (std::size_t i = 0; i < foldersAbove; ++i) {
        append(m_open[i].folder->fragment());
    }
    append(name);
    return path;
}

void TreeBuilder::closeAll()
{
    closeDownTo(0);
}

std::unique_ptr<TopFolder> TreeBuilder::takeRoot()
{
    return std::move(m_root);
}

std::string TreeBuilder::pathOfCurrent() const
{
    return m_open.empty()
        ? m_root->origin()
        : pathOf(static_cast<unsigned>(m_open.size()), m_open.back().folder->fragment());
}

Folder& TreeBuilder::current()
{
    return m_open.empty() ? *m_root : *m_open.back().folder;
}

PathHash TreeBuilder::currentPath() const
{
    return m_open.empty() ? m_rootPath : m_open.back().path;
}

void TreeBuilder::closeDownTo(std::size_t depth)
{
    while (m_open.size() > depth) {
        OpenFolder complete = std::move(m_open.back());
        m_open.pop_back();
        current().addChild(std::move(complete.folder), complete.path);
    }
}

} // namespace tessera
