// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <string>

namespace tessera {

struct Location;
class Url;

/// What the user reads instead of a path.

/// A volume is called as the folder is in which it is mounted; the root has a name of its own.
QString localizedVolumeName(const Url& volume);

/// Folders are called by their own names, which are in the user's language; those that are not the
/// user's by what is in them.
QString localizedLocationName(const Location& location);

/// The path with every occurrence of the home directory in it as "~". Both are bytes.
QString pathWithTilde(const std::string& path, const std::string& homeDirectory);

} // namespace tessera
