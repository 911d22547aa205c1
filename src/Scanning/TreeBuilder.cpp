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

void TreeBuilder::add(const DirectoryItem& item)
{
    closeDownTo(item.level - 1);
    if (item.isDirectory) {
        auto folder = makeNode<Folder>(item.name);
        folder->setHidden(item.isHidden);
        m_open.push_back({std::move(folder), currentPath().of(item.name)});
        return;
    }
    auto document = makeNode<Document>(item.name);
    document->setTotalAllocation(std::min(item.allocatedBytes, kMaxAllocation));
    document->setHidden(item.isHidden);
    current().addChild(std::move(document));
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
