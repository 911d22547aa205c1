// SPDX-License-Identifier: MIT
#pragma once

#include "support/Machine/RunProgram.h"
#include "support/Machine/TempTree.h"

#include <string>
#include <vector>

namespace tessera::test {

/// A disk of a test's own, which only this process sees: a file system, freshly made in a file.
class MountedImage {
public:
    /// `makeFileSystem` is the program that makes it, with its options, such as mkfs.xfs.
    explicit MountedImage(std::vector<std::string> makeFileSystem);
    MountedImage(const MountedImage&) = delete;
    MountedImage& operator=(const MountedImage&) = delete;
    ~MountedImage();

    /// Why there is none; empty when there is one. A machine may have no such programs, file
    /// systems, or devices, and a process may have no right to them.
    const std::string& problem() const { return m_problem; }

    std::string path() const { return m_outside.pathOf("disk"); }
    std::string pathOf(const std::string& name) const { return path() + '/' + name; }

    /// As runProgram(), a program of the administrator's, whether or not they are in PATH.
    static ProgramResult run(const std::string& program, const std::vector<std::string>& arguments);

private:
    TempTree m_outside;
    std::string m_problem;
};

} // namespace tessera::test
