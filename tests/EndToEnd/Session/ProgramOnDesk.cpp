// SPDX-License-Identifier: MIT
#include "ProgramOnDesk.h"

#include "DrivenTreeScreen.h"
#include "EndToEnd/Desk/Eventually.h"

#include <cstdlib>
#include <utility>

namespace tessera::test {

namespace {

constexpr int kIntoFolderHead = 12;

} // namespace

XWindow ProgramOnDesk::mainWindow() const
{
    return *desk().window(XWindow::Kind::Main);
}

QPoint ProgramOnDesk::beside() const
{
    return desk().screen().bottomRight();
}

testing::AssertionResult ProgramOnDesk::failure(const std::string& reason) const
{
    return testing::AssertionFailure() << reason << "\nThe program wrote:\n" << log();
}

testing::AssertionResult ProgramOnDesk::showsPicture(std::unique_ptr<ExpectedPicture> picture)
{
    m_expected = std::move(picture);
    desk().movePointer(beside()); // so that no tooltip covers the map
    std::string difference = "there is no map";
    const bool isShown = eventually([&] {
        if (const std::optional<QRect> map = mapOn(desk())) {
            m_map = *map;
            m_expected->setMapSize(m_map.size());
            difference = m_expected->firstDifference(desk().picture(m_map));
        }
        return difference.empty();
    });
    return isShown ? testing::AssertionSuccess() : failure(difference);
}

testing::AssertionResult ProgramOnDesk::opens(XWindow::Kind kind)
{
    return eventually([&] { return desk().window(kind).has_value(); })
        ? testing::AssertionSuccess()
        : failure("no such window came");
}

testing::AssertionResult ProgramOnDesk::closes(XWindow::Kind kind)
{
    return eventually([&] { return !desk().window(kind).has_value(); })
        ? testing::AssertionSuccess()
        : failure("the window stayed");
}

testing::AssertionResult ProgramOnDesk::hover(const std::string& path)
{
    const QPoint place = placeOf(path);
    const bool isShown = eventually([&] {
        // The window heeds the pointer once it knows that it is active, and only a move tells it.
        desk().movePointer(place + QPoint(1, 0));
        desk().movePointer(place);
        const std::optional<XWindow> tooltip = desk().window(XWindow::Kind::Tooltip);
        return tooltip && tooltip->frame.left() == place.x();
    });
    return isShown ? testing::AssertionSuccess() : failure("no tooltip came");
}

testing::AssertionResult ProgramOnDesk::pick(const std::string& path, MenuEntry entry)
{
    desk().click(placeOf(path), XDesk::Button::Right);
    if (const auto opened = opens(XWindow::Kind::Menu); !opened) {
        return opened;
    }
    const int steps = static_cast<int>(entry);
    for (int i = 0; i < std::abs(steps); ++i) {
        desk().typeKey(steps > 0 ? key::kDown : key::kUp);
    }
    desk().typeKey(key::kReturn);
    return closes(XWindow::Kind::Menu);
}

testing::AssertionResult ProgramOnDesk::acceptDialog()
{
    return closeWithKey(XWindow::Kind::Dialog, key::kReturn);
}

testing::AssertionResult ProgramOnDesk::rejectDialog()
{
    return closeWithKey(XWindow::Kind::Dialog, key::kEscape);
}

testing::AssertionResult ProgramOnDesk::closeResult()
{
    const bool isMade = eventually([&] {
        const std::optional<XWindow> dialog = desk().window(XWindow::Kind::Dialog);
        return dialog && dialog->title.starts_with("Archive Created");
    });
    return isMade ? closeWithKey(XWindow::Kind::Dialog, key::kEscape)
                  : failure("no archive was made");
}

testing::AssertionResult ProgramOnDesk::acceptWarning()
{
    if (const auto opened = opens(XWindow::Kind::Dialog); !opened) {
        return opened;
    }
    if (const auto active = becomesActive(XWindow::Kind::Dialog); !active) {
        return active;
    }
    desk().typeKey(key::kUp);
    return closeWithKey(XWindow::Kind::Dialog, key::kSpace);
}

testing::AssertionResult ProgramOnDesk::closePreview()
{
    return closeWithKey(XWindow::Kind::Panel, key::kEscape);
}

testing::AssertionResult ProgramOnDesk::closeWithKey(XWindow::Kind kind, std::uint32_t keysym)
{
    if (const auto opened = opens(kind); !opened) {
        return opened;
    }
    if (const auto active = becomesActive(kind); !active) {
        return active;
    }
    desk().typeKey(keysym);
    const auto closed = closes(kind);
    if (const auto active = becomesActive(XWindow::Kind::Main); !active) {
        return active;
    }
    return closed;
}

/// A window manager takes its time over it, in which keys would be lost.
testing::AssertionResult ProgramOnDesk::becomesActive(XWindow::Kind kind)
{
    const XWindow window = *desk().window(kind);
    if (!desk().isActive(window)) {
        desk().activate(window);
    }
    return eventually([&] { return desk().isActive(window); })
        ? testing::AssertionSuccess()
        : failure("the window does not get the keys");
}

QPoint ProgramOnDesk::placeOf(const std::string& path) const
{
    const QRectF box = m_expected->boxOf(path);
    const bool isFolder = m_expected->isFolder(path);
    const QPointF place
        = isFolder ? QPointF(box.center().x(), box.top() + kIntoFolderHead) : box.center();
    return m_map.topLeft() + place.toPoint();
}

} // namespace tessera::test
