// SPDX-License-Identifier: MIT
#include "Scanning/ScanWorkers.h"

#include <gtest/gtest.h>

namespace tessera {
namespace {

constexpr std::chrono::milliseconds kShort{1};

TEST(ScanWorkers, WithoutAnyNobodyWaits)
{
    EXPECT_TRUE(ScanWorkers().waitForNone(std::chrono::milliseconds(0)));
}

TEST(ScanWorkers, OneThatIsStuckIsWaitedForNoLongerThanAllowed)
{
    ScanWorkers workers;
    workers.add();
    workers.add();
    workers.remove();
    EXPECT_FALSE(workers.waitForNone(kShort));
    workers.remove();
    EXPECT_TRUE(workers.waitForNone(kShort));
}

} // namespace
} // namespace tessera
