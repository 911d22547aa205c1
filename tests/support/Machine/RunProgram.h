// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

namespace tessera::test {

/// How a program ended and what it wrote.
struct ProgramResult {
    int exitStatus = -1; ///< -1 when it did not exit by itself
    std::string standardOutput;
    std::string standardError;
};

/// Runs a program to its end. Arguments are bytes. Each of `environment` is "NAME=value".
ProgramResult runProgram(
    const std::string& program,
    const std::vector<std::string>& arguments,
    const std::vector<std::string>& environment = {});

} // namespace tessera::test
