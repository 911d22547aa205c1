// SPDX-License-Identifier: MIT
#pragma once

#include "HelperPrograms/Archiver/Archives.h"
#include "support/Machine/TempTree.h"

#include <gtest/gtest.h>

#include <string>

namespace tessera::test {

/// A folder "X" with a file to archive, and a folder for the archive.
class ArchiveFixture : public testing::Test {
protected:
    ArchiveFixture()
    {
        tree.makeFolder("X");
        tree.writeFile("X/file", "content");
    }

    ProgramResult archiveX() const { return makeArchive(source, target); }

    TempTree tree;
    TempTree out;
    std::string source = tree.pathOf("X");
    std::string target = out.pathOf("X.zip");
    std::string part = out.pathOf("X.zip.part"); ///< what it is called until it is complete
};

} // namespace tessera::test
