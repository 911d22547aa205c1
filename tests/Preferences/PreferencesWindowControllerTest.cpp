// SPDX-License-Identifier: MIT
#include "Preferences/PreferencesWindowController.h"

#include "Model/Defaults.h"
#include "support/Fakes/FakeUserDefaults.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDialog>
#include <QPushButton>
#include <QTest>

#include <gtest/gtest.h>

#include <memory>

namespace tessera {
namespace {

class PreferencesWindowControllerTest : public testing::Test {
protected:
    PreferencesWindowControllerTest()
    {
        registerDefaults(defaults);
        controller = std::make_unique<PreferencesWindowController>(defaults);
    }

    template <typename Control>
    Control& outlet(const char* name) const
    {
        return *controller->window().findChild<Control*>(QString::fromLatin1(name));
    }

    QCheckBox& hiddenBox() const { return outlet<QCheckBox>("warnHiddenDelete"); }
    QCheckBox& systemBox() const { return outlet<QCheckBox>("warnSystemDelete"); }
    QCheckBox& sizesBox() const { return outlet<QCheckBox>("folderSizes"); }
    QComboBox& tooltipButton() const { return outlet<QComboBox>("tooltipButton"); }

    test::FakeUserDefaults defaults;
    std::unique_ptr<PreferencesWindowController> controller;
};

TEST_F(PreferencesWindowControllerTest, ShowsWhatIsRegisteredWhileNothingIsStored)
{
    EXPECT_TRUE(hiddenBox().isChecked());
    EXPECT_TRUE(systemBox().isChecked());
    EXPECT_TRUE(sizesBox().isChecked());
    EXPECT_EQ(tooltipButton().currentIndex(), 2);
    EXPECT_EQ(tooltipButton().count(), 3);
    EXPECT_TRUE(defaults.texts.empty());
}

TEST_F(PreferencesWindowControllerTest, UntickingAWarningIsStoredAtOnce)
{
    QTest::keyClick(&hiddenBox(), Qt::Key_Space);
    EXPECT_FALSE(defaults.boolean(kWarnDeleteHiddenKey));
    EXPECT_TRUE(defaults.boolean(kWarnDeleteSystemKey));
}

TEST_F(PreferencesWindowControllerTest, TheOtherWarningHasAKeyOfItsOwn)
{
    systemBox().setChecked(false);
    EXPECT_FALSE(defaults.boolean(kWarnDeleteSystemKey));
    EXPECT_TRUE(defaults.boolean(kWarnDeleteHiddenKey));
}

TEST_F(PreferencesWindowControllerTest, SizesInThePictureAreStoredAtOnce)
{
    QTest::keyClick(&sizesBox(), Qt::Key_Space);
    EXPECT_FALSE(defaults.boolean(kFolderSizesKey));
    EXPECT_TRUE(defaults.boolean(kWarnDeleteHiddenKey));
    EXPECT_TRUE(defaults.boolean(kWarnDeleteSystemKey));
    defaults.setBoolean(kFolderSizesKey, true);
    EXPECT_TRUE(sizesBox().isChecked());
}

TEST_F(PreferencesWindowControllerTest, TheTooltipIsStoredByTheNumberOfTheEntry)
{
    tooltipButton().setCurrentIndex(1);
    EXPECT_EQ(defaults.integer(kTooltipTypeKey), 1);
    QTest::keyClick(&tooltipButton(), Qt::Key_Up);
    EXPECT_EQ(defaults.integer(kTooltipTypeKey), 0);
}

TEST_F(PreferencesWindowControllerTest, FollowsWhatChangesElsewhere)
{
    defaults.setInteger(kTooltipTypeKey, 0);
    defaults.setBoolean(kWarnDeleteHiddenKey, false);
    EXPECT_EQ(tooltipButton().currentIndex(), 0);
    EXPECT_FALSE(hiddenBox().isChecked());
}

TEST_F(PreferencesWindowControllerTest, AValueWithoutAnEntryStays)
{
    defaults.setInteger(kTooltipTypeKey, 7);
    EXPECT_EQ(tooltipButton().currentIndex(), -1);
    EXPECT_EQ(defaults.integer(kTooltipTypeKey), 7);
}

TEST_F(PreferencesWindowControllerTest, ClosesByItsButtonAndByEscape)
{
    controller->showWindow();
    QTest::mouseClick(&outlet<QPushButton>("closeButton"), Qt::LeftButton);
    EXPECT_FALSE(controller->window().isVisible());
    controller->showWindow();
    QTest::keyClick(&controller->window(), Qt::Key_Escape);
    EXPECT_FALSE(controller->window().isVisible());
}

} // namespace
} // namespace tessera
