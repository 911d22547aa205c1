// SPDX-License-Identifier: MIT
#pragma once

#include "DrivenProgram.h"
#include "ExpectedPicture.h"
#include "support/TempTree.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <memory>
#include <string>

namespace tessera::test {

/// The program's window on a folder of a few boxes that are large enough to aim at:
///
///     movie, song              documents
///     docs/report, docs/notes  documents in a folder
///     docs/drafts/first, docs/drafts/second
class TreeWindow : public testing::Test {
protected:
    void SetUp() override;
    /// Closes the window: whatever the test did, the program ends by itself and has no complaints.
    void TearDown() override;

    /// Entries of the context menus: how far down from the top, or up from the bottom, without
    /// separators.
    enum class MenuEntry { ZoomIn = 3, RescanFolder = 4, Compress = -2, MoveToTrash = -1 };

    TreeWindow();

    /// Waits until the map shows the folder as it is on the disk now, `shown` filling the map and
    /// `selected` alone having the look of the selection; says what differs otherwise.
    testing::AssertionResult shows(const std::string& shown = {}, const std::string& selected = {});

    /// Wait until there is a window of the kind, or none any more.
    testing::AssertionResult opens(XWindow::Kind kind);
    testing::AssertionResult closes(XWindow::Kind kind);

    /// On the screen, where a click reaches that box: a document's middle, a folder's head. The
    /// boxes lie where the last shows() found them.
    QPoint placeOf(const std::string& path) const;

    /// Moves the pointer onto that box and waits for the tooltip there.
    testing::AssertionResult hover(const std::string& path);

    /// Opens the box's context menu and picks that entry with the arrow keys.
    testing::AssertionResult pick(const std::string& path, MenuEntry entry);

    /// Answer the dialog that comes, with its default button or with Escape.
    testing::AssertionResult acceptDialog();
    testing::AssertionResult rejectDialog();

    /// Waits for the preview and closes it with Escape.
    testing::AssertionResult closePreview();

    /// Where no window is.
    QPoint beside() const;

    TempTree tree;
    std::unique_ptr<DrivenProgram> program;

    XDesk& desk() { return program->desk(); }
    XWindow mainWindow() const { return *program->window(XWindow::Kind::Main); }
    testing::AssertionResult failure(const std::string& reason) const;

private:
    /// Waits for a window of the kind, types the key there and waits until it has closed.
    testing::AssertionResult closeWithKey(XWindow::Kind kind, std::uint32_t keysym);
    std::unique_ptr<ExpectedPicture> m_expected;
    QRect m_map;
};

} // namespace tessera::test
