// SPDX-License-Identifier: MIT
#include "HelperPrograms/Archiver/ArchiveFailure.h"

#include <system_error>

namespace tessera {

std::string ArchiveFailure::text() const
{
    return "cannot " + operation + " '" + path + "': " + std::generic_category().message(code);
}

} // namespace tessera
