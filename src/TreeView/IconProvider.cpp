// SPDX-License-Identifier: MIT
#include "TreeView/IconProvider.h"

#include "Model/Document.h"
#include "Model/Folder.h"
#include "Model/Url.h"

namespace tessera {

QPixmap IconProvider::iconForUrl(const Url& item, int points, double scale)
{
    if (item.isDirectory()) {
        return icon(*makeNode<Folder>(item.lastPathComponent()), points, scale);
    }
    return icon(*makeNode<Document>(item.lastPathComponent()), points, scale);
}

} // namespace tessera
