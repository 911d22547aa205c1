// SPDX-License-Identifier: MIT
#include "Shell/FolderWindow.h"

#include "Model/NotificationCenter.h"
#include "TreeView/PathComponentButton.h"
#include "TreeView/ToolbarPathControl.h"
#include "TreeView/TreeBranch.h"
#include "TreeView/TreeMapView.h"
#include "support/FakeRootModelServices.h"
#include "support/FakeTreeViewServices.h"
#include "support/makeTree.h"

#include <QLabel>
#include <QProgressBar>
#include <QTest>

#include <gtest/gtest.h>

#include <memory>

namespace tessera {
namespace {

class FolderWindowTest : public testing::Test {
protected:
    ~FolderWindowTest() override
    {
        window.reset();
        Scanner::waitForWorkers();
    }

    void open()
    {
        window = std::make_unique<FolderWindow>(services.get(), model);
        window->show();
        window->open(Url("/data/some\xFF folder", true));
    }

    void scanToEnd()
    {
        open();
        mainThread.runUntil([this] { return model.topFolder() != nullptr; });
    }

    ToolbarPathControl& pathControl() const { return *window->findChild<ToolbarPathControl*>(); }

    QStringList pathTitles() const
    {
        QStringList titles;
        for (const auto& cell : pathControl().pathComponentCells()) {
            titles.append(cell.title());
        }
        return titles;
    }

    void zoomIn() const
    {
        NotificationCenter& center = NotificationCenter::defaultCenter();
        center.post("ClickTreeItem", &test::at(*model.topFolder(), "docs"));
        center.post("DoubleClickTreeItem");
    }

    test::FakeTreeViewServices services{"docs/ ( a:700000 ) b:300000"};
    test::FakeFileManager& files = services.files;
    test::FakeMainThread& mainThread = services.mainThread;
    test::FakeRootModelServices modelServices;
    RootModel model{modelServices.get()};
    std::unique_ptr<FolderWindow> window;
};

TEST_F(FolderWindowTest, ShowsTheFoldersNameWhileItIsScanned)
{
    open();
    EXPECT_EQ(window->windowTitle(), QStringLiteral("some\uFFFD folder"));
    EXPECT_FALSE(window->findChild<TreeMapView*>()->isVisible());
    mainThread.runUntil([this] { return model.topFolder() != nullptr; });
}

TEST_F(FolderWindowTest, ShowsTheProgressOfTheScan)
{
    files.onItem([this](const std::string& /*path*/) {
        if (files.enumeratedPaths().size() == 2) {
            mainThread.performAndWait([] {});
            services.scanClock = services.scanClock.load() + 1.0;
        }
    });
    open();
    auto* progress = window->findChild<QProgressBar*>();
    mainThread.runUntil([&] { return progress->value() > 0; });
    EXPECT_EQ(progress->value(), progress->maximum() / 3);
    EXPECT_TRUE(window->findChild<QLabel*>()->text().endsWith(QStringLiteral("docs")));
    mainThread.runUntil([this] { return model.topFolder() != nullptr; });
}

TEST_F(FolderWindowTest, ShowsThePictureWhenTheScanHasEnded)
{
    scanToEnd();
    const auto* view = window->findChild<TreeMapView*>();
    EXPECT_TRUE(view->isVisible());
    EXPECT_EQ(view->branches().front()->layoutItems().size(), 2U);
    EXPECT_EQ(window->windowTitle(), QStringLiteral("some\uFFFD folder (1.0 MB)"));
}

TEST_F(FolderWindowTest, ShowsThePathBarWithThePicture)
{
    open();
    EXPECT_FALSE(pathControl().isVisible());
    mainThread.runUntil([this] { return model.topFolder() != nullptr; });
    EXPECT_TRUE(pathControl().isVisible());
    EXPECT_EQ(pathTitles(), QStringList{QStringLiteral("some\uFFFD folder (1.0 MB)")});
}

TEST_F(FolderWindowTest, ThePathBarFollowsTheFolderInView)
{
    scanToEnd();
    zoomIn();
    EXPECT_EQ(
        pathTitles(),
        (QStringList{QStringLiteral("some\uFFFD folder"), QStringLiteral("docs (700 KB)")}));
}

TEST_F(FolderWindowTest, AClickInThePathBarZoomsOut)
{
    scanToEnd();
    zoomIn();
    QTest::mouseClick(pathControl().findChild<PathComponentButton*>(), Qt::LeftButton);
    EXPECT_EQ(pathTitles(), QStringList{QStringLiteral("some\uFFFD folder (1.0 MB)")});
}

TEST_F(FolderWindowTest, ClosingItWhileItScansCancelsTheScan)
{
    open();
    window.reset();
    mainThread.perform([] {});
    bool drained = false;
    mainThread.perform([&] { drained = true; });
    mainThread.runUntil([&] { return drained; });
    EXPECT_EQ(model.topFolder(), nullptr);
}

} // namespace
} // namespace tessera
