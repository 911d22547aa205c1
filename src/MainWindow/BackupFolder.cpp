// SPDX-License-Identifier: MIT
#include "MainWindow/BackupFolder.h"

#include "Desktop/MountedVolumes.h"

namespace tessera {

bool isTimeMachineBackup(const Url& url)
{
    return url.path().find("Backups.backupdb") != std::string::npos;
}

Url volumeOf(const Url& url, const MountedVolumes& volumes)
{
    std::string path = url.path();
    while (path.size() > 1 && !volumes.volumeAt(path)) {
        path.erase(path.rfind('/'));
    }
    return {path.empty() ? "/" : path, true};
}

} // namespace tessera
