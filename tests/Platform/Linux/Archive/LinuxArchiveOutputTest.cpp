// SPDX-License-Identifier: MIT
#include "Platform/Linux/Archive/LinuxArchiveOutput.h"

#include "HelperPrograms/Archiver/ArchiverSystem.h"
#include "Platform/Linux/Files/FileStatus.h"
#include "support/Machine/FailingCalls.h"
#include "support/Machine/FileContent.h"
#include "support/Machine/Meanwhile.h"
#include "support/Machine/TempTree.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/syscall.h>

#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <filesystem>

namespace tessera::test {
namespace {

/// An archive "X.zip" that is still called "X.zip.part".
class LinuxArchiveOutputOfX : public testing::Test {
protected:
    FileDescriptor openPart() const
    {
        return FileDescriptor(
            ::open(tree.pathOf("X.zip.part").c_str(), O_WRONLY | O_CREAT | O_CLOEXEC, 0600));
    }

    TempTree tree;
    LinuxArchiveOutput output{
        openPart(),
        statusOf(openPart().number()).status.identity,
        openFolderOf(tree.pathOf("X.zip")),
        "X.zip.part"};
};

TEST_F(LinuxArchiveOutputOfX, AnotherFileOfThatNameIsNotTakenForTheArchive)
{
    tree.makeFile("X.zip");
    EXPECT_EQ(output.publish(), EEXIST);
}

TEST_F(LinuxArchiveOutputOfX, WhatHasTheNameAlreadyIsPublishedThoughItsOldNameIsStillShown)
{
    tree.makeHardLink("X.zip", "X.zip.part");
    EXPECT_EQ(output.publish(), 0);
}

TEST_F(LinuxArchiveOutputOfX, WhatOnlyClosingTellsIsAFailure)
{
    const auto isTold = [this] {
        return makeCallFail({SYS_close, EIO, {}}) && output.close() == EIO;
    };
    EXPECT_EXIT(std::_Exit(isTold() ? 0 : 1), testing::ExitedWithCode(0), "");
}

TEST_F(LinuxArchiveOutputOfX, ARequestToEndWaitsUntilTheNameIsTheArchives)
{
    const auto publishSlowly = [this] {
        endOnTerminationSignals("", {7, 8});
        const Meanwhile asked(Call::Sync, [] { (void)std::raise(SIGTERM); });
        return makeCallFail({SYS_renameat2, EINVAL, {}}) && output.publish() == 0;
    };
    EXPECT_EXIT(std::_Exit(publishSlowly() ? 0 : 2), testing::ExitedWithCode(7), "");
    EXPECT_FALSE(std::filesystem::exists(tree.pathOf("X.zip.part")));
    EXPECT_EQ(fileContent(tree.pathOf("X.zip")), "");
}

} // namespace
} // namespace tessera::test
