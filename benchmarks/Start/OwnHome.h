// SPDX-License-Identifier: MIT
#pragma once

#include <QTemporaryDir>

namespace tessera::bench {

/// Whatever this process, or one that it starts, writes for its user and moves to the trash goes in
/// there. To be called before anything asks for these places.
inline void liveIn(const QTemporaryDir& home)
{
    qputenv("HOME", home.path().toUtf8());
    qputenv("XDG_CONFIG_HOME", home.filePath(QStringLiteral("config")).toUtf8());
    qputenv("XDG_DATA_HOME", home.filePath(QStringLiteral("data")).toUtf8());
    qputenv("XDG_STATE_HOME", home.filePath(QStringLiteral("state")).toUtf8());
}

} // namespace tessera::bench
