// SPDX-License-Identifier: MIT
#pragma once

#include "support/Machine/FailingCalls.h"
#include "support/Machine/RunProgram.h"

#include <cstddef>
#include <string>
#include <vector>

namespace tessera::test {

/// Runs the archiver as the application does.
ProgramResult makeArchive(const std::string& source, const std::string& target);

/// What Python reads from the archive, one line an item in the order of the paths, the extended
/// attributes in lines of their own; or what was wrong with the archive.
std::vector<std::string> linesOfArchive(const std::string& archive);

/// The item on the disk in the same words.
std::vector<std::string> linesOfTree(const std::string& item);

/// "ENTRIES DEPTH", counted by Python, which reads all of the archive.
std::string depthOfArchive(const std::string& archive);

/// Bytes that cannot be compressed, the same ones each time.
std::string noise(std::size_t length);

/// Runs a program by its name, with UTF-8 as its character set.
ProgramResult runTool(const std::string& name, const std::vector<std::string>& arguments);

/// Runs the archiver while a system call fails.
ProgramResult makeArchiveWhereFails(
    const FailingCall& call, const std::string& source, const std::string& target);

/// Runs the archiver as somebody who is bound by permissions, be the tests run by the super-user.
ProgramResult makeArchiveWithoutRights(const std::string& source, const std::string& target);

} // namespace tessera::test
