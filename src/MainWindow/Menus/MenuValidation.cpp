// SPDX-License-Identifier: MIT
#include "MainWindow/Menus/MenuValidation.h"

#include "Model/File.h"
#include "Model/NodeLookup.h"

namespace tessera {

bool validateMenuItem(int tag, const MenuContext& context)
{
    const File* const selected = context.hasTreeScreen ? context.selectedFile : nullptr;
    const bool isFolder = selected != nullptr && selected->isFolder();
    switch (tag) {
    case menu_tag::kZoomOut:
        return context.hasTreeScreen && !context.isRootInView;
    case menu_tag::kQuickLook:
    case menu_tag::kShowInFinder:
        return selected != nullptr;
    case menu_tag::kZoomIn:
    case menu_tag::kIgnore:
        return isFolder;
    case menu_tag::kRescan:
        return context.hasTreeScreen && context.canRescan;
    case menu_tag::kCompress:
    case menu_tag::kMoveToTrash:
        return selected != nullptr && isItem(*selected);
    case menu_tag::kHome:
        return !context.hasHomeScreen;
    default:
        return true;
    }
}

} // namespace tessera
