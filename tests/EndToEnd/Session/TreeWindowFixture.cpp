// SPDX-License-Identifier: MIT
#include "TreeWindowFixture.h"

#include "EndToEnd/Desk/Eventually.h"

#include <algorithm>
#include <random>
#include <utility>

namespace tessera::test {

namespace {

constexpr QRect kFirstFrame(200, 100, 1000, 700);

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

std::unique_ptr<DrivenProgram> TreeWindow::start() const
{
    return std::make_unique<DrivenProgram>(tree.path());
}

void TreeWindow::SetUp()
{
    program = start();
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

testing::AssertionResult TreeWindow::shows(const std::string& shown, const std::string& selected)
{
    auto picture = std::make_unique<ExpectedPicture>(tree.path(), shown);
    picture->setSelected(selected);
    return showsPicture(std::move(picture));
}

} // namespace tessera::test
