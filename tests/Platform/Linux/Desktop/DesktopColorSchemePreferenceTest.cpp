// SPDX-License-Identifier: MIT
#include "Platform/Linux/Desktop/DesktopColorSchemePreference.h"

#include "OwnDesktopSettings.h"
#include "support/Machine/SessionBus.h"

#include <QDBusArgument>
#include <QDBusMessage>
#include <QDBusVariant>
#include <QDBusVirtualObject>

#include <gtest/gtest.h>

#include <cmath>
#include <memory>
#include <optional>
#include <string>

namespace tessera {
namespace {

using test::kNoSchema;
using test::kOwnSchema;

const QString kPortal = QStringLiteral("org.freedesktop.portal.Desktop");
const QString kPath = QStringLiteral("/org/freedesktop/portal/desktop");
const QString kInterface = QStringLiteral("org.freedesktop.portal.Settings");
const QString kAppearance = QStringLiteral("org.freedesktop.appearance");
const QString kColorScheme = QStringLiteral("color-scheme");

const QString kAccent = QStringLiteral("accent-color");

/// As the portal says colours, of any parts.
QVariant portalColor(double red, double green, double blue)
{
    QDBusArgument parts;
    parts.beginStructure();
    parts << red << green << blue;
    parts.endStructure();
    return QVariant::fromValue(parts);
}

/// A desktop's portal; it answers when and what the test says. It lives on the thread of the
/// program, so that whoever waits for its answer waits for ever.
class FakePortal final : public QDBusVirtualObject {
public:
    explicit FakePortal(QDBusConnection bus)
        : m_bus(std::move(bus))
    {
        m_bus.registerVirtualObject(kPath, this);
        m_bus.registerService(kPortal);
    }

    bool isAsked() const { return m_question.has_value(); }

    void answer(unsigned scheme)
    {
        const QVariant inner = QVariant::fromValue(QDBusVariant(scheme));
        m_bus.send(m_question->createReply(QVariant::fromValue(QDBusVariant(inner))));
    }

    void refuse()
    {
        m_bus.send(m_question->createErrorReply(
            QStringLiteral("org.freedesktop.portal.Error.NotFound"),
            QStringLiteral("Requested setting not found")));
    }

    void tellChange(const QString& group, const QString& key, const QVariant& value)
    {
        QDBusMessage signal
            = QDBusMessage::createSignal(kPath, kInterface, QStringLiteral("SettingChanged"));
        signal << group << key << QVariant::fromValue(QDBusVariant(value));
        m_bus.send(signal);
    }

    QString introspect(const QString& /*path*/) const override { return {}; }

    bool handleMessage(const QDBusMessage& message, const QDBusConnection& /*connection*/) override
    {
        const QVariantList expected{kAppearance, kColorScheme};
        const QVariantList accentExpected{kAppearance, kAccent};
        if (accent && message.arguments() == accentExpected) {
            const QVariant inner = QVariant::fromValue(QDBusVariant(*accent));
            return m_bus.send(message.createReply(QVariant::fromValue(QDBusVariant(inner))));
        }
        if (message.interface() != kInterface || message.member() != QStringLiteral("Read")
            || message.arguments() != expected) {
            return false;
        }
        m_question = message;
        return true;
    }

    std::optional<QVariant> accent; ///< answered at once

private:
    QDBusConnection m_bus;
    std::optional<QDBusMessage> m_question;
};

class DesktopColorSchemePreferenceTest : public testing::Test {
protected:
    void SetUp() override
    {
        ASSERT_TRUE(test::installOwnSettings());
        ASSERT_TRUE(m_sessionBus.start());
    }

    void TearDown() override { test::resetOwnSettings(); }

    void makePortal()
    {
        portal = std::make_unique<FakePortal>(
            m_sessionBus.connection(QStringLiteral("tessera-test-portal")));
    }

    void ask(const char* schema = kOwnSchema, const std::string& gtkTheme = {})
    {
        preference = std::make_unique<DesktopColorSchemePreference>(
            m_sessionBus.connection(QStringLiteral("tessera-test-program")), schema, gtkTheme);
        preference->setHandler([this] { ++changes; });
    }

    void askPortal()
    {
        makePortal();
        ask();
        test::SessionBus::runEventsUntil([this] { return portal->isAsked(); });
        ASSERT_TRUE(portal->isAsked());
    }

    void waitForChanges(int count) const
    {
        test::SessionBus::runEventsUntil([this, count] { return changes >= count; });
        ASSERT_EQ(changes, count);
    }

    /// What the portal's answer means.
    ColorScheme answered(unsigned number)
    {
        askPortal();
        portal->answer(number);
        waitForChanges(1);
        return preference->colorScheme();
    }

    ColorScheme withTheme(const std::string& name)
    {
        test::setOwnSetting("gtk-theme", name);
        ask();
        return preference->colorScheme();
    }

    /// What the portal's colour means.
    std::optional<AccentColor> answeredAccent(const QVariant& color)
    {
        makePortal();
        portal->accent = color;
        ask();
        test::SessionBus::runEventsUntil([this] { return changes >= 1; });
        return preference->accentColor();
    }

    std::optional<AccentColor> withAccentSetting(const std::string& name)
    {
        test::setOwnSetting("accent-color", name);
        ask();
        return preference->accentColor();
    }

    std::unique_ptr<FakePortal> portal;
    std::unique_ptr<DesktopColorSchemePreference> preference;
    int changes = 0;

private:
    test::SessionBus m_sessionBus;
};

TEST_F(DesktopColorSchemePreferenceTest, ThePortalsOneIsDark)
{
    EXPECT_EQ(answered(1), ColorScheme::Dark);
}

TEST_F(DesktopColorSchemePreferenceTest, ThePortalsTwoIsLight)
{
    EXPECT_EQ(answered(2), ColorScheme::Light);
}

TEST_F(DesktopColorSchemePreferenceTest, ThePortalsZeroIsNoPreference)
{
    EXPECT_EQ(answered(0), ColorScheme::NoPreference);
}

TEST_F(DesktopColorSchemePreferenceTest, ANumberThatThePortalDoesNotDefineIsNoPreference)
{
    EXPECT_EQ(answered(7), ColorScheme::NoPreference);
}

TEST_F(DesktopColorSchemePreferenceTest, FollowsThePortalWhileItChanges)
{
    EXPECT_EQ(answered(1), ColorScheme::Dark);
    portal->tellChange(kAppearance, kColorScheme, 2U);
    waitForChanges(2);
    EXPECT_EQ(preference->colorScheme(), ColorScheme::Light);
}

TEST_F(DesktopColorSchemePreferenceTest, OtherSettingsOfThePortalAreNoConcern)
{
    EXPECT_EQ(answered(1), ColorScheme::Dark);
    portal->tellChange(kAppearance, QStringLiteral("contrast"), 2U);
    portal->tellChange(QStringLiteral("org.gnome.desktop.interface"), kColorScheme, 2U);
    portal->tellChange(kAppearance, kColorScheme, 1U);
    waitForChanges(2);
    EXPECT_EQ(preference->colorScheme(), ColorScheme::Dark);
}

TEST_F(DesktopColorSchemePreferenceTest, ThePortalCountsMoreThanTheSettings)
{
    test::setOwnSetting("color-scheme", std::string("prefer-light"));
    EXPECT_EQ(answered(1), ColorScheme::Dark);
}

TEST_F(DesktopColorSchemePreferenceTest, UntilThePortalAnswersTheSettingsCount)
{
    test::setOwnSetting("color-scheme", std::string("prefer-dark"));
    askPortal();
    EXPECT_EQ(preference->colorScheme(), ColorScheme::Dark);
    EXPECT_EQ(changes, 0);
    portal->answer(2);
    waitForChanges(1);
    EXPECT_EQ(preference->colorScheme(), ColorScheme::Light);
}

TEST_F(DesktopColorSchemePreferenceTest, WhereThePortalDoesNotKnowTheSettingsCount)
{
    test::setOwnSetting("color-scheme", std::string("prefer-dark"));
    askPortal();
    portal->refuse();
    portal->tellChange(kAppearance, kColorScheme, 0U);
    waitForChanges(1);
    EXPECT_EQ(preference->colorScheme(), ColorScheme::Dark);
}

TEST_F(DesktopColorSchemePreferenceTest, WithoutAPortalTheSettingsCount)
{
    test::setOwnSetting("color-scheme", std::string("prefer-dark"));
    ask();
    EXPECT_EQ(preference->colorScheme(), ColorScheme::Dark);
}

TEST_F(DesktopColorSchemePreferenceTest, WithoutABusTheSettingsCount)
{
    test::setOwnSetting("color-scheme", std::string("prefer-dark"));
    DesktopColorSchemePreference alone(
        QDBusConnection(QStringLiteral("tessera-test-none")), kOwnSchema, {});
    alone.setHandler([] {});
    EXPECT_EQ(alone.colorScheme(), ColorScheme::Dark);
}

TEST_F(DesktopColorSchemePreferenceTest, FollowsTheSettingsWhileTheyChange)
{
    ask();
    EXPECT_EQ(preference->colorScheme(), ColorScheme::NoPreference);
    test::setOwnSetting("color-scheme", std::string("prefer-dark"));
    waitForChanges(1);
    EXPECT_EQ(preference->colorScheme(), ColorScheme::Dark);
    test::setOwnSetting("color-scheme", std::string("prefer-light"));
    waitForChanges(2);
    EXPECT_EQ(preference->colorScheme(), ColorScheme::Light);
}

TEST_F(DesktopColorSchemePreferenceTest, WithoutAnySettingThereIsNoPreference)
{
    ask(kNoSchema);
    EXPECT_EQ(preference->colorScheme(), ColorScheme::NoPreference);
}

TEST_F(DesktopColorSchemePreferenceTest, ASettingOfAnotherKindSaysNothing)
{
    ask(test::kSchemaWithoutKeys);
    EXPECT_EQ(preference->colorScheme(), ColorScheme::NoPreference);
}

TEST_F(DesktopColorSchemePreferenceTest, ThePortalsAccentIsTheColourOfItsParts)
{
    EXPECT_EQ(answeredAccent(portalColor(0.25, 0.5, 1)), (AccentColor{0.25, 0.5, 1}));
}

TEST_F(DesktopColorSchemePreferenceTest, PartsOutOfRangeAreNoAccent)
{
    EXPECT_EQ(answeredAccent(portalColor(-1, -1, -1)), std::nullopt);
    EXPECT_EQ(answeredAccent(portalColor(0, 0, 1.1)), std::nullopt);
    EXPECT_EQ(answeredAccent(portalColor(0, std::nan(""), 0)), std::nullopt);
}

TEST_F(DesktopColorSchemePreferenceTest, WhatIsNoColourIsNoAccent)
{
    EXPECT_EQ(answeredAccent(QStringLiteral("blue")), std::nullopt);
}

TEST_F(DesktopColorSchemePreferenceTest, FollowsTheAccentWhileItChanges)
{
    (void)answeredAccent(portalColor(0, 0, 1));
    portal->tellChange(kAppearance, kAccent, portalColor(1, 0, 0));
    waitForChanges(2);
    EXPECT_EQ(preference->accentColor(), (AccentColor{1, 0, 0}));
}

TEST_F(DesktopColorSchemePreferenceTest, TheAccentOfTheSettingsIsANamedColour)
{
    EXPECT_EQ(withAccentSetting("green"), (AccentColor{0x3A / 255.0, 0x94 / 255.0, 0x4A / 255.0}));
}

TEST_F(DesktopColorSchemePreferenceTest, AnotherNameIsNoAccent)
{
    EXPECT_EQ(withAccentSetting("default"), std::nullopt);
}

TEST_F(DesktopColorSchemePreferenceTest, ThePortalsAccentCountsMoreThanTheSettings)
{
    test::setOwnSetting("accent-color", std::string("green"));
    EXPECT_EQ(answeredAccent(portalColor(1, 0, 0)), (AccentColor{1, 0, 0}));
}

TEST_F(DesktopColorSchemePreferenceTest, WithoutAnySettingThereIsNoAccent)
{
    ask(kNoSchema);
    EXPECT_EQ(preference->accentColor(), std::nullopt);
}

TEST_F(DesktopColorSchemePreferenceTest, AThemeThatIsCalledDarkIsDark)
{
    for (const char* name :
         {"Adwaita-dark", "Arc-Dark", "Mint-Y-Dark-Aqua", "Adwaita:dark", "Yaru_DARK", "dark"}) {
        EXPECT_EQ(withTheme(name), ColorScheme::Dark) << name;
    }
}

TEST_F(DesktopColorSchemePreferenceTest, AThemeThatIsNotCalledDarkSaysNothing)
{
    for (const char* name : {"Adwaita", "Arc-Darker", "Darkroom", "Mint-Y", "-", ""}) {
        EXPECT_EQ(withTheme(name), ColorScheme::NoPreference) << name;
    }
}

TEST_F(DesktopColorSchemePreferenceTest, ThePreferenceCountsMoreThanTheTheme)
{
    test::setOwnSetting("color-scheme", std::string("prefer-light"));
    EXPECT_EQ(withTheme("Adwaita-dark"), ColorScheme::Light);
}

TEST_F(DesktopColorSchemePreferenceTest, TheThemeOfTheEnvironmentCountsInPlaceOfTheSet)
{
    ask(kOwnSchema, "Adwaita:dark");
    EXPECT_EQ(preference->colorScheme(), ColorScheme::Dark);
    test::setOwnSetting("gtk-theme", std::string("Adwaita-dark"));
    ask(kOwnSchema, "Adwaita");
    EXPECT_EQ(preference->colorScheme(), ColorScheme::NoPreference);
}

} // namespace
} // namespace tessera
