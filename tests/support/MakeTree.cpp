// SPDX-License-Identifier: MIT
#include "support/MakeTree.h"

#include "Model/Document.h"
#include "support/TreeText.h"

#include <algorithm>
#include <stdexcept>
#include <string>
#include <vector>

namespace tessera::test {

namespace {

/// The folders that are being filled, outermost first. A folder joins its parent complete.
class OpenFolders {
public:
    explicit OpenFolders(TopFolder& top)
        : m_top(top)
    {
    }

    void add(const TreeTextItem& item)
    {
        closeDownTo(item.level - 1);
        if (item.isDirectory) {
            m_open.push_back(makeNode<Folder>(item.name));
            m_open.back()->setHidden(item.isHidden);
            return;
        }
        auto document = makeNode<Document>(item.name);
        const bool isCounted = item.inode == 0
            || m_top.linkedNames().add(*document, {kDevice, item.inode}, item.linkCount);
        document->setTotalAllocation(isCounted ? item.bytes : 0);
        document->setHidden(item.isHidden);
        current().addChild(std::move(document));
    }

    void closeDownTo(std::size_t depth)
    {
        while (m_open.size() > depth) {
            std::unique_ptr<Folder> done = std::move(m_open.back());
            m_open.pop_back();
            current().addChild(std::move(done));
        }
    }

private:
    static constexpr std::uint64_t kDevice = 1;

    Folder& current() { return m_open.empty() ? m_top : *m_open.back(); }

    TopFolder& m_top;
    std::vector<std::unique_ptr<Folder>> m_open;
};

} // namespace

std::unique_ptr<TopFolder> makeTree(std::string_view origin, std::string_view items)
{
    auto top = makeNode<TopFolder>(lastPathComponent(origin));
    top->setOrigin(std::string(origin));
    OpenFolders open(*top);
    for (const TreeTextItem& item : parseTreeText(items)) {
        open.add(item);
    }
    open.closeDownTo(0);
    top->sort();
    return top;
}

File& at(Folder& folder, std::string_view path)
{
    Folder* current = &folder;
    while (current != nullptr) {
        const std::size_t slash = path.find('/');
        const std::string_view name = path.substr(0, slash);
        File* found = nullptr;
        for (File* child : current->children()) {
            found = found == nullptr && child->name() == name ? child : found;
        }
        if (found != nullptr && slash == std::string_view::npos) {
            return *found;
        }
        path.remove_prefix(std::min(slash, path.size() - 1) + 1);
        current = nodeCast<Folder>(found);
    }
    throw std::invalid_argument("at: no such node");
}

} // namespace tessera::test
