// SPDX-License-Identifier: MIT
#pragma once

#include <QPixmap>

namespace tessera {

class File;
class Url;

/// Gives the icons that the desktop shows for files and folders. Main thread only.
class IconProvider {
public:
    IconProvider() = default;
    IconProvider(const IconProvider&) = delete;
    IconProvider& operator=(const IconProvider&) = delete;
    virtual ~IconProvider() = default;

    /// The node's icon, `points` wide and high, for a screen of the given scale factor. Touches
    /// no file. Null when there is none.
    [[nodiscard]] virtual QPixmap icon(const File& node, int points, double scale) = 0;

    /// The same for an item that is in no tree; told from its name and whether it is a directory.
    [[nodiscard]] QPixmap iconForUrl(const Url& item, int points, double scale);
};

} // namespace tessera
