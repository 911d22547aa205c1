// SPDX-License-Identifier: MIT
#include "Base/Mnemonic.h"

#include <QRegularExpression>

namespace tessera {

QString withoutMnemonic(QString title)
{
    static const QRegularExpression inBrackets(QStringLiteral("\\s*\\(&\\w\\)"));
    return title.remove(inBrackets).remove(QLatin1Char('&'));
}

} // namespace tessera
