// SPDX-License-Identifier: MIT
#include "Widgets/FileDialogOpenPanel.h"

#include "Desktop/HiddenFilesPreference.h"

#include <QAbstractItemView>
#include <QDir>
#include <QFileDialog>
#include <QImage>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QTemporaryDir>
#include <QTimer>
#include <QWidget>

#include <gtest/gtest.h>

#include <optional>
#include <vector>

namespace tessera {
namespace {

class FixedHiddenFiles final : public HiddenFilesPreference {
public:
    [[nodiscard]] std::optional<bool> showsHiddenFiles() const override { return shows; }

    std::optional<bool> shows;
};

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

TEST_F(FileDialogOpenPanelTest, FoldersCanBeChosenAndFilesCannot)
{
    begin();
    EXPECT_EQ(dialogs().front()->fileMode(), QFileDialog::Directory);
    EXPECT_TRUE(dialogs().front()->testOption(QFileDialog::ShowDirsOnly));
    EXPECT_FALSE(dialogs().front()->filter().testFlag(QDir::Files));
}

TEST_F(FileDialogOpenPanelTest, HiddenFoldersAreShownAsTheDesktopSays)
{
    FixedHiddenFiles desktop;
    for (const std::optional<bool> shows :
         {std::optional<bool>(), std::optional(true), std::optional(false)}) {
        desktop.shows = shows;
        FileDialogOpenPanel asked(&desktop);
        asked.begin(window, [](const std::vector<Url>&) {});
        QFileDialog* const dialog = dialogs().back();
        EXPECT_EQ(dialog->filter().testFlag(QDir::Hidden), shows.value_or(true));
        delete dialog; // NOLINT(cppcoreguidelines-owning-memory): the window owns it until then
    }
}

/// Which may be one that never shows anything.
TEST_F(FileDialogOpenPanelTest, WhoAsksAgainWhileTheDesktopsChooserIsOpenGetsQts)
{
    begin();
    EXPECT_FALSE(dialogs().front()->testOption(QFileDialog::DontUseNativeDialog));
    dialogs().front()->setAttribute(Qt::WA_DontShowOnScreen); // as Qt does with such a chooser
    begin();
    ASSERT_EQ(dialogs().size(), 1);
    EXPECT_TRUE(dialogs().front()->testOption(QFileDialog::DontUseNativeDialog));
    begin();
    ASSERT_EQ(dialogs().size(), 1);
    dialogs().front()->reject();
    EXPECT_TRUE(chosen.has_value());
}

TEST_F(FileDialogOpenPanelTest, OneFolderCanBeChosenAtATime)
{
    begin();
    for (const auto* list : dialogs().front()->findChildren<QAbstractItemView*>()) {
        if (list->objectName() == QStringLiteral("listView")
            || list->objectName() == QStringLiteral("treeView")) {
            EXPECT_EQ(list->selectionMode(), QAbstractItemView::SingleSelection);
        }
    }
    EXPECT_NE(dialogs().front()->fileMode(), QFileDialog::ExistingFiles);
}

TEST_F(FileDialogOpenPanelTest, HiddenFoldersAreShown)
{
    begin();
    EXPECT_TRUE(dialogs().front()->filter().testFlag(QDir::Hidden));
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

TEST_F(FileDialogOpenPanelTest, DeletesNothing)
{
    begin();
    EXPECT_TRUE(dialogs().front()->testOption(QFileDialog::ReadOnly));
}

TEST_F(FileDialogOpenPanelTest, WhatItSaysOfAFolderIsNoMarkup)
{
    const QTemporaryDir folder;
    QImage red(8, 8, QImage::Format_RGB32);
    red.fill(Qt::red);
    ASSERT_TRUE(red.save(folder.filePath(QStringLiteral("red.png"))));
    begin();
    QFileDialog& dialog = *dialogs().front();
    auto* const field = dialog.findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
    ASSERT_NE(field, nullptr);
    field->setText(
        QStringLiteral("<img src='%1'>").arg(folder.filePath(QStringLiteral("red.png"))));
    bool isShown = false;
    QTimer::singleShot(0, &dialog, [&dialog, &isShown] {
        auto* const box = dialog.findChild<QMessageBox*>();
        ASSERT_NE(box, nullptr);
        isShown = true;
        const auto* const label = box->findChild<QLabel*>(QStringLiteral("qt_msgbox_label"));
        EXPECT_EQ(label->textFormat(), Qt::PlainText);
        const QImage picture = box->grab().toImage();
        for (int y = 0; y < picture.height(); ++y) {
            for (int x = 0; x < picture.width(); ++x) {
                ASSERT_NE(picture.pixelColor(x, y), QColor(Qt::red));
            }
        }
        box->close();
    });
    static_cast<QDialog&>(dialog).accept();
    EXPECT_TRUE(isShown);
}

} // namespace
} // namespace tessera
