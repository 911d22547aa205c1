// SPDX-License-Identifier: MIT
#include "Ledger/UnseenFolders.h"

#include "Model/TopFolder.h"

#include <algorithm>

namespace tessera {

namespace {

/// Whether the node is known to be of another file system.
bool isElsewhere(const File& node, const ScanFindings& findings)
{
    return std::ranges::any_of(
        findings.mounted(), [&node](const File* mounted) { return isAtOrBelow(node, *mounted); });
}

std::size_t countElsewhere(const ScanFindings::Nodes& nodes, const ScanFindings& findings)
{
    return static_cast<std::size_t>(std::ranges::count_if(
        nodes, [&findings](const File* node) { return isElsewhere(*node, findings); }));
}

} // namespace

UnseenFolders unseenFolders(const TopFolder& root)
{
    const ScanFindings& findings = root.findings();
    UnseenFolders unseen;
    unseen.unreadableCount
        = findings.unreadableCount() - countElsewhere(findings.unnamed(), findings);
    unseen.leftOutCount = findings.leftOut().size() - countElsewhere(findings.leftOut(), findings);
    for (const UnreadableFolder& folder : findings.unreadable()) {
        if (isElsewhere(*folder.node, findings)) {
            --unseen.unreadableCount;
        } else {
            unseen.unreadable.push_back({folder.path, folder.reason});
        }
    }
    return unseen;
}

} // namespace tessera
