// SPDX-License-Identifier: MIT
#pragma once

#include "Model/FileSystemAttributes.h"
#include "Scanning/ResourceValues.h"

#include <QDate>

#include <functional>
#include <memory>
#include <string>

namespace tessera {

class MountedVolumes;
class StandardFolders;
class UserDefaults;
class UserAccount;

/// What the home screen needs from the system; each must outlive it.
struct HomeViewServices {
    const MountedVolumes& volumes;
    const StandardFolders& standardFolders;
    const UserAccount& account;
    UserDefaults& defaults;
    std::string homeDirectory; ///< path of the process's, over no link
    /// Asked by threads that may be stuck with a dead file system for longer than anything lives.
    std::shared_ptr<const FileSystemAttributes> fileSystemAttributes;
    std::shared_ptr<const ResourceValues> resourceValues;
    std::function<QDate()> today = QDate::currentDate;
};

} // namespace tessera
