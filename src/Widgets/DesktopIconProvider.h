// SPDX-License-Identifier: MIT
#pragma once

#include "Model/NodeType.h"
#include "Widgets/IconProvider.h"

#include <QHash>
#include <QIcon>
#include <QMimeDatabase>
#include <QString>

#include <string_view>

namespace tessera {

/// Icons from the desktop's icon theme, or the program's own where the theme has none, chosen by
/// the kind of the node and, for a document, by its name alone. A theme lookup reads the theme's
/// folders, so that each picture is looked up once and kept.
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

    /// Where an icon is looked for: in the theme by its name, then by the name of what it is more
    /// generally, then among the program's own pictures.
    struct IconNames {
        QString inTheme;
        QString moreGeneral;
        std::string_view own;
    };

    static IconNames folderNames(NodeType type);
    [[nodiscard]] IconNames documentNames(const QString& fileName) const;
    static QIcon findIcon(const IconNames& names);
    QPixmap namedIcon(const IconNames& names, int points, double scale);

    QMimeDatabase m_types;
    QHash<Key, QPixmap> m_icons;
};

} // namespace tessera
