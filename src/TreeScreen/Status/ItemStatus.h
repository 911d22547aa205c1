// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringList>

namespace tessera {

class File;
class Folder;
class LayoutObject;

/// What one line says of a box, or of the folder in view. Fit to be shown as it is.
struct ItemStatus {
    QString name;
    /// Its size, how many items lie directly in a folder, and its share of what is in view. Of a
    /// name of a file that is counted at another one: that.
    QStringList figures;

    bool operator==(const ItemStatus&) const = default;
};

/// `inView` fills the picture. Of that folder itself the share is the one of all that was scanned.
/// Takes no longer for large folders; looks nothing up on the disk.
[[nodiscard]] ItemStatus statusOf(const File& item, const Folder& inView);
[[nodiscard]] ItemStatus statusOf(const LayoutObject& box, const Folder& inView);

} // namespace tessera
