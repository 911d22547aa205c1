// SPDX-License-Identifier: MIT
#pragma once

#include "Platform/PlatformServices.h"
#include "Start/LaunchServices.h"

#include <string>

namespace tessera {

inline ScanEnvironment scanEnvironment(
    const PlatformServices& services, const std::string& homeDirectory)
{
    return {
        .fileManager = *services.fileManager,
        .resourceValues = *services.resourceValues,
        .fileSystemAttributes = *services.fileSystemAttributes,
        .mainThread = *services.mainThread,
        .clock = services.clock,
        .homeDirectory = homeDirectory};
}

inline HomeViewServices homeViewServices(
    const PlatformServices& services, const std::string& homeDirectory)
{
    return {
        .volumes = *services.mountedVolumes,
        .standardFolders = *services.standardFolders,
        .account = *services.userAccount,
        .homeDirectory = homeDirectory,
        .fileSystemAttributes = services.fileSystemAttributes,
        .resourceValues = services.resourceValues};
}

/// What the screens need of the platform; refers to `services`.
inline LaunchServices launchServices(const PlatformServices& services)
{
    const std::string homeDirectory
        = services.withTimeLimit.fileAccess->absolutePath(services.userAccount->homeDirectory());
    return {
        .scanEnvironment = scanEnvironment(services, homeDirectory),
        .resourceValues = WithTimeLimit(*services.withTimeLimit.resourceValues),
        .fileSystemAttributes = WithTimeLimit(*services.withTimeLimit.fileSystemAttributes),
        .filesWithTimeLimit = WithTimeLimit(*services.withTimeLimit.fileAccess),
        .rootModelServices
        = {.defaults = *services.userDefaults,
           .recentDocuments = *services.recentDocuments,
           .standardFolders = *services.standardFolders},
        .homeScreen = homeViewServices(services, homeDirectory),
        .files = *services.fileAccess,
        .colorScheme = *services.colorSchemePreference,
        .motion = *services.motionPreference,
        .workspace = *services.workspace,
        .fileReader = services.fileReader,
        .rasterDecoder = services.rasterDecoder,
        .makeTask = services.makeTask,
        .archiver = services.archiver,
        .userAccount = *services.userAccount,
        .launcherProgress = *services.launcherProgress,
        .runningInstance = *services.runningInstance,
        .endRequests = *services.endRequests,
        .helpFolder = services.helpFolder,
        .availableMemory = services.availableMemory,
        .hasTerminal = PlatformServices::hasTerminal()};
}

} // namespace tessera
