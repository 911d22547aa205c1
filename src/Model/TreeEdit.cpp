// SPDX-License-Identifier: MIT
#include "Model/TreeEdit.h"

#include <cstddef>
#include <utility>

namespace tessera {

LooseNode loose(std::unique_ptr<TopFolder> scanned)
{
    LinkedNames names = std::exchange(scanned->linkedNames(), {});
    ScanFindings findings = std::exchange(scanned->findings(), {});
    return {std::move(scanned), std::move(names), std::move(findings)};
}

LooseNode loose(std::unique_ptr<Folder> inItsPlace, TopFolder& scanned)
{
    scanned.findings().replace(scanned, *inItsPlace);
    LinkedNames names = std::exchange(scanned.linkedNames(), {});
    ScanFindings findings = std::exchange(scanned.findings(), {});
    return {std::move(inItsPlace), std::move(names), std::move(findings)};
}

LooseNode takeOut(File& node)
{
    return std::move(takeOut(std::vector{&node}).front());
}

std::vector<LooseNode> takeOut(const std::vector<File*>& nodes)
{
    std::vector<LooseNode> taken(nodes.size());
    TopFolder* const root = nodes.empty() ? nullptr : rootOfScan(*nodes.front());
    if (root != nullptr) {
        std::vector<LinkedNames> names = root->linkedNames().takeOut({nodes.begin(), nodes.end()});
        for (std::size_t i = 0; i < nodes.size(); ++i) {
            taken[i].names = std::move(names[i]);
            taken[i].findings = root->findings().takeOut(*nodes[i]);
        }
    }
    for (std::size_t i = 0; i < nodes.size(); ++i) {
        taken[i].node = nodes[i]->parent()->removeChild(*nodes[i]);
    }
    return taken;
}

File& putIn(Folder& parent, LooseNode coming)
{
    // It may know the folder that it came from still, which has no part in what follows.
    coming.node->setParent(nullptr);
    TopFolder* const root = rootOfScan(parent);
    if (root != nullptr) {
        root->linkedNames().takeIn(coming.names);
    }
    File& joined = parent.insertChild(std::move(coming.node));
    if (root != nullptr) {
        root->findings().takeIn(coming.findings);
    }
    return joined;
}

std::unique_ptr<File> exchange(File& old, LooseNode with)
{
    TopFolder* const root = rootOfScan(old);
    if (root != nullptr) {
        root->linkedNames().exchange(old, with.names);
        (void)root->findings().takeOut(old);
    }
    std::unique_ptr<File> left = old.parent()->replaceChild(old, std::move(with.node));
    if (root != nullptr) {
        root->findings().takeIn(with.findings);
    }
    return left;
}

} // namespace tessera
