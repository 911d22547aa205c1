// SPDX-License-Identifier: MIT
#include "Shell/BackupFolder.h"

#include "Model/Url.h"
#include "Scanning/ResourceValues.h"

namespace tessera {

bool isTimeMachineBackup(const Url& url)
{
    return url.path().find("Backups.backupdb") != std::string::npos;
}

std::string nameOfVolume(const Url& url, const ResourceValues& resourceValues)
{
    std::string path = url.path();
    while (path.size() > 1 && !resourceValues.isVolume(path)) {
        path.erase(path.rfind('/'));
    }
    return std::string(lastPathComponent(path.empty() ? "/" : path));
}

} // namespace tessera
