// SPDX-License-Identifier: MIT
#include "Platform/Linux/DesktopMotionPreference.h"

#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

// Qt's "signals" would replace a member's name in GIO's headers.
#undef signals
#include <gio/gio.h>
#include <gtest/gtest.h>

namespace tessera {
namespace {

constexpr const char* kOwnSchema = "org.example.tessera.interface";
constexpr const char* kSchemaWithoutKey = "org.example.tessera.other";
constexpr const char* kNoSchema = "org.example.tessera.missing";

/// Settings of the test's own, kept in memory.
class DesktopMotionPreferenceTest : public testing::Test {
protected:
    static void SetUpTestSuite()
    {
        static const QTemporaryDir folder;
        write(folder.filePath(QStringLiteral("test.gschema.xml")), R"(<schemalist>
            <schema id="org.example.tessera.interface" path="/org/example/tessera/interface/">
              <key name="enable-animations" type="b"><default>true</default></key>
            </schema>
            <schema id="org.example.tessera.other" path="/org/example/tessera/other/">
              <key name="something" type="b"><default>false</default></key>
            </schema>
            </schemalist>)");
        ASSERT_EQ(QProcess::execute(QStringLiteral("glib-compile-schemas"), {folder.path()}), 0);
        qputenv("GSETTINGS_SCHEMA_DIR", QFile::encodeName(folder.path()));
        qputenv("GSETTINGS_BACKEND", "memory");
    }

    static void write(const QString& path, const QByteArray& text)
    {
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(text);
    }

    static void setAnimations(bool on)
    {
        GSettings* const settings = g_settings_new(kOwnSchema);
        g_settings_set_boolean(settings, "enable-animations", on ? TRUE : FALSE);
        g_object_unref(settings);
    }

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
    EXPECT_FALSE(DesktopMotionPreference(kSchemaWithoutKey, kdeFile).reducesMotion());
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
