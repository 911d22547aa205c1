// SPDX-License-Identifier: MIT
#include "Widgets/IconProvider.h"

#include "Base/Url.h"
#include "Model/Document.h"
#include "Model/Folder.h"

namespace tessera {

QPixmap IconProvider::iconForUrl(const Url& item, int points, double scale)
{
    if (item.isDirectory()) {
        return icon(*makeNode<Folder>(item.lastPathComponent()), points, scale);
    }
    return icon(*makeNode<Document>(item.lastPathComponent()), points, scale);
}

} // namespace tessera
