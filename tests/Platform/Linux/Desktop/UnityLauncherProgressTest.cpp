// SPDX-License-Identifier: MIT
#include "Platform/Linux/Desktop/UnityLauncherProgress.h"

#include "support/Machine/SessionBus.h"

#include <QDBusArgument>
#include <QDBusMessage>
#include <QObject>
#include <QVariantMap>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <limits>
#include <memory>
#include <vector>

namespace tessera {

/// A panel that shows programs' progress.
class Panel final : public QObject {
    Q_OBJECT

public:
    struct Update {
        std::string program;
        double progress = 0;
        bool isVisible = false;

        bool operator==(const Update&) const = default;
    };

    std::vector<Update> updates;

    Q_SLOT void update(const QDBusMessage& message)
    {
        const auto properties = qdbus_cast<QVariantMap>(message.arguments().at(1));
        updates.push_back(
            {message.arguments().at(0).toString().toStdString(),
             properties.value(QStringLiteral("progress")).toDouble(),
             properties.value(QStringLiteral("progress-visible")).toBool()});
    }
};

namespace {

using testing::ElementsAre;

class UnityLauncherProgressTest : public testing::Test {
protected:
    void SetUp() override
    {
        ASSERT_TRUE(m_sessionBus.start());
        QDBusConnection bus = m_sessionBus.connection(QStringLiteral("tessera-test-panel"));
        ASSERT_TRUE(bus.connect(
            QString(),
            QString(),
            QStringLiteral("com.canonical.Unity.LauncherEntry"),
            QStringLiteral("Update"),
            &panel,
            SLOT(update(QDBusMessage))));
        progress = std::make_unique<UnityLauncherProgress>(
            m_sessionBus.connection(QStringLiteral("tessera-test-program")));
    }

    void waitForUpdates(std::size_t count) const
    {
        test::SessionBus::runEventsUntil([&] { return panel.updates.size() >= count; });
    }

    Panel panel;
    std::unique_ptr<UnityLauncherProgress> progress;

private:
    test::SessionBus m_sessionBus;
};

} // namespace

TEST_F(UnityLauncherProgressTest, TellsThePanelTheFractionUnderTheDesktopEntrysName)
{
    progress->show(0.25);
    waitForUpdates(1);

    EXPECT_THAT(
        panel.updates, ElementsAre(Panel::Update{"application://tessera.desktop", 0.25, true}));
}

TEST_F(UnityLauncherProgressTest, KeepsWithinWhatPanelsUnderstand)
{
    progress->show(1.4);
    progress->show(std::numeric_limits<double>::quiet_NaN());
    waitForUpdates(2);

    ASSERT_EQ(panel.updates.size(), 2U);
    EXPECT_EQ(panel.updates.at(0).progress, 1.0);
    EXPECT_EQ(panel.updates.at(1).progress, 0.0);
}

TEST_F(UnityLauncherProgressTest, TakesTheBarAwayAtTheEnd)
{
    progress->show(0.5);
    progress->hide();
    waitForUpdates(2);

    ASSERT_EQ(panel.updates.size(), 2U);
    EXPECT_FALSE(panel.updates.back().isVisible);
}

} // namespace tessera

#include "UnityLauncherProgressTest.moc"
