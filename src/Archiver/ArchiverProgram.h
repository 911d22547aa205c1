// SPDX-License-Identifier: MIT
#pragma once

#include "Archiver/ArchiverCommandLine.h"
#include "Archiver/ArchiverSystem.h"

namespace tessera {

/// Makes the archive and returns the exit status: 0 when everything that has content is in it,
/// else 1 after one line on standard error, or 3 when no archive was made at all: what is in its
/// place is somebody else's and stays untouched. An archive that could not be completed stays where
/// it is.
int runArchiver(const ArchiverCommandLine& commandLine, ArchiverSystem& system);

} // namespace tessera
