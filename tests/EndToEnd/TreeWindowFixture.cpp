// SPDX-License-Identifier: MIT
#include "TreeWindowFixture.h"

#include "eventually.h"

#include <algorithm>
#include <cstdlib>
#include <random>

namespace tessera::test {

namespace {

constexpr QRect kFirstFrame(200, 100, 1000, 700);
constexpr int kIntoFolderHead = 12;

/// What no archiver makes smaller.
std::string noise(std::size_t bytes)
{
    std::mt19937 numbers; // NOLINT(cert-msc51-cpp): the same in every run
    std::string content(bytes, '\0');
    std::ranges::generate(content, [&numbers] { return static_cast<char>(numbers()); });
    return content;
}

} // namespace

TreeWindow::TreeWindow()
{
    // An archive of it has a size that nothing else here has: what has the same size stands in an
    // order of its own.
    tree.writeFile("movie", noise(500'000) + std::string(100'000, 'x'));
    tree.makeFile("song", 300'000);
    tree.makeFolder("docs");
    tree.makeFile("docs/report", 400'000);
    tree.makeFile("docs/notes", 200'000);
    tree.makeFolder("docs/drafts");
    tree.makeFile("docs/drafts/first", 350'000);
    tree.makeFile("docs/drafts/second", 150'000);
}

void TreeWindow::SetUp()
{
    program = std::make_unique<DrivenProgram>(tree.path());
    desk().movePointer(beside());
    ASSERT_TRUE(opens(XWindow::Kind::Main));
    desk().setFrame(mainWindow(), kFirstFrame);
    desk().activate(mainWindow());
    ASSERT_TRUE(shows());
}

void TreeWindow::TearDown()
{
    if (const std::optional<XWindow> open = program->window(XWindow::Kind::Main)) {
        desk().requestClose(*open);
    }
    EXPECT_TRUE(eventually([&] { return program->process().exitStatus().has_value(); }));
    EXPECT_EQ(program->process().exitStatus(), 0) << program->log();
}

QPoint TreeWindow::beside() const
{
    return program->desk().screen().bottomRight();
}

testing::AssertionResult TreeWindow::failure(const std::string& reason) const
{
    return testing::AssertionFailure() << reason << "\nThe program wrote:\n" << program->log();
}

testing::AssertionResult TreeWindow::shows(const std::string& shown, const std::string& selected)
{
    m_expected = std::make_unique<ExpectedPicture>(tree.path(), shown);
    m_expected->setSelected(selected);
    desk().movePointer(beside()); // so that no tooltip covers the map
    std::string difference = "there is no map";
    const bool isShown = eventually([&] {
        if (const std::optional<QRect> map = program->map()) {
            m_map = *map;
            m_expected->setMapSize(m_map.size());
            difference = m_expected->firstDifference(desk().picture(m_map));
        }
        return difference.empty();
    });
    return isShown ? testing::AssertionSuccess() : failure(difference);
}

testing::AssertionResult TreeWindow::opens(XWindow::Kind kind)
{
    return eventually([&] { return program->window(kind).has_value(); })
        ? testing::AssertionSuccess()
        : failure("no such window came");
}

testing::AssertionResult TreeWindow::closes(XWindow::Kind kind)
{
    return eventually([&] { return !program->window(kind).has_value(); })
        ? testing::AssertionSuccess()
        : failure("the window stayed");
}

testing::AssertionResult TreeWindow::hover(const std::string& path)
{
    const QPoint place = placeOf(path);
    const bool isShown = eventually([&] {
        // The window heeds the pointer once it knows that it is active, and only a move tells it.
        desk().movePointer(place + QPoint(1, 0));
        desk().movePointer(place);
        const std::optional<XWindow> tooltip = program->window(XWindow::Kind::Tooltip);
        return tooltip && tooltip->frame.left() == place.x();
    });
    return isShown ? testing::AssertionSuccess() : failure("no tooltip came");
}

testing::AssertionResult TreeWindow::pick(const std::string& path, MenuEntry entry)
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

testing::AssertionResult TreeWindow::acceptDialog()
{
    return closeWithKey(XWindow::Kind::Dialog, key::kReturn);
}

testing::AssertionResult TreeWindow::rejectDialog()
{
    return closeWithKey(XWindow::Kind::Dialog, key::kEscape);
}

testing::AssertionResult TreeWindow::closePreview()
{
    return closeWithKey(XWindow::Kind::Panel, key::kEscape);
}

testing::AssertionResult TreeWindow::closeWithKey(XWindow::Kind kind, std::uint32_t keysym)
{
    if (const auto opened = opens(kind); !opened) {
        return opened;
    }
    desk().activate(*program->window(kind));
    desk().typeKey(keysym);
    const auto closed = closes(kind);
    desk().activate(mainWindow());
    return closed;
}

QPoint TreeWindow::placeOf(const std::string& path) const
{
    const QRectF box = m_expected->boxOf(path);
    const bool isFolder = m_expected->isFolder(path);
    const QPointF place
        = isFolder ? QPointF(box.center().x(), box.top() + kIntoFolderHead) : box.center();
    return m_map.topLeft() + place.toPoint();
}

} // namespace tessera::test
