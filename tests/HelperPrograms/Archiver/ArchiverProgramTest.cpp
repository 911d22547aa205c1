// SPDX-License-Identifier: MIT
#include "HelperPrograms/Archiver/ArchiverProgram.h"

#include "HelperPrograms/Archiver/ArchiverCommandLine.h"
#include "HelperPrograms/Archiver/ArchiverSystem.h"
#include "HelperPrograms/Archiver/FakeArchiveOutput.h"
#include "HelperPrograms/Archiver/FakeSourceWalk.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <utility>

namespace tessera::test {
namespace {

/// Opens the prepared source, once.
class PreparedSystem final : public ArchiverSystem {
public:
    [[nodiscard]] Result<SourceWalk> openSource(
        const std::string& /*path*/, SourceKind /*kind*/) override
    {
        return std::move(source);
    }

    [[nodiscard]] Result<ArchiveOutput> createTarget(const std::string& /*path*/) override
    {
        return std::make_unique<FakeArchiveOutput>();
    }

    std::unique_ptr<FakeSourceWalk> source = std::make_unique<FakeSourceWalk>();
};

class ArchiverProgram : public testing::Test {
protected:
    /// What it says on standard error.
    std::string run()
    {
        testing::internal::CaptureStderr();
        EXPECT_EQ(runArchiver({"X", "X.zip"}, system), 0);
        return testing::internal::GetCapturedStderr();
    }

    PreparedSystem system;
};

TEST_F(ArchiverProgram, SaysWhatHasShrunk)
{
    FakeSourceWalk::Prepared prepared;
    prepared.item.path = "X/log";
    prepared.item.length = 5;
    prepared.content = "four";
    system.source->add(prepared);
    EXPECT_EQ(run(), "tessera-ditto: 'X/log' became shorter while it was read\n");
}

TEST_F(ArchiverProgram, SaysWhatHasVanished)
{
    system.source->addStep(SourceWalk::Step::Vanished, "X/a");
    system.source->addStep(SourceWalk::Step::Vanished, "X/b");
    EXPECT_EQ(run(), "tessera-ditto: left out 'X/a', which vanished meanwhile (and 1 more)\n");
}

} // namespace
} // namespace tessera::test
