// SPDX-License-Identifier: MIT
#include "EndToEnd/Desk/Eventually.h"
#include "EndToEnd/Session/WholeProgramFixture.h"
#include "support/Machine/BuiltPaths.h"

#include <QImage>

#include <cstdint>
#include <filesystem>
#include <set>
#include <string>

namespace tessera::test {
namespace {

struct Look {
    const char* name;
    const char* theme; ///< as desktops name theirs to programs in GTK_THEME
};

constexpr Look kLight{"light", "Adwaita"};
constexpr Look kDark{"dark", "Adwaita:dark"};

/// A picture that shows anything has many more colours, for its letters have soft edges.
constexpr std::size_t kLeastColors = 20;
/// Of grounds, out of 255; nothing of a screen's ground is in between.
constexpr int kLeastLight = 200;
constexpr int kMostDark = 90;

/// So long that no archiver gets to its end while a test runs; it takes no room on the disk.
constexpr std::uintmax_t kEndlessBytes = std::uintmax_t{1} << 42U;

/// One picture of each screen, written into the build folder to be looked at.
class Screenshots : public WholeProgram, public testing::WithParamInterface<Look> {
protected:
    void prepareSession() override
    {
        session->setVariable("GTK_THEME", GetParam().theme);
        std::size_t bytes = 90'000;
        for (const char* folder :
             {"Pictures/Alps", "Pictures/Alps/Raw", "Pictures/Sea", "Pictures/Family"}) {
            session->folders().makeFolder(std::string("home/") + folder);
            for (int number = 1; number <= 12; ++number) {
                bytes += 4096 * static_cast<std::size_t>(number);
                session->folders().makeFile(
                    std::string("home/") + folder + "/photo-" + std::to_string(number) + ".jpg",
                    bytes);
            }
        }
    }

    /// The main window and the other in front of it.
    QRect withWindow(XWindow::Kind kind) const
    {
        return mainWindow().frame.united(desk().window(kind)->frame);
    }

    /// Takes the picture, which has the look at that point of its ground.
    void take(const std::string& name, const QRect& part, QPoint ground)
    {
        QImage picture;
        // A window may be there a moment before what it shows.
        EXPECT_TRUE(eventually([&] {
            picture = desk().picture(part);
            return hasLook(picture.pixel(ground - part.topLeft())) && hasDrawing(picture);
        }));
        EXPECT_EQ(picture.size(), part.size());
        const std::string folder = std::string(test::built::screenshots()) + "/" + GetParam().name;
        std::filesystem::create_directories(folder);
        ASSERT_TRUE(picture.save(QString::fromStdString(folder + '/' + name + ".png")));
    }

    /// A place in the toolbar where nothing is ever drawn.
    QPoint toolbar()
    {
        const QRect bar = see("Toolbar", "tool bar").frame;
        return {bar.center().x(), bar.bottom() - 4};
    }

    QPoint cornerOf(XWindow::Kind kind) const
    {
        return desk().window(kind)->frame.bottomLeft() + QPoint(4, -4);
    }

private:
    static bool hasLook(QRgb ground)
    {
        const bool isDark = GetParam().theme == kDark.theme;
        return isDark ? qGray(ground) < kMostDark : qGray(ground) > kLeastLight;
    }

    static bool hasDrawing(const QImage& picture)
    {
        std::set<QRgb> colors;
        for (int y = 0; y < picture.height() && colors.size() < kLeastColors; ++y) {
            for (int x = 0; x < picture.width(); ++x) {
                colors.insert(picture.pixel(x, y));
            }
        }
        return colors.size() >= kLeastColors;
    }
};

TEST_P(Screenshots, Home)
{
    ASSERT_TRUE(scan("Documents"));
    desk().typeKeys({key::kAlt, key::kHome});
    ASSERT_TRUE(isHome());
    const QRect grid = see("Disks and locations", "filler").frame;
    take("home", mainWindow().frame, grid.bottomRight() + QPoint(-4, 30));
}

TEST_P(Screenshots, HomeWithoutRecentScans)
{
    ASSERT_TRUE(choose("Pictures"));
    const QRect list = see("Recent scans", "list").frame;
    take("home-first", mainWindow().frame, list.bottomLeft() + QPoint(6, -6));
}

TEST_P(Screenshots, Scanning)
{
    launchGated();
    gate.hold(home("Pictures/Sea"));
    desk().doubleClick(see("Pictures", "filler").frame.center());
    ASSERT_TRUE(eventually([this] { return gate.isReached(); }));
    const Control panel = see("Progress of the scan", "filler");
    const int bottom = mainWindow().frame.bottom();
    ASSERT_TRUE(eventually([&] { return reader().again(panel)->frame.bottom() == bottom; }));
    take("scanning", mainWindow().frame, QPoint(panel.frame.left() + 4, bottom - 4));
}

TEST_P(Screenshots, Tree)
{
    ASSERT_TRUE(scan("Pictures"));
    take("tree", mainWindow().frame, toolbar());
}

TEST_P(Screenshots, TreeZoomed)
{
    ASSERT_TRUE(scan("Pictures"));
    desk().doubleClick(placeOf("Alps"));
    ASSERT_TRUE(showsTree("Pictures", "Alps"));
    take("tree-zoomed", mainWindow().frame, toolbar());
}

TEST_P(Screenshots, Tooltip)
{
    ASSERT_TRUE(scan("Documents"));
    ASSERT_TRUE(hover("drafts"));
    take("tooltip", withWindow(XWindow::Kind::Tooltip), toolbar());
}

TEST_P(Screenshots, ContextMenu)
{
    ASSERT_TRUE(scan("Documents"));
    desk().click(placeOf("drafts"), XDesk::Button::Right);
    ASSERT_TRUE(opens(XWindow::Kind::Menu));
    take("context-menu", withWindow(XWindow::Kind::Menu), cornerOf(XWindow::Kind::Menu));
    desk().typeKey(key::kEscape);
}

TEST_P(Screenshots, IgnoreMenu)
{
    ASSERT_TRUE(scan("Documents"));
    ASSERT_TRUE(pick("drafts", MenuEntry::Ignore));
    clickOn("What the picture leaves out", "button menu");
    ASSERT_TRUE(opens(XWindow::Kind::Menu));
    take("ignore-menu", withWindow(XWindow::Kind::Menu), cornerOf(XWindow::Kind::Menu));
    desk().typeKey(key::kEscape);
}

TEST_P(Screenshots, Preferences)
{
    desk().typeKeys({key::kControl, ','});
    ASSERT_TRUE(opens(XWindow::Kind::Dialog));
    see("Close", "push button");
    take("preferences", withWindow(XWindow::Kind::Dialog), cornerOf(XWindow::Kind::Dialog));
    EXPECT_TRUE(rejectDialog());
}

TEST_P(Screenshots, Alert)
{
    ASSERT_TRUE(scan("Documents"));
    desk().click(placeOf("report"));
    desk().typeKey(key::kDelete);
    ASSERT_TRUE(opens(XWindow::Kind::Dialog));
    see("Cancel", "push button");
    take("alert", withWindow(XWindow::Kind::Dialog), cornerOf(XWindow::Kind::Dialog));
    EXPECT_TRUE(rejectDialog());
}

TEST_P(Screenshots, Basket)
{
    ASSERT_TRUE(scan("Pictures"));
    desk().click(placeOf("Sea"));
    desk().typeText("b");
    see("Move All to Trash…", "push button");
    take("basket", mainWindow().frame, toolbar());
}

TEST_P(Screenshots, MoveAll)
{
    ASSERT_TRUE(scan("Pictures"));
    desk().click(placeOf("Sea"));
    desk().typeText("b");
    clickOn("Move All to Trash…", "push button");
    ASSERT_TRUE(opens(XWindow::Kind::Dialog));
    see("Cancel", "push button");
    take("move-all", withWindow(XWindow::Kind::Dialog), cornerOf(XWindow::Kind::Dialog));
    EXPECT_TRUE(rejectDialog());
}

TEST_P(Screenshots, Compress)
{
    std::filesystem::resize_file(home("Downloads/movie"), kEndlessBytes);
    ASSERT_TRUE(scan("Downloads"));
    ASSERT_TRUE(pick("movie", MenuEntry::Compress));
    ASSERT_TRUE(opens(XWindow::Kind::Dialog));
    see("Cancel", "push button");
    take("compress", withWindow(XWindow::Kind::Dialog), cornerOf(XWindow::Kind::Dialog));
    EXPECT_TRUE(rejectDialog());
}

TEST_P(Screenshots, Compressed)
{
    ASSERT_TRUE(scan("Downloads"));
    ASSERT_TRUE(pick("movie", MenuEntry::Compress));
    see("Move Original to Trash", "push button");
    take("compressed", withWindow(XWindow::Kind::Dialog), cornerOf(XWindow::Kind::Dialog));
    EXPECT_TRUE(closeResult());
}

TEST_P(Screenshots, About)
{
    clickOn("Help", "menu item");
    clickOn("About Tessera", "menu item");
    ASSERT_TRUE(opens(XWindow::Kind::Dialog));
    see("Close", "push button");
    take("about", withWindow(XWindow::Kind::Dialog), cornerOf(XWindow::Kind::Dialog));
    EXPECT_TRUE(rejectDialog());
}

TEST_P(Screenshots, OpenWith)
{
    ASSERT_TRUE(scan("Documents"));
    desk().click(placeOf("report"));
    desk().typeKeys({key::kControl, key::kShift, 'o'});
    ASSERT_TRUE(opens(XWindow::Kind::Dialog));
    see("Cancel", "push button");
    take("open-with", withWindow(XWindow::Kind::Dialog), cornerOf(XWindow::Kind::Dialog));
    EXPECT_TRUE(rejectDialog());
}

TEST_P(Screenshots, Preview)
{
    ASSERT_TRUE(scan("Documents"));
    desk().click(placeOf("report"));
    desk().typeKey(key::kSpace);
    ASSERT_TRUE(opens(XWindow::Kind::Panel));
    see("Close", "push button");
    take("preview", withWindow(XWindow::Kind::Panel), toolbar());
    EXPECT_TRUE(closePreview());
}

TEST_P(Screenshots, OpenFolder)
{
    desk().typeKeys({key::kControl, 'o'});
    ASSERT_TRUE(opens(XWindow::Kind::Dialog));
    see("Cancel", "push button");
    take("open-folder", withWindow(XWindow::Kind::Dialog), cornerOf(XWindow::Kind::Dialog));
    EXPECT_TRUE(rejectDialog());
}

INSTANTIATE_TEST_SUITE_P(Looks, Screenshots, testing::Values(kLight, kDark), [](const auto& look) {
    return std::string(look.param.name);
});

} // namespace
} // namespace tessera::test
