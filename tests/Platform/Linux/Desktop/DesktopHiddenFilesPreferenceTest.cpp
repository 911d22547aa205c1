// SPDX-License-Identifier: MIT
#include "Platform/Linux/Desktop/DesktopHiddenFilesPreference.h"

#include "OwnDesktopSettings.h"

#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <optional>

namespace tessera {
namespace {

using test::kNoSchema;
using test::kOwnSchema;
using test::kSchemaWithoutKeys;

class DesktopHiddenFilesPreferenceTest : public testing::Test {
protected:
    void SetUp() override { ASSERT_TRUE(test::installOwnSettings()); }
    void TearDown() override { test::resetOwnSettings(); }

    void writeKde(const QByteArray& text) const
    {
        QFile file(kdeFile);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(text);
    }

    std::optional<bool> shows(const char* gtk4, const char* gtk3, bool isKde = false) const
    {
        return DesktopHiddenFilesPreference({gtk4, gtk3, kdeFile, isKde}).showsHiddenFiles();
    }

    QTemporaryDir folder;
    QString kdeFile = folder.filePath(QStringLiteral("kdeglobals"));
};

TEST_F(DesktopHiddenFilesPreferenceTest, WithoutAnySettingNobodySays)
{
    EXPECT_EQ(shows(kNoSchema, kNoSchema), std::nullopt);
    EXPECT_EQ(shows(kSchemaWithoutKeys, kNoSchema, true), std::nullopt);
    EXPECT_FALSE(QFile::exists(kdeFile));
}

TEST_F(DesktopHiddenFilesPreferenceTest, GtkSaysInEitherOfItsSettings)
{
    EXPECT_EQ(shows(kOwnSchema, kNoSchema), false);
    EXPECT_EQ(shows(kNoSchema, kOwnSchema), false);
    test::setOwnSetting("show-hidden", true);
    EXPECT_EQ(shows(kOwnSchema, kNoSchema), true);
    EXPECT_EQ(shows(kNoSchema, kOwnSchema), true);
}

TEST_F(DesktopHiddenFilesPreferenceTest, KdeSaysInItsFile)
{
    writeKde("[General]\nx=1\n\n[KFileDialog Settings]\nShow hidden files=true\n");
    EXPECT_EQ(shows(kNoSchema, kNoSchema), true);
    writeKde("[KFileDialog Settings]\nShow hidden files=false\n");
    EXPECT_EQ(shows(kNoSchema, kNoSchema), false);
}

TEST_F(DesktopHiddenFilesPreferenceTest, TheRunningDesktopsOwnCountsFirst)
{
    writeKde("[KFileDialog Settings]\nShow hidden files=true\n");
    EXPECT_EQ(shows(kOwnSchema, kNoSchema, true), true);
    EXPECT_EQ(shows(kOwnSchema, kNoSchema, false), false);
}

} // namespace
} // namespace tessera
