// SPDX-License-Identifier: MIT
#pragma once

#include "Compress/CompressWindowController.h"
#include "support/BecomesActive.h"
#include "support/Fakes/FakeAlert.h"
#include "support/Fakes/FakeFileSystem.h"
#include "support/Fakes/FakeIconProvider.h"
#include "support/Fakes/FakeItemChanges.h"
#include "support/Fakes/FakeItemStates.h"
#include "support/Fakes/FakeTask.h"
#include "support/Fakes/FakeWorkspace.h"

#include <QApplication>
#include <QDialog>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QTest>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <optional>
#include <set>
#include <string>
#include <utility>
#include <vector>

namespace tessera::test {

/// The file that the archiver says it has made, and how it says so.
inline constexpr FileIdentity kMade{2049, 12};
inline constexpr const char* kMadeLine = "2049 12\n";

/// A compress window with a tool, a trash and a disk that do as they are told.
class CompressWindowFixture : public testing::Test {
protected:
    CompressWindowFixture() { task.output = kMadeLine; }

    ~CompressWindowFixture() override
    {
        endProgram();
        controller.reset();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }

    /// Those of a controller whose tool is that one.
    CompressServices services(FakeTaskRecord& tool)
    {
        return {
            .archiver = "/opt/archiver",
            .makeTask = [&tool] { return FakeTask::make(tool); },
            .workspace = workspace,
            .resourceValues = WithTimeLimit<ResourceValues>(files),
            .icons = icons,
            .targetsInUse = targetsInUse,
            .alert = alert,
            .itemChanges = itemChanges,
            .itemStates = itemStates};
    }

    std::shared_ptr<CompressWindowController> makeController()
    {
        auto made = CompressWindowController::make(
            services(task), [this](std::chrono::milliseconds delay, std::function<void()> work) {
                delays.push_back(delay);
                delayed.push_back(std::move(work));
            });
        QObject::connect(
            made.get(),
            &CompressWindowController::itemCompressed,
            [this](const std::optional<Url>& archive) { posted.push_back(archive); });
        QObject::connect(made.get(), &CompressWindowController::itemGone, [this](const Url& place) {
            gone.push_back(place);
        });
        return made;
    }

    void compress(std::string_view path = "/data/X", std::uint64_t bytes = 1'000'000)
    {
        controller->compressURL(Url(path, true), bytes);
    }

    /// What every controller hears that still works.
    static void endProgram() { emit qApp->aboutToQuit({}); }

    void endTool(int status) { std::exchange(task.onTerminated, {})(status); }

    int ticksUntilPosted(int most)
    {
        for (int tick = 1; tick <= most; ++tick) {
            controller->updateProgress();
            if (!posted.empty()) {
                return tick;
            }
        }
        return most + 1;
    }

    void moveToTrash()
    {
        RecycleResult result;
        result.newUrls.emplace("file:///data/X.zip.part", Url("/trash/X.zip.part", false));
        ASSERT_TRUE(workspace.finishRecycling(result));
    }

    void refuseTrash() { ASSERT_TRUE(workspace.finishRecycling({{}, "It cannot be moved."})); }

    void endDelay() { std::exchange(delayed, {}).at(0)(); }

    template <typename View>
    View* outlet(const char* name) const
    {
        return controller->window().findChild<View*>(QString::fromLatin1(name));
    }

    std::string status() const
    {
        return outlet<QLabel>("outputField")->accessibleName().toStdString();
    }

    double shownProgress() const
    {
        const auto* progress = outlet<QProgressBar>("progress");
        return static_cast<double>(progress->value()) / progress->maximum();
    }

    FakeTaskRecord task;
    FakeTaskRecord otherTask;
    FakeWorkspace workspace;
    FakeResourceValues files;
    FakeIconProvider icons;
    std::set<std::string> targetsInUse;
    FakeAlert alert;
    std::shared_ptr<FakeItemChanges> itemChanges = std::make_shared<FakeItemChanges>();
    std::shared_ptr<FakeItemStates> itemStates = std::make_shared<FakeItemStates>();
    std::vector<std::chrono::milliseconds> delays;
    std::vector<std::function<void()>> delayed;
    std::shared_ptr<CompressWindowController> controller = makeController();
    std::vector<std::optional<Url>> posted;
    std::vector<Url> gone;
};

} // namespace tessera::test
