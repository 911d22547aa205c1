// SPDX-License-Identifier: MIT
#pragma once

#include <string>

namespace tessera {

class ResourceValues;
class Url;

/// Whether the item lies in a Time Machine backup. There the same files appear once for each day,
/// so that no sum of their sizes means anything.
bool isTimeMachineBackup(const Url& url);

/// The name of the volume that holds the item, as bytes.
std::string nameOfVolume(const Url& url, const ResourceValues& resourceValues);

} // namespace tessera
