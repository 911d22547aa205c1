// SPDX-License-Identifier: MIT
#pragma once

#include "EndToEnd/Desk/ScreenReader.h"
#include "FolderGate.h"
#include "ProgramOnDesk.h"
#include "UserSession.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

namespace tessera::test {

/// The program as a user starts it who has just logged in. The home folder has Documents,
/// Downloads, Music and Pictures, the first two with boxes that are large enough to aim at:
///
///     Documents/ report, notes, .outline, drafts/ first, second
///     Downloads/ movie, song, fonts/ serif, sans
class WholeProgram : public ProgramOnDesk {
protected:
    void SetUp() override;
    /// Closes the window: whatever the test did, the program ends by itself and has no complaints.
    void TearDown() override;

    /// For what a test wants to be in the session before the program is started.
    virtual void prepareSession() { }

    /// Starts the program and waits for its window. It must not be running.
    void launch(const std::vector<std::string>& arguments = {});
    /// Starts it anew, so that its scans wait wherever the test holds a folder.
    void launchGated();
    /// Closes its window and waits for its end.
    testing::AssertionResult quits();

    std::string home(const std::string& path) const;

    /// The control of that name, once it can be seen; of any role when none is given. Throws
    /// std::runtime_error when it does not come.
    Control see(const std::string& name, const std::string& role = {});
    /// Waits until no control of that name can be seen.
    testing::AssertionResult isGone(const std::string& name);
    /// Clicks into the middle of a control, once it can be seen.
    void clickOn(const std::string& name, const std::string& role = {});

    /// Waits for the home screen, ready for the user.
    testing::AssertionResult isHome();
    /// Waits until the map shows that folder of the home folder.
    testing::AssertionResult showsTree(
        const std::string& folder, const std::string& shown = {}, const std::string& selected = {});
    /// Clicks on a location of the home screen and waits until it looks chosen.
    testing::AssertionResult choose(const std::string& location);
    /// Double-clicks on a location of the home screen and waits for its tree.
    testing::AssertionResult scan(const std::string& location);

    XDesk& desk() const override { return session->desk(); }
    std::string log() const override { return session->log(); }
    ScreenReader& reader() const { return session->reader(); }

    FolderGate gate;
    std::unique_ptr<UserSession> session;
    std::unique_ptr<ChildProcess> program;

private:
    void awaitWindow();
};

} // namespace tessera::test
