// SPDX-License-Identifier: MIT
#include "Platform/Linux/LinuxWords.h"

#include <QCoreApplication>

#include <gtest/gtest.h>

namespace tessera {
namespace {

TEST(LinuxWords, NameThePartsOfThisSystem)
{
    const LinuxWords words;
    EXPECT_EQ(
        words.translate("TreeMenu", "Show in Finder"), QStringLiteral("Show in File Manager"));
    EXPECT_EQ(
        words.translate("MainMenu", "&Show in Finder"), QStringLiteral("&Show in File Manager"));
    EXPECT_EQ(words.translate("any", "Time Machine Detected"), QStringLiteral("Backup Detected"));
}

TEST(LinuxWords, LeaveAllOtherTextsAsTheyAre)
{
    EXPECT_TRUE(LinuxWords().translate("TreeMenu", "Quick Look").isNull());
}

TEST(LinuxWords, AreReadOnceTheyAreInstalled)
{
    LinuxWords words;
    QCoreApplication::installTranslator(&words);
    EXPECT_EQ(
        QCoreApplication::translate("TreeMenu", "Show in Finder"),
        QStringLiteral("Show in File Manager"));
    QCoreApplication::removeTranslator(&words);
}

} // namespace
} // namespace tessera
