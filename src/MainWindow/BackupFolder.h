// SPDX-License-Identifier: MIT
#pragma once

#include "Base/Url.h"

namespace tessera {

class MountedVolumes;

/// Whether the item lies in a Time Machine backup. There the same files appear once for each day,
/// so that no sum of their sizes means anything.
bool isTimeMachineBackup(const Url& url);

/// The volume that holds the item.
Url volumeOf(const Url& url, const MountedVolumes& volumes);

} // namespace tessera
