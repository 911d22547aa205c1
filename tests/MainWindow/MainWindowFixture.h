// SPDX-License-Identifier: MIT
#pragma once

#include "MainWindow/MainWindowController.h"
#include "TreeScreen/Map/TreeMapView.h"
#include "TreeScreen/TreeViewController.h"
#include "support/EndWorkers.h"
#include "support/Fakes/FakeMainWindowServices.h"
#include "support/MakeTree.h"

#include <QAction>
#include <QCoreApplication>
#include <QMainWindow>
#include <QToolButton>

#include <gtest/gtest.h>

#include <memory>

namespace tessera::test {

/// A main window of fake screens around a true tree screen.
class MainWindowFixture : public testing::Test {
protected:
    MainWindowFixture() { controller->showWindow(); }
    ~MainWindowFixture() override
    {
        controller.reset();
        endWorkers(services.treeScreen);
    }

    void requestScan(const char* path = "/data") const { controller->scanUrl(Url(path, true)); }

    void cancelScan() const { emit services.screens.scanScreen->scanCancelled(); }

    /// Lets the scan panel slide on for that many seconds.
    void slideFor(double seconds)
    {
        services.now += seconds;
        controller->slide().advance();
    }

    void finishScan()
    {
        services.model.setTopFolder(makeTree("/data", "docs/ ( a:700 b:200 ) c:50"));
        emit services.screens.scanScreen->scanComplete();
        QCoreApplication::processEvents();
    }

    void showTree()
    {
        requestScan();
        finishScan();
    }

    TreeMapView& map() const { return *controller->window().findChild<TreeMapView*>(); }

    void select(const char* path) const
    {
        emit map().clickTreeItem(at(*services.model.topFolder(), path));
    }

    void zoomIntoDocs() const
    {
        select("docs");
        controller->perform(Command::ZoomIn);
    }

    QRect homeFrame() const { return services.screens.home->geometry(); }
    QRect scanFrame() const { return services.screens.scan->geometry(); }
    QSize area() const { return controller->window().centralWidget()->size(); }

    FakeMainWindowServices services;
    std::unique_ptr<MainWindowController> controller
        = std::make_unique<MainWindowController>(services.get());
};

} // namespace tessera::test
