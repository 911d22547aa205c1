// SPDX-License-Identifier: MIT
#include "Platform/Linux/Desktop/DesktopMotionPreference.h"

#include "OwnDesktopSettings.h"

#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace tessera {
namespace {

using test::kNoSchema;
using test::kOwnSchema;
using test::kSchemaWithoutKeys;

class DesktopMotionPreferenceTest : public testing::Test {
protected:
    void SetUp() override { ASSERT_TRUE(test::installOwnSettings()); }

    void TearDown() override { test::resetOwnSettings(); }

    static void write(const QString& path, const QByteArray& text)
    {
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(text);
    }

    static void setAnimations(bool on) { test::setOwnSetting("enable-animations", on); }

    bool reducesMotionInKde(const QByteArray& text) const
    {
        write(kdeFile, text);
        return DesktopMotionPreference(kNoSchema, kdeFile).reducesMotion();
    }

    QTemporaryDir folder;
    QString kdeFile = folder.filePath(QStringLiteral("kdeglobals"));
};

TEST_F(DesktopMotionPreferenceTest, WithoutAnySettingThereIsMotion)
{
    EXPECT_FALSE(DesktopMotionPreference(kNoSchema, kdeFile).reducesMotion());
    EXPECT_FALSE(DesktopMotionPreference(kSchemaWithoutKeys, kdeFile).reducesMotion());
    EXPECT_FALSE(QFile::exists(kdeFile));
}

TEST_F(DesktopMotionPreferenceTest, FollowsTheSharedSettingWhileItChanges)
{
    setAnimations(true);
    const DesktopMotionPreference preference(kOwnSchema, kdeFile);
    EXPECT_FALSE(preference.reducesMotion());
    setAnimations(false);
    EXPECT_TRUE(preference.reducesMotion());
    setAnimations(true);
    EXPECT_FALSE(preference.reducesMotion());
}

TEST_F(DesktopMotionPreferenceTest, AnimationsThatTakeNoTimeInKdeAreReducedMotion)
{
    EXPECT_TRUE(reducesMotionInKde("[KDE]\nAnimationDurationFactor=0\n"));
}

TEST_F(DesktopMotionPreferenceTest, SlowerOrQuickerAnimationsInKdeAreMotion)
{
    EXPECT_FALSE(reducesMotionInKde("[KDE]\nAnimationDurationFactor=0.25\n"));
    EXPECT_FALSE(reducesMotionInKde("[KDE]\nSingleClick=false\n"));
}

TEST_F(DesktopMotionPreferenceTest, WhatIsNoNumberInKdeSaysNothing)
{
    EXPECT_FALSE(reducesMotionInKde("[$Version]\nx=1\n[KDE]\nAnimationDurationFactor=fast\n"));
}

} // namespace
} // namespace tessera
