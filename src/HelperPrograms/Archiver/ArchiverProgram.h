// SPDX-License-Identifier: MIT
#pragma once

#include "HelperPrograms/Archiver/ArchiverCommandLine.h"
#include "HelperPrograms/Archiver/ArchiverSystem.h"

namespace tessera {

/// Makes the archive and returns one of archiver_status. On standard error it says in one line why
/// something failed, or in one line for each sort of thing what an archive otherwise complete does
/// not hold. An archive that could not be completed stays where it is, without its name.
int runArchiver(const ArchiverCommandLine& commandLine, ArchiverSystem& system);

} // namespace tessera
