// SPDX-License-Identifier: MIT
#include "Platform/Linux/Desktop/LinuxWords.h"

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

TEST(LinuxWords, NameNoProductWhereABackupIsRefused)
{
    EXPECT_EQ(
        LinuxWords().translate(
            "MainWindowController",
            "Tessera is unable to scan inside a Time Machine backup. To estimate the overall size "
            "of Time Machine, please scan the disk labeled '%1'."),
        QStringLiteral("Tessera is unable to scan inside a backup. To estimate the overall size of "
                       "the backups, please scan the disk labeled '%1'."));
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
