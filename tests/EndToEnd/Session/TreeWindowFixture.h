// SPDX-License-Identifier: MIT
#pragma once

#include "DrivenProgram.h"
#include "ProgramOnDesk.h"
#include "support/Machine/TempTree.h"

#include <memory>
#include <string>

namespace tessera::test {

/// The program's window on a folder of a few boxes that are large enough to aim at:
///
///     movie, song              documents
///     docs/report, docs/notes  documents in a folder
///     docs/drafts/first, docs/drafts/second
class TreeWindow : public ProgramOnDesk {
protected:
    void SetUp() override;
    /// Closes the window: whatever the test did, the program ends by itself and has no complaints.
    void TearDown() override;

    TreeWindow();

    virtual std::unique_ptr<DrivenProgram> start() const;

    /// Waits until the map shows the folder as it is on the disk now, `shown` filling the map and
    /// `selected` alone having the look of the selection; says what differs otherwise.
    testing::AssertionResult shows(const std::string& shown = {}, const std::string& selected = {});

    TempTree tree;
    std::unique_ptr<DrivenProgram> program;

    XDesk& desk() const override { return program->desk(); }
    std::string log() const override { return program->log(); }
};

} // namespace tessera::test
