// SPDX-License-Identifier: MIT
#pragma once

#include "Desktop/OtherPrograms.h"

#include <string>
#include <vector>

namespace tessera {

/// What stands at a path, as far as it matters to who opens it.
struct ItemLook {
    HandOver outcome = HandOver::Failed; ///< Done when something stands there
    std::string contentType = {};
};

/// The desktop's programs, by GIO. Each function may wait for a disk for as long as that likes, and
/// may be called from any thread.
namespace gio_programs {

/// Looks at what the absolute path leads to. Its bytes may be anything.
[[nodiscard]] ItemLook lookAt(const std::string& path);

/// Whether what is of that type may be run when it is opened, by the desktop or by a program that
/// says that it opens such things and runs them, as Wine and Java do.
[[nodiscard]] bool isProgram(const std::string& contentType);

/// As OtherPrograms::findPrograms() has them.
[[nodiscard]] std::vector<ProgramChoice> programsFor(const std::string& contentType);

/// Has the desktop's program for that type open the item, for a script that for texts.
[[nodiscard]] HandOver openByType(const Url& item, const std::string& contentType);

/// Has that program open it.
[[nodiscard]] HandOver openBy(const std::string& programId, const Url& item);

/// Of GLib, as it runs.
[[nodiscard]] std::string libraryVersion();

} // namespace gio_programs

} // namespace tessera
