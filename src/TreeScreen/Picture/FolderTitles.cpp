// SPDX-License-Identifier: MIT
#include "TreeScreen/Picture/FolderTitles.h"

#include "Model/UserDefaults.h"

namespace tessera {

FolderTitles folderTitles(const UserDefaults& defaults)
{
    return defaults.boolean(kFolderSizesKey) ? FolderTitles::NamesAndSizes : FolderTitles::Names;
}

} // namespace tessera
