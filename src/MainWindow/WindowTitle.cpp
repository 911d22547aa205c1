// SPDX-License-Identifier: MIT
#include "MainWindow/WindowTitle.h"

#include <QLatin1String>

namespace tessera {

namespace {

const QString kProgramName = QStringLiteral("Tessera");
const QString kTitleSeparator = QStringLiteral(" — ");

} // namespace

QString mainWindowTitle(const QString& shown)
{
    if (shown.isEmpty()) {
        return kProgramName;
    }
    // Qt would put a mark for unsaved changes in its place, or take it out: two stand for one.
    QString literal = shown;
    literal.replace(QLatin1String("[*]"), QLatin1String("[*][*]"));
    return literal + kTitleSeparator + kProgramName;
}

} // namespace tessera
