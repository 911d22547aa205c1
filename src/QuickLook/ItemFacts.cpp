// SPDX-License-Identifier: MIT
#include "QuickLook/ItemFacts.h"

#include "Model/Folder.h"
#include "Model/Url.h"
#include "Model/nodeLookup.h"
#include "QuickLook/PreviewItem.h"
#include "Utils/DisplayText.h"

namespace tessera {

std::optional<ItemFacts> factsOf(const PreviewItem& item)
{
    const File* const node = item.previewItemNode();
    if (node == nullptr) {
        return std::nullopt;
    }
    ItemFacts facts;
    facts.allocatedBytes = node->totalAllocation();
    const auto* const folder = nodeCast<Folder>(node);
    if (folder != nullptr) {
        facts.itemCount = folder->children().size();
    }
    if (isItem(*node)) {
        facts.path = item.previewItemURL().path();
    }
    facts.name = displayText(node->name().empty() ? facts.path : node->name());
    return facts;
}

} // namespace tessera
