// SPDX-License-Identifier: MIT
#include "Shell/BackupFolder.h"

#include "Scanning/ResourceValues.h"

namespace tessera {

bool isTimeMachineBackup(const Url& url)
{
    return url.path().find("Backups.backupdb") != std::string::npos;
}

Url volumeOf(const Url& url, const ResourceValues& resourceValues)
{
    std::string path = url.path();
    while (path.size() > 1 && !resourceValues.isVolume(path)) {
        path.erase(path.rfind('/'));
    }
    return {path.empty() ? "/" : path, true};
}

} // namespace tessera
