// SPDX-License-Identifier: MIT
#pragma once

#include "Commands/CommandActions.h"
#include "Compress/CompressWindowController.h"
#include "DeadMounts/QuestionThreads.h"
#include "Model/FreeSpace.h"
#include "Model/RootModel.h"
#include "Model/TimeMachine.h"
#include "Model/Unknown.h"
#include "QuickLook/QuickLookPanel.h"
#include "QuickLook/QuickLookServices.h"
#include "QuickLook/Reading/FakeFileReader.h"
#include "QuickLook/Reading/FakeRasterDecoder.h"
#include "TreeScreen/Map/TreeMapView.h"
#include "TreeScreen/Picture/TreeBranch.h"
#include "TreeScreen/TreeViewController.h"
#include "support/Fakes/FakeRootModelServices.h"
#include "support/Fakes/FakeTreeViewServices.h"
#include "support/MakeTree.h"

#include <QApplication>
#include <QMenu>
#include <QTest>

#include <gtest/gtest.h>

#include <chrono>
#include <memory>
#include <utility>
#include <vector>

namespace tessera::test {

/// The tree screen of a small folder, with no motion.
class TreeViewControllerFixture : public testing::Test {
protected:
    TreeViewControllerFixture()
    {
        services.motion.reduced = true;
        model.setTopFolder(makeTree("/data", "docs/ ( a:500000 b:200000 ) c\xFF:300000"));
        view.resize(400, 300);
        view.show();
        controller = std::make_unique<TreeViewController>(model, view, services.get(), &actions);
    }
    ~TreeViewControllerFixture() override
    {
        controller.reset();
        QuickLookPanel::releaseSharedInstance();
        EXPECT_TRUE(threads->waitForAll(std::chrono::minutes(1)));
    }

    File& node(std::string_view path) { return at(*model.topFolder(), path); }
    void select(std::string_view path) { controller->setSelectedFile(&node(path)); }

    bool press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        return controller->keyDown(QKeyEvent(QEvent::KeyPress, key, modifiers));
    }

    void pressMenuKey()
    {
        QContextMenuEvent event(QContextMenuEvent::Keyboard, QPoint(), QPoint());
        QApplication::sendEvent(&view, &event);
    }

    /// The compression that runs ends without an archive.
    void failToCompress()
    {
        services.archiver.output = "1 2\n"; // the file that it made
        services.archiver.onTerminated(1);
        ASSERT_TRUE(QTest::qWaitFor([this] { return services.workspace.recycled.size() == 1; }));
        ASSERT_TRUE(services.workspace.finishRecycling({}));
        EXPECT_TRUE(QTest::qWaitFor([this] { return services.archiver.isDestroyed; }));
        QTest::qWait(0);
        // Its window would stay for a second, and outlive the services that it works with.
        emit qApp->aboutToQuit({});
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }

    bool canDo(Command command) const { return controller->validate(command); }

    /// What is said on the picture; empty while nothing is.
    QString said() const
    {
        const auto* const note = view.findChild<TreeNote*>();
        return note->isVisible() ? note->text() : QString();
    }

    FakeRootModelServices modelServices;
    RootModel model{modelServices.get()};
    FakeTreeViewServices services;
    std::shared_ptr<FakeFileReader> files = std::make_shared<FakeFileReader>();
    std::shared_ptr<QuestionThreads> threads = QuestionThreads::make();
    QuickLookPanel& panel = QuickLookPanel::makeSharedInstance(
        {.files = files,
         .decoder = std::make_shared<FakeRasterDecoder>(),
         .threads = threads,
         .motion = &services.motion});
    TreeMapView view{services.defaults};
    const CommandActions actions{view, [this] { return controller->commandContext(); }};
    std::unique_ptr<TreeViewController> controller;
};

} // namespace tessera::test
