// SPDX-License-Identifier: MIT
#include "Platform/Linux/Desktop/ActivationToken.h"

#include <QString>

#include <algorithm>

namespace tessera {

namespace {

constexpr qsizetype kLongestToken = 256;

bool isPrintable(QChar character)
{
    return character >= QLatin1Char(' ') && character <= QLatin1Char('~');
}

} // namespace

std::string activationTokenIn(const QString& text)
{
    const bool isToken
        = text.size() <= kLongestToken && std::all_of(text.begin(), text.end(), isPrintable);
    return isToken ? text.toStdString() : std::string();
}

} // namespace tessera
