// SPDX-License-Identifier: MIT
#include "TreeScreen/Trash/NamesText.h"

#include "Base/DisplayText.h"
#include "Language/PluralNumber.h"

#include <QCoreApplication>
#include <QFontMetrics>
#include <QGuiApplication>
#include <QLocale>
#include <QStringList>

#include <algorithm>
#include <cstddef>

namespace tessera {

namespace {

constexpr int kMaxNameLetters = 32; ///< of a name, of usual width
constexpr std::size_t kMostNames = 3;

struct NamesTexts {
    Q_DECLARE_TR_FUNCTIONS(NamesTexts)
};

} // namespace

QString shortName(std::string_view name)
{
    const QFontMetrics metrics(QGuiApplication::font());
    const int width = kMaxNameLetters * metrics.averageCharWidth();
    return metrics.elidedText(displayText(name), Qt::ElideMiddle, width);
}

QString quotedName(std::string_view name)
{
    return NamesTexts::tr("“%1”").arg(shortName(name));
}

QString withShortName(std::string_view sentence, std::string_view name)
{
    const QString shortened = shortName(name);
    const std::size_t place = sentence.find(name);
    // Only a long name is shortened, and that stands nowhere by chance.
    return place == std::string_view::npos || shortened == displayText(name)
        ? displayText(sentence)
        : displayText(sentence.substr(0, place)) + shortened
            + displayText(sentence.substr(place + name.size()));
}

QString namesText(const std::vector<std::string>& names)
{
    const std::size_t shown = std::min(names.size(), kMostNames);
    QStringList quoted;
    for (std::size_t i = 0; i < shown; ++i) {
        quoted.append(quotedName(names[i]));
    }
    if (shown < names.size()) {
        const std::size_t more = names.size() - shown;
        // In one step: a name may hold what looks like a place for another one.
        return NamesTexts::tr("%1 and %2 more", nullptr, pluralNumber(more))
            .arg(quoted.join(NamesTexts::tr(", ")), QLocale().toString(qulonglong{more}));
    }
    const QString last = quoted.takeLast();
    return quoted.isEmpty()
        ? last
        : NamesTexts::tr("%1 and %2").arg(quoted.join(NamesTexts::tr(", ")), last);
}

} // namespace tessera
