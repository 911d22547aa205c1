// SPDX-License-Identifier: MIT
#pragma once

#include "EndToEnd/Desk/XDesk.h"
#include "ExpectedPicture.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <memory>
#include <string>

namespace tessera::test {

/// What the user does with the program's windows and sees of them. The fixtures derived from it say
/// where the program runs.
class ProgramOnDesk : public testing::Test {
protected:
    virtual XDesk& desk() const = 0;
    /// What the program has written to its standard error.
    virtual std::string log() const = 0;

    /// Entries of the context menus: how far down from the top, or up from the bottom, without
    /// separators.
    enum class MenuEntry {
        ZoomIn = 7,
        RescanFolder = 8,
        Ignore = 9,
        Compress = -4,
        MoveToTrash = -2
    };

    /// Waits until the map shows that picture; says what differs otherwise.
    testing::AssertionResult showsPicture(std::unique_ptr<ExpectedPicture> picture);

    /// Wait until there is a window of the kind, or none any more.
    testing::AssertionResult opens(XWindow::Kind kind);
    testing::AssertionResult closes(XWindow::Kind kind);

    /// On the screen, where a click reaches that box: a document's middle, a folder's head. The
    /// boxes lie where the last showsPicture() found them.
    QPoint placeOf(const std::string& path) const;

    /// Moves the pointer onto that box and waits for the tooltip there.
    testing::AssertionResult hover(const std::string& path);

    /// Opens the box's context menu and picks that entry with the arrow keys.
    testing::AssertionResult pick(const std::string& path, MenuEntry entry);

    /// Answer the dialog that comes, with its default button or with Escape.
    testing::AssertionResult acceptDialog();
    testing::AssertionResult rejectDialog();

    /// Waits until the small window says that the archive is made, and closes it.
    testing::AssertionResult closeResult();

    /// Has a warning's first button pressed, which stands before its default button.
    testing::AssertionResult acceptWarning();

    /// Waits for the preview and closes it with Escape.
    testing::AssertionResult closePreview();

    /// Where no window is.
    QPoint beside() const;
    XWindow mainWindow() const;
    testing::AssertionResult failure(const std::string& reason) const;

    /// Waits until the topmost window of that kind gets the keys.
    testing::AssertionResult becomesActive(XWindow::Kind kind);

private:
    /// Waits for a window of the kind, types the key there and waits until it has closed.
    testing::AssertionResult closeWithKey(XWindow::Kind kind, std::uint32_t keysym);

    std::unique_ptr<ExpectedPicture> m_expected;
    QRect m_map;
};

} // namespace tessera::test
