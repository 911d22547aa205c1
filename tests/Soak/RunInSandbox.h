// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

namespace tessera::test {

/// Makes a sandbox, runs this same program in it with these arguments and the sandbox's path behind
/// them, removes the sandbox and returns the exit status; 1 when a signal ended the program. The
/// program's home and all that it keeps is in the sandbox. Started by the super-user, it runs as an
/// ordinary one, for whom folders can be closed, and "volume" is a file system of its own.
///
/// `programs` are the paths of those that the program starts from its own folder.
int runInSandbox(std::vector<std::string> arguments, const std::vector<std::string>& programs);

} // namespace tessera::test
