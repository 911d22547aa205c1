// SPDX-License-Identifier: MIT
#include "Undo/ShownNames.h"

#include "Base/DisplayText.h"

#include <QFontMetrics>
#include <QGuiApplication>

namespace tessera {

namespace {

constexpr int kMaxLetters = 40; ///< of usual width

} // namespace

QString nameForMenu(std::string_view name)
{
    const QFontMetrics metrics(QGuiApplication::font());
    const int width = kMaxLetters * metrics.averageCharWidth();
    QString shown = metrics.elidedText(displayText(name), Qt::ElideMiddle, width);
    return shown.replace(QLatin1Char('&'), QStringLiteral("&&"));
}

} // namespace tessera
