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
        .defaults = *services.userDefaults,
        .homeDirectory = homeDirectory,
        .fileSystemAttributes = services.fileSystemAttributes,
        .resourceValues = services.resourceValues};
}

inline RootModelServices rootModelServices(const PlatformServices& services)
{
    return {
        .defaults = *services.userDefaults,
        .recentDocuments = *services.recentDocuments,
        .standardFolders = *services.standardFolders};
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
        .rootModelServices = rootModelServices(services),
        .homeScreen = homeViewServices(services, homeDirectory),
        .files = *services.fileAccess,
        .colorScheme = *services.colorSchemePreference,
        .motion = *services.motionPreference,
        .hiddenFiles = services.hiddenFilesPreference.get(),
        .workspace = *services.workspace,
        .otherPrograms = *services.otherPrograms,
        .trashHistory = *services.trashHistory,
        .fileReader = services.fileReader,
        .rasterDecoder = services.rasterDecoder,
        .coveredFolders = services.coveredFolders,
        .openFiles = services.openFiles,
        .sharedExtents = services.sharedExtents,
        .itemStates = services.itemStates,
        .itemChanges = services.itemChanges,
        .makeTask = services.makeTask,
        .archiver = services.archiver,
        .userAccount = *services.userAccount,
        .launcherProgress = *services.launcherProgress,
        .notifications = *services.notifications,
        .runningInstance = *services.runningInstance,
        .endRequests = *services.endRequests,
        .helpFolder = services.helpFolder,
        .libraries = services.libraries,
        .availableMemory = services.availableMemory,
        .hasTerminal = PlatformServices::hasTerminal()};
}

} // namespace tessera
