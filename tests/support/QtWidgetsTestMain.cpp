// SPDX-License-Identifier: MIT
#include "QuickLook/PreviewThreads.h"

#include <QApplication>

#include <gtest/gtest.h>

namespace {

constexpr std::chrono::seconds kEndOfProgramPatience{10};

} // namespace

int main(int argc, char** argv)
{
    // Listing the tests at build time must not need a display either.
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    testing::InitGoogleTest(&argc, argv);
    const QApplication application(argc, argv);
    const int status = RUN_ALL_TESTS();
    (void)tessera::PreviewThreads::waitForEnd(kEndOfProgramPatience);
    return status;
}
