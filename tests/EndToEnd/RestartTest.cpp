// SPDX-License-Identifier: MIT
#include "EndToEnd/Desk/Eventually.h"
#include "EndToEnd/Session/WholeProgramFixture.h"

#include <csignal>

namespace tessera::test {
namespace {

constexpr QRect kSomewhere(150, 120, 900, 640);

/// Ctrl+Q and a new start.
class Restart : public WholeProgram {
protected:
    testing::AssertionResult endsByKeys()
    {
        desk().typeKeys({key::kControl, 'q'});
        return eventually([this] { return program->exitStatus() == 0; })
            ? testing::AssertionSuccess()
            : failure("the program goes on");
    }

    void placeWindow()
    {
        desk().setFrame(mainWindow(), kSomewhere);
        ASSERT_TRUE(eventually([this] { return mainWindow().frame.size() == kSomewhere.size(); }));
        m_kept = mainWindow().frame;
    }

    void expectWindowInItsPlace()
    {
        launch();
        EXPECT_TRUE(eventually([&] { return mainWindow().frame == m_kept; }))
            << mainWindow().frame.x() << ',' << mainWindow().frame.y() << " instead of "
            << m_kept.x() << ',' << m_kept.y();
    }

private:
    QRect m_kept;
};

TEST_F(Restart, ControlQEndsTheProgram)
{
    EXPECT_TRUE(endsByKeys());
}

TEST_F(Restart, ControlQEndsTheProgramOnTheTreeScreenToo)
{
    ASSERT_TRUE(scan("Documents"));
    EXPECT_TRUE(endsByKeys());
}

TEST_F(Restart, KeepsTheRecentScans)
{
    ASSERT_TRUE(scan("Documents"));
    ASSERT_TRUE(endsByKeys());
    launch();
    EXPECT_TRUE(eventually([this] { return reader().all("list item").size() == 1; }));
}

TEST_F(Restart, OffersTheLatestScanOnReturn)
{
    ASSERT_TRUE(scan("Documents"));
    ASSERT_TRUE(endsByKeys());
    launch();
    ASSERT_TRUE(isHome());
    desk().typeKey(key::kReturn);
    EXPECT_TRUE(showsTree("Documents"));
}

TEST_F(Restart, KeepsTheWindowsPlaceAndSize)
{
    placeWindow();
    ASSERT_TRUE(endsByKeys());
    expectWindowInItsPlace();
}

TEST_F(Restart, KeepsTheWindowsPlaceAndSizeWhenTheSystemEndsTheProgram)
{
    placeWindow();
    program->signal(SIGTERM);
    ASSERT_EQ(program->waitForExit(), 0);
    expectWindowInItsPlace();
}

} // namespace
} // namespace tessera::test
