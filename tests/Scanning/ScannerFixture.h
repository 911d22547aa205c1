// SPDX-License-Identifier: MIT
#pragma once

#include "Scanning/Scanner.h"
#include "Scanning/ScannerDelegate.h"
#include "support/Fakes/FakeDirectoryEnumerator.h"
#include "support/Fakes/FakeFileSystem.h"
#include "support/Fakes/FakeMainThread.h"

#include <gtest/gtest.h>

#include <atomic>
#include <functional>
#include <future>
#include <string>
#include <system_error>
#include <thread>
#include <vector>

namespace tessera::test {

struct ScanUpdate {
    std::string path;
    double percent = 0;
    std::uint64_t objects = 0;
    std::uint64_t bytes = 0;
};

class RecordingDelegate final : public ScannerDelegate {
public:
    void scanUpdated(Scanner& scanner) override
    {
        calls.emplace_back("updated");
        updates.push_back(
            {scanner.currentURL().path(),
             scanner.percentComplete(),
             scanner.objectsRead(),
             scanner.allocationRead()});
    }

    void scanEnded(Scanner& scanner) override
    {
        calls.emplace_back("ended");
        endedOn = std::this_thread::get_id();
        tree = scanner.takeTopFolder();
    }

    void scanCancelled(Scanner& /*scanner*/) override { calls.emplace_back("cancelled"); }

    void scanFailed(Scanner& /*scanner*/, const std::error_code& why) override
    {
        calls.emplace_back("failed");
        problem = why;
    }

    bool hasEnded() const { return !calls.empty() && calls.back() == "ended"; }

    std::vector<std::string> calls;
    std::vector<ScanUpdate> updates;
    std::thread::id endedOn;
    std::unique_ptr<TopFolder> tree;
    std::error_code problem;
};

/// A scanner in a system of fakes. The clock stands still unless a test turns it.
class ScannerFixture : public testing::Test {
protected:
    ~ScannerFixture() override
    {
        m_scanner.reset();
        workers->waitForNone();
    }

    Scanner& scannerOf(std::string_view items)
    {
        files = std::make_unique<FakeFileManager>(items);
        m_scanner = Scanner::create(
            {.fileManager = *files,
             .resourceValues = resourceValues,
             .fileSystemAttributes = fileSystem,
             .mainThread = mainThread,
             .clock =
                 [this] {
                     if (onClock) {
                         onClock();
                     }
                     return now.load();
                 },
             .homeDirectory = home,
             .workers = workers});
        m_scanner->setDelegate(&delegate);
        return *m_scanner;
    }

    TopFolder& scanToEnd(std::string_view items, std::string_view path = "/data")
    {
        scannerOf(items).scan(Url(path, true));
        mainThread.runUntil([this] { return delegate.hasEnded(); });
        return *delegate.tree;
    }

    /// Lets `seconds` pass before every item of the walk, not of the count made in advance.
    void passBeforeEachItem(double seconds)
    {
        beforeEachItem([this, seconds] { now = now.load() + seconds; });
    }

    /// The same, with every report delivered before the next item comes. Needs a turning loop.
    void passAndDeliverBeforeEachItem(double seconds)
    {
        beforeEachItem([this, seconds] {
            mainThread.performAndWait([] {});
            now = now.load() + seconds;
        });
    }

    void beforeEachItem(const std::function<void()>& action)
    {
        files->onItem([this, action](const std::string& /*path*/) {
            if (files->enumeratedPaths().size() == enumerationsBeforeWalk + 1) {
                action();
            }
        });
    }

    void drop() { m_scanner.reset(); }

    /// Delivers all that is on its way.
    void drain()
    {
        bool drained = false;
        mainThread.perform([&] { drained = true; });
        mainThread.runUntil([&] { return drained; });
    }

    /// Until no worker is left.
    void runUntilIdle()
    {
        bool isIdle = false;
        std::thread waiter([&] {
            workers->waitForNone();
            mainThread.perform([&isIdle] { isIdle = true; });
        });
        mainThread.runUntil([&isIdle] { return isIdle; });
        waiter.join();
    }

    /// Has the first scan stop where its first report is due, until the gate opens. The future says
    /// when it is there.
    std::future<void> stopAtFirstReport(std::shared_future<void> gate)
    {
        auto reached = std::make_shared<std::promise<void>>();
        std::future<void> stopped = reached->get_future();
        auto asked = std::make_shared<std::atomic<int>>(0);
        onClock = [this, reached, asked, gate = std::move(gate)] {
            if (asked->fetch_add(1) == 1) { // the first time is the start's
                now = now.load() + 1.0;
                reached->set_value();
                gate.wait();
            }
        };
        return stopped;
    }

    std::unique_ptr<FakeFileManager> files;
    FakeResourceValues resourceValues;
    FixedFileSystem fileSystem{FileSystemSizes{1000, 300}};
    FakeMainThread mainThread;
    std::shared_ptr<ScanWorkers> workers = std::make_shared<ScanWorkers>();
    RecordingDelegate delegate;
    std::atomic<double> now = 100.0;
    std::function<void()> onClock; ///< on the worker's thread
    std::string home = "/home/me";
    std::size_t enumerationsBeforeWalk = 1;

private:
    std::shared_ptr<Scanner> m_scanner;
};

} // namespace tessera::test
