// SPDX-License-Identifier: MIT
#pragma once

#include "Platform/PlatformServices.h"
#include "Start/Launch.h"

#include <string>

namespace tessera {

/// What the screens need of the platform; refers to `services`.
inline LaunchServices launchServices(const PlatformServices& services)
{
    const std::string homeDirectory
        = services.prompt.fileAccess->absolutePath(services.userAccount->homeDirectory());
    return {
        {*services.fileManager,
         *services.resourceValues,
         *services.fileSystemAttributes,
         *services.mainThread,
         services.clock,
         homeDirectory},
        *services.prompt.resourceValues,
        *services.prompt.fileSystemAttributes,
        *services.prompt.fileAccess,
        {*services.userDefaults, *services.recentDocuments, *services.standardFolders},
        {*services.mountedVolumes,
         *services.standardFolders,
         *services.userAccount,
         homeDirectory,
         services.fileSystemAttributes,
         services.resourceValues},
        *services.fileAccess,
        *services.colorSchemePreference,
        *services.motionPreference,
        *services.workspace,
        services.fileReader,
        services.rasterDecoder,
        services.makeTask,
        services.archiver,
        *services.userAccount,
        *services.launcherProgress,
        *services.runningInstance,
        *services.endRequests,
        services.helpFolder,
        services.availableMemory,
        PlatformServices::hasTerminal()};
}

} // namespace tessera
