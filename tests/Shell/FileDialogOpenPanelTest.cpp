// SPDX-License-Identifier: MIT
#include "Shell/FileDialogOpenPanel.h"

#include <QDir>
#include <QFileDialog>
#include <QWidget>

#include <gtest/gtest.h>

#include <optional>
#include <vector>

namespace tessera {
namespace {

class FileDialogOpenPanelTest : public testing::Test {
protected:
    void begin()
    {
        panel.begin(window, [this](const std::vector<Url>& urls) { chosen = urls; });
    }

    [[nodiscard]] QList<QFileDialog*> dialogs() const
    {
        return window.findChildren<QFileDialog*>();
    }

    QWidget window;
    FileDialogOpenPanel panel;
    std::optional<std::vector<Url>> chosen;
};

TEST_F(FileDialogOpenPanelTest, BeginsInTheHomeFolder)
{
    begin();
    ASSERT_EQ(dialogs().size(), 1);
    EXPECT_EQ(dialogs().front()->directory(), QDir::home());
}

TEST_F(FileDialogOpenPanelTest, IsOpenOnceAtMost)
{
    begin();
    begin();
    EXPECT_EQ(dialogs().size(), 1);
}

TEST_F(FileDialogOpenPanelTest, CancellingChoosesNothing)
{
    begin();
    dialogs().front()->reject();
    ASSERT_TRUE(chosen.has_value());
    EXPECT_TRUE(chosen->empty());
}

} // namespace
} // namespace tessera
