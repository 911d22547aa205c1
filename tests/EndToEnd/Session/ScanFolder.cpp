// SPDX-License-Identifier: MIT
#include "ScanFolder.h"

#include "DeadMounts/DeadMountLimits.h"
#include "Platform/Linux/Mounts/LinuxFileSystemAttributes.h"
#include "Platform/Linux/Mounts/LinuxResourceValues.h"
#include "Platform/Linux/Walk/LinuxFileManager.h"
#include "Scanning/Scanner.h"
#include "support/Fakes/FakeMainThread.h"

namespace tessera::test {

std::unique_ptr<TopFolder> scanFolder(const std::string& path)
{
    const LinuxFileManager fileManager;
    const auto questions = std::make_shared<const FileSystemQuestions>(kWorkerPatience);
    const LinuxResourceValues resourceValues(questions);
    const LinuxFileSystemAttributes fileSystem(questions);
    FakeMainThread mainThread;
    const ScanEnvironment environment{
        .fileManager = fileManager,
        .resourceValues = resourceValues,
        .fileSystemAttributes = fileSystem,
        .mainThread = mainThread,
        .clock = [] { return 0.0; },
        .homeDirectory = "/nobody"};
    const auto scanner = Scanner::create(environment);
    scanner->scan(Url(path, true));
    environment.workers->waitForNone();
    return scanner->takeTopFolder();
}

} // namespace tessera::test
