// SPDX-License-Identifier: MIT
#include "QuickLook/ItemFacts.h"

#include "Base/DisplayText.h"
#include "Base/Url.h"
#include "Language/NodeName.h"
#include "Model/Folder.h"
#include "Model/NodeLookup.h"

namespace tessera {

std::optional<ItemFacts> factsOf(const File* node)
{
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
        facts.path = placeOnDisk(*node).path();
    }
    facts.name = node->name().empty() ? displayText(facts.path) : shownName(*node);
    return facts;
}

} // namespace tessera
