// SPDX-License-Identifier: MIT
#include "WholeProgramFixture.h"

#include "EndToEnd/Desk/Eventually.h"
#include "EndToEnd/Desk/PixelColors.h"

#include <array>
#include <stdexcept>
#include <utility>

namespace tessera::test {

namespace {

/// The selection of a location is a little smaller than the location.
constexpr int kIntoSelection = 4;

void fillHome(const TempTree& folders)
{
    for (const char* folder : {"Documents", "Documents/drafts", "Downloads", "Downloads/fonts"}) {
        folders.makeFolder(std::string("home/") + folder);
    }
    folders.makeFolder("home/Music");
    folders.makeFolder("home/Pictures");
    const auto files = std::to_array<std::pair<const char*, std::size_t>>({
        {"Documents/report", 400'000},
        {"Documents/notes", 200'000},
        {"Documents/.outline", 250'000},
        {"Documents/drafts/first", 350'000},
        {"Documents/drafts/second", 150'000},
        {"Downloads/movie", 600'000},
        {"Downloads/song", 300'000},
        {"Downloads/fonts/serif", 270'000},
        {"Downloads/fonts/sans", 130'000},
    });
    for (const auto& [path, bytes] : files) {
        folders.makeFile(std::string("home/") + path, bytes);
    }
}

} // namespace

void WholeProgram::SetUp()
{
    if (!UserSession::isPossible()) {
        GTEST_SKIP() << "this process may not mount";
    }
    session = std::make_unique<UserSession>();
    fillHome(session->folders());
    prepareSession();
    desk().movePointer(beside());
    launch();
}

void WholeProgram::TearDown()
{
    if (program != nullptr) {
        gate.letGo();
        EXPECT_TRUE(quits());
    }
}

void WholeProgram::launch(const std::vector<std::string>& arguments)
{
    reader().expectProgram();
    program = session->start(arguments);
    awaitWindow();
}

void WholeProgram::launchGated()
{
    ASSERT_TRUE(quits());
    reader().expectProgram();
    program = session->start(gate);
    awaitWindow();
}

void WholeProgram::awaitWindow()
{
    ASSERT_TRUE(eventually([this] { return reader().hasProgram(); })) << log();
    ASSERT_TRUE(opens(XWindow::Kind::Main));
    ASSERT_TRUE(becomesActive(XWindow::Kind::Main));
}

testing::AssertionResult WholeProgram::quits()
{
    if (const std::optional<XWindow> open = desk().window(XWindow::Kind::Main)) {
        desk().requestClose(*open);
    }
    if (!eventually([this] { return program->exitStatus().has_value(); })) {
        return failure("the program goes on");
    }
    return program->exitStatus() == 0 ? testing::AssertionSuccess()
                                      : failure("status " + std::to_string(*program->exitStatus()));
}

std::string WholeProgram::home(const std::string& path) const
{
    return session->folders().pathOf("home/" + path);
}

Control WholeProgram::see(const std::string& name, const std::string& role)
{
    std::optional<Control> control;
    if (!eventually([&] { return (control = reader().find(name, role)).has_value(); })) {
        throw std::runtime_error("there is no '" + name + "'. The program wrote:\n" + log());
    }
    return *control;
}

testing::AssertionResult WholeProgram::isGone(const std::string& name)
{
    return eventually([&] { return !reader().find(name).has_value(); })
        ? testing::AssertionSuccess()
        : failure("'" + name + "' stays");
}

void WholeProgram::clickOn(const std::string& name, const std::string& role)
{
    desk().click(see(name, role).frame.center());
}

testing::AssertionResult WholeProgram::isHome()
{
    see("Scan", "push button");
    const Control openButton = see("Open Folder…", "push button");
    return eventually([&] {
        const std::optional<Control> now = reader().again(openButton);
        return now && now->isShowing() && now->isEnabled() && !reader().find("Cancel");
    })
        ? testing::AssertionSuccess()
        : failure("the home screen is not ready");
}

testing::AssertionResult WholeProgram::showsTree(
    const std::string& folder, const std::string& shown, const std::string& selected)
{
    auto picture = std::make_unique<ExpectedPicture>(home(folder), shown);
    picture->setSelected(selected);
    return showsPicture(std::move(picture));
}

testing::AssertionResult WholeProgram::choose(const std::string& location)
{
    const QRect item = see(location, "filler").frame;
    desk().click(item.center());
    const QRect edge(item.left() + kIntoSelection, item.center().y(), 1, 1);
    return eventually([&] { return hasHue(desk().picture(edge).pixel(0, 0)); })
        ? testing::AssertionSuccess()
        : failure(location + " is not chosen");
}

testing::AssertionResult WholeProgram::scan(const std::string& location)
{
    desk().doubleClick(see(location, "filler").frame.center());
    return showsTree(location);
}

} // namespace tessera::test
