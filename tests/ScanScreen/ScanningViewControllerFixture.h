// SPDX-License-Identifier: MIT
#pragma once

#include "Base/DisplayText.h"
#include "Model/RootModel.h"
#include "Notices/EndNotices.h"
#include "ScanScreen/PathLabel.h"
#include "ScanScreen/ScanningViewController.h"
#include "support/Fakes/FakeDockTile.h"
#include "support/Fakes/FakeNotifications.h"
#include "support/Fakes/FakeRootModelServices.h"
#include "support/Fakes/FakeTreeViewServices.h"

#include <QLabel>

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <string>
#include <thread>
#include <vector>

namespace tessera::test {

/// One file after the other, each of 1000 bytes.
inline std::string filesText(int count)
{
    std::string text;
    for (int i = 0; i < count; ++i) {
        text += "f" + std::to_string(i) + ":1000 ";
    }
    return text;
}

/// A place that is called by its path in brackets.
inline PlaceLook redPlace(const Url& folder)
{
    QPixmap picture(64, 64);
    picture.fill(Qt::red);
    return {picture, displayText('[' + folder.path() + ']')};
}

class ScanningViewControllerFixture : public testing::Test {
protected:
    ~ScanningViewControllerFixture() override
    {
        controller.reset();
        system->workers->waitForNone();
    }

    /// Time passes before each item of a scan, and every report is shown before the next.
    void makeScanner(std::string_view items)
    {
        system = std::make_unique<FakeTreeViewServices>(items);
        system->home = userHome;
        system->files.onItem([this](const std::string& path) {
            if (beforeItem) {
                beforeItem(path);
            }
            system->mainThread.performAndWait([] {});
            system->scanClock = system->scanClock.load() + secondsPerItem;
        });
        controller = std::make_unique<ScanningViewController>(
            model,
            ScanningServices{
                .scanEnvironment = system->get().scanEnvironment,
                .dockTile = tile,
                .alert = system->alert,
                .look = redPlace,
                .checkFolder =
                    [this](const std::string& path) {
                        checked.push_back(path);
                        return problem;
                    },
                .notices = &notices});
        QObject::connect(controller.get(), &ScanningViewController::scanComplete, [this] {
            posted.emplace_back("complete");
        });
        QObject::connect(
            controller.get(), qOverload<>(&ScanningViewController::scanCancelled), [this] {
                posted.emplace_back("cancelled");
            });
    }

    void start(std::string_view items, std::string_view path = "/Users/me/Documents")
    {
        makeScanner(items);
        controller->startScanning(Url(path, true));
    }

    /// Runs until `done`, and notes what was shown after each report.
    template <typename Condition>
    void runUntil(Condition done)
    {
        system->mainThread.runUntil([&] {
            if (tile.displayed.size() > paths.size()) {
                paths.push_back(outlet<PathLabel>("scanLabel")->text().toStdString());
                rates.push_back(text("readRate"));
                amounts.push_back(text("totalRead"));
            }
            return done();
        });
    }

    void runToEnd()
    {
        runUntil([this] { return !posted.empty(); });
    }

    /// Until the scanner's worker has ended.
    void runUntilIdle()
    {
        bool isIdle = false;
        std::thread waiter([this, &isIdle] {
            system->workers->waitForNone();
            system->mainThread.perform([&isIdle] { isIdle = true; });
        });
        system->mainThread.runUntil([&isIdle] { return isIdle; });
        waiter.join();
    }

    void scanToEnd(std::string_view items, std::string_view path = "/Users/me/Documents")
    {
        start(items, path);
        runToEnd();
    }

    template <typename View>
    View* outlet(const char* name) const
    {
        return controller->view().findChild<View*>(QString::fromLatin1(name));
    }

    std::string text(const char* name) const { return outlet<QLabel>(name)->text().toStdString(); }

    FakeDockTile tile;
    FakeNotifications notifications;
    EndNotices notices{notifications, [this] { return system->scanClock.load(); }};
    FakeRootModelServices modelServices;
    RootModel model{modelServices.get()};
    std::unique_ptr<FakeTreeViewServices> system;
    std::unique_ptr<ScanningViewController> controller;
    std::string userHome = "/me";
    std::function<void(const std::string&)> beforeItem;
    double secondsPerItem = 0.5;
    std::error_code problem; ///< of every folder
    std::vector<std::string> checked; ///< the folders that were asked about
    std::vector<std::string> posted;
    std::vector<std::string> paths;
    std::vector<std::string> rates;
    std::vector<std::string> amounts;
};

} // namespace tessera::test
