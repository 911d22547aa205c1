// SPDX-License-Identifier: MIT
#pragma once

#include "TreeView/IconProvider.h"

#include <QHash>
#include <QMimeDatabase>
#include <QString>

namespace tessera {

/// Icons from the desktop's icon theme, chosen by the kind of the node and, for a document, by
/// its name alone. A theme lookup reads the theme's folders, so that each picture is looked up
/// once and kept.
class DesktopIconProvider final : public IconProvider {
public:
    /// Looks the commonest icons up, so that the first hover need not.
    DesktopIconProvider();

    [[nodiscard]] QPixmap icon(const File& node, int points, double scale) override;

private:
    struct Key {
        QString name;
        int points = 0;
        double scale = 1;

        bool operator==(const Key&) const = default;
    };
    friend size_t qHash(const Key& key, size_t seed)
    {
        return qHashMulti(seed, key.name, key.points, key.scale);
    }

    QPixmap namedIcon(const Key& key, const QString& genericName, bool isFolder);

    QMimeDatabase m_types;
    QHash<Key, QPixmap> m_icons;
};

} // namespace tessera
