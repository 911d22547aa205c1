// SPDX-License-Identifier: MIT
#pragma once

#include "Basket/BasketKeeper.h"
#include "TreeScreen/TreeViewServices.h"
#include "Undo/DiskChanges.h"
#include "Undo/TrashUndo.h"
#include "support/Fakes/FakeAlert.h"
#include "support/Fakes/FakeDirectoryEnumerator.h"
#include "support/Fakes/FakeFileSystem.h"
#include "support/Fakes/FakeIconProvider.h"
#include "support/Fakes/FakeItemChanges.h"
#include "support/Fakes/FakeItemStates.h"
#include "support/Fakes/FakeMainThread.h"
#include "support/Fakes/FakeMotionPreference.h"
#include "support/Fakes/FakeOtherPrograms.h"
#include "support/Fakes/FakeTask.h"
#include "support/Fakes/FakeUserDefaults.h"
#include "support/Fakes/FakeWorkspace.h"

#include <atomic>
#include <cerrno>
#include <cstdint>
#include <memory>
#include <set>
#include <string>
#include <system_error>
#include <thread>
#include <utility>

namespace tessera::test {

/// All that a TreeViewController needs, and a clock that stands still. Whatever is rescanned holds
/// the items given to the constructor.
struct FakeTreeViewServices {
    explicit FakeTreeViewServices(std::string_view rescannedItems = "")
        : files(rescannedItems)
    {
        basket.listenTo(trashUndo, diskChanges);
    }

    FakeFileManager files;
    FakeResourceValues scanResourceValues; ///< of rescans, which may take as long as they like
    FakeResourceValues resourceValues;
    FixedFileSystem fileSystem{FileSystemSizes{1000, 300}};
    FakeMainThread mainThread;
    FakeUserDefaults defaults;
    FakeWorkspace workspace;
    FakeOtherPrograms otherPrograms;
    FakeAlert alert;
    FakeIconProvider icons;
    FakeTaskRecord archiver;
    std::set<std::string> targetsInUse;
    FakeMotionPreference motion;
    DiskChanges diskChanges;
    TrashUndo trashUndo{workspace, alert, diskChanges};
    std::shared_ptr<FakeItemStates> itemStates = std::make_shared<FakeItemStates>();
    std::shared_ptr<FakeItemChanges> itemChanges = std::make_shared<FakeItemChanges>();
    BasketKeeper basket{itemStates, mainThread};
    std::uint32_t userNumber = 0; ///< which owns what nothing else is said of
    std::error_code folderProblem; ///< that every folder has
    std::string checkedFolder; ///< the last one
    std::atomic<bool> hasThreads = true; ///< whether a scan gets a worker
    std::shared_ptr<ScanWorkers> workers
        = std::make_shared<ScanWorkers>([this](ScanWorkers::Work work) {
              if (!hasThreads) {
                  throw std::system_error(EAGAIN, std::generic_category());
              }
              std::thread(std::move(work)).detach();
          });
    std::string home = "/me";
    double now = 100;
    std::atomic<double> scanClock = 100;

    TreeViewServices get()
    {
        return {
            .scanEnvironment
            = {.fileManager = files,
               .resourceValues = scanResourceValues,
               .fileSystemAttributes = fileSystem,
               .mainThread = mainThread,
               .clock = [this] { return scanClock.load(); },
               .homeDirectory = home,
               .workers = workers},
            .resourceValues = WithTimeLimit<ResourceValues>(resourceValues),
            .fileSystemAttributes = WithTimeLimit<FileSystemAttributes>(fileSystem),
            .defaults = defaults,
            .workspace = workspace,
            .otherPrograms = otherPrograms,
            .alert = alert,
            .compressing
            = {.archiver = "/archiver",
               .makeTask = [this] { return FakeTask::make(archiver); },
               .workspace = workspace,
               .resourceValues = WithTimeLimit<ResourceValues>(resourceValues),
               .icons = icons,
               .targetsInUse = targetsInUse,
               .alert = alert,
               .itemChanges = itemChanges,
               .itemStates = itemStates},
            .motion = motion,
            .diskChanges = diskChanges,
            .trashUndo = trashUndo,
            .basket = basket,
            .userNumber = userNumber,
            .checkFolder =
                [this](const std::string& path) {
                    checkedFolder = path;
                    return folderProblem;
                },
            .zoomClock = [this] { return now; }};
    }
};

} // namespace tessera::test
