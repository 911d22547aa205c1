// SPDX-License-Identifier: MIT
#include "Start/FolderToShow.h"

#include "Desktop/MountedVolumes.h"
#include "Start/CommandLine.h"

namespace tessera {

namespace {

bool holds(const std::string& folder, const std::string& path)
{
    return folder == "/" || path == folder || path.starts_with(folder + '/');
}

std::string diskThatHolds(const std::string& path, const MountedVolumes& volumes)
{
    std::string innermost = "/";
    for (const MountedVolume& volume : volumes.mountedVolumes()) {
        const std::string& place = volume.url.path();
        if (holds(place, path) && place.size() > innermost.size()) {
            innermost = place;
        }
    }
    return innermost;
}

} // namespace

std::string folderToShow(
    const CommandLine& commandLine, const std::string& home, const MountedVolumes& volumes)
{
    switch (commandLine.place) {
    case CommandLine::Place::Home:
        return home;
    case CommandLine::Place::Disk:
        return diskThatHolds(home, volumes);
    case CommandLine::Place::Folder:
        break;
    }
    return commandLine.folder;
}

} // namespace tessera
