// SPDX-License-Identifier: MIT
#include "support/Machine/SessionBus.h"

#include <QDBusConnection>
#include <QFileInfo>

#include <gtest/gtest.h>

namespace tessera::test {
namespace {

/// The path in "unix:path=/…,guid=…".
QString socketOf(const QString& address)
{
    const QString start = QStringLiteral("unix:path=");
    const auto from = address.indexOf(start) + start.size();
    return address.mid(from, address.indexOf(QLatin1Char(',')) - from);
}

TEST(SessionBus, LeavesNothingOnTheDisk)
{
    QString socket;
    {
        SessionBus bus;
        ASSERT_TRUE(bus.start());
        socket = socketOf(bus.address());
        ASSERT_TRUE(QFileInfo::exists(socket)) << bus.address().toStdString();
    }
    EXPECT_FALSE(QFileInfo::exists(socket));
    EXPECT_FALSE(QFileInfo::exists(QFileInfo(socket).path()));
}

} // namespace
} // namespace tessera::test
