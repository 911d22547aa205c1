// SPDX-License-Identifier: MIT
#include "HomeViewControllerFixture.h"
#include "Widgets/Bar.h"
#include "Widgets/PassiveLabel.h"

#include <QPushButton>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tessera {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

/// Answers for the root only when the test lets it.
class SlowFileSystem final : public FileSystemAttributes {
public:
    std::optional<FileSystemSizes> attributesOfFileSystem(const std::string& path) const override
    {
        if (path == "/") {
            m_released.wait();
        }
        return FileSystemSizes{1000, 250, 250};
    }

    void release() { m_release.set_value(); }

private:
    std::promise<void> m_release;
    std::shared_future<void> m_released{m_release.get_future().share()};
};

class HomeViewControllerAnswersTest : public test::HomeViewControllerFixture { };

TEST_F(HomeViewControllerAnswersTest, AVolumeShowsHowFullItIs)
{
    show();
    EXPECT_FLOAT_EQ(static_cast<float>(firstVolume().spaceBar().percentFilled()), 0.75F);
    EXPECT_EQ(firstVolume().spaceLabel().text(), QStringLiteral("Free for you: 250 B"));
}

TEST_F(HomeViewControllerAnswersTest, AVolumeThatCannotSayHasAnEmptyBar)
{
    attributes = std::make_shared<test::FixedFileSystem>(std::nullopt);
    show();
    EXPECT_EQ(firstVolume().spaceBar().percentFilled(), 0);
    EXPECT_EQ(firstVolume().spaceLabel().text(), QStringLiteral("Free for you: 0 B"));
}

TEST_F(HomeViewControllerAnswersTest, ADeadVolumeDelaysNothingAndFillsInWhenItAnswers)
{
    const auto slow = std::make_shared<SlowFileSystem>();
    attributes = slow;
    show();
    EXPECT_EQ(firstVolume().spaceBar().percentFilled(), 0);
    EXPECT_EQ(firstVolume().spaceLabel().text(), QString());
    slow->release();
    ASSERT_TRUE(QTest::qWaitFor([this] { return firstVolume().spaceBar().percentFilled() > 0; }));
    EXPECT_EQ(firstVolume().spaceLabel().text(), QStringLiteral("Free for you: 250 B"));
}

TEST_F(HomeViewControllerAnswersTest, AReloadAsksForSizesAndLocationsAgain)
{
    const auto fileSystem
        = std::make_shared<test::FixedFileSystem>(FileSystemSizes{1000, 250, 250});
    attributes = fileSystem;
    resourceValues->directories = {"/home/eve"};
    show();
    ASSERT_THAT(locationPaths(), ElementsAre("/home/eve"));
    fileSystem->setSizes(FileSystemSizes{1000, 500, 500});
    resourceValues->directories = {"/home/eve", "/home/eve/Music"};
    home->reload();
    EXPECT_EQ(firstVolume().spaceLabel().text(), QStringLiteral("Free for you: 500 B"));
    waitForLocations(2);
    resourceValues->directories = {"/home/eve/Music"};
    home->reload();
    waitForLocations(1);
    EXPECT_THAT(locationPaths(), ElementsAre("/home/eve/Music"));
}

TEST_F(HomeViewControllerAnswersTest, AReloadKeepsWhatIsSelected)
{
    show();
    click(1);
    home->reload();
    EXPECT_TRUE(firstVolume().selected());
    EXPECT_TRUE(home->scanButton().isEnabled());
}

TEST_F(HomeViewControllerAnswersTest, AnAnswerThatComesWhenTheScreenIsGoneIsDropped)
{
    const auto slow = std::make_shared<SlowFileSystem>();
    attributes = slow;
    show();
    home.reset();
    slow->release();
    EXPECT_THAT(scanned, IsEmpty());
}

TEST_F(HomeViewControllerAnswersTest, ALocationThatAnswersLateTakesItsPlace)
{
    const auto slow = makeHomeSlow();
    show();
    EXPECT_THAT(locationPaths(), ElementsAre("/home/eve/Music", "/home/eve/Public"));
    slow->release();
    waitForLocations(3);
    EXPECT_THAT(locationPaths(), ElementsAre("/home/eve", "/home/eve/Music", "/home/eve/Public"));
}

TEST_F(HomeViewControllerAnswersTest, ALocationThatAnswersLateLeavesTheUsersChoiceAlone)
{
    const auto slow = makeHomeSlow();
    show();
    click(4);
    ASSERT_EQ(item(4).url(), Url("/home/eve/Music", true));
    slow->release();
    waitForLocations(3);
    EXPECT_EQ(item(5).url(), Url("/home/eve/Music", true));
    EXPECT_TRUE(item(5).selected());
    home->scanSelected();
    EXPECT_THAT(scanned, ElementsAre("file:///home/eve/Music/"));
}

TEST_F(HomeViewControllerAnswersTest, ALocationThatAnswersLateLeavesAChosenRecentScanAlone)
{
    const auto slow = makeHomeSlow();
    show();
    slow->release();
    waitForLocations(3);
    EXPECT_EQ(grid().selectedView(), nullptr);
    home->scanSelected();
    EXPECT_THAT(scanned, ElementsAre("file:///home/eve/one/"));
}

} // namespace
} // namespace tessera
