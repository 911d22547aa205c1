// SPDX-License-Identifier: MIT
#pragma once

#include <string>

namespace tessera {

class MountedVolumes;
struct CommandLine;

/// The folder that the command line asks for, by its name or by what it is to the user; empty when
/// it asks for none. The disk is the one of the home screen that holds the home folder, which is
/// given as a path over no link. Main thread only; touches no disk.
std::string folderToShow(
    const CommandLine& commandLine, const std::string& home, const MountedVolumes& volumes);

} // namespace tessera
