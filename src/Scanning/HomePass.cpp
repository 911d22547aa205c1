// SPDX-License-Identifier: MIT
#include "Scanning/HomePass.h"

#include "Model/NodeLookup.h"
#include "Model/TreeEdit.h"
#include "Scanning/Scanner.h"

#include <utility>
#include <vector>

namespace tessera {

namespace {

/// A folder with what the scan found in the encrypted home. The space that is free there is free
/// on the volume around it as well and must not count twice.
std::unique_ptr<Folder> homeFolder(TopFolder& root)
{
    auto folder = makeNode<Folder>(root.fragment());
    folder->setOwnAllocation(root.ownAllocation());
    for (std::unique_ptr<File>& child : root.takeChildren()) {
        if (child->type() != NodeType::FreeSpace) {
            folder->addChild(std::move(child));
        }
    }
    return folder;
}

} // namespace

std::optional<Url> HomePass::nextScan(Scanner& ended)
{
    const std::vector<Url> homes = ended.fileVaults();
    if (m_surroundings != nullptr || homes.empty()) {
        return std::nullopt;
    }
    m_surroundings = ended.takeTopFolder();
    return homes.front();
}

std::unique_ptr<TopFolder> HomePass::takeTree(Scanner& ended)
{
    std::unique_ptr<TopFolder> scanned = ended.takeTopFolder();
    if (m_surroundings == nullptr) {
        return scanned;
    }
    // By whole names: a sibling whose name begins like the user's must not hide the home.
    File* const place = nodeAtPath(*m_surroundings, scanned->origin());
    if (place != nullptr && place->parent() != nullptr) {
        std::unique_ptr<Folder> home = homeFolder(*scanned);
        scanned->findings().addMounted(*scanned);
        exchange(*place, loose(std::move(home), *scanned));
    }
    return std::move(m_surroundings);
}

} // namespace tessera
