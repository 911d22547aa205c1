// SPDX-License-Identifier: MIT
#include "TreeScreen/Trash/MoveAllReport.h"

#include "Language/PluralNumber.h"
#include "TreeScreen/Trash/NamesText.h"

#include <QCoreApplication>
#include <QFontMetrics>
#include <QGuiApplication>

namespace tessera {

namespace {

constexpr int kMostReasons = 5; ///< that are told
constexpr int kMaxReasonLetters = 320; ///< of one, of usual width

struct MoveAllReportTexts {
    Q_DECLARE_TR_FUNCTIONS(MoveAllReportTexts)
};

QString headline(const MoveAllOutcome& outcome)
{
    if (outcome.stayed.isEmpty()) {
        return outcome.grownFolders.size() == 1
            ? MoveAllReportTexts::tr("A folder had changed since it was scanned")
            : MoveAllReportTexts::tr("Folders had changed since they were scanned");
    }
    const auto count = static_cast<int>(outcome.stayed.size());
    if (outcome.isAnyInDoubt) {
        return count == 1 ? MoveAllReportTexts::tr("One item may not have been moved to the trash")
                          : MoveAllReportTexts::tr(
                              "%Ln items may not have been moved to the trash", nullptr, count);
    }
    return count == 1
        ? MoveAllReportTexts::tr("One item was not moved to the trash")
        : MoveAllReportTexts::tr("%Ln items were not moved to the trash", nullptr, count);
}

/// What the system says may be long; what has become of the item stands at the end.
QString shortened(const QString& reason)
{
    const QFontMetrics metrics(QGuiApplication::font());
    return metrics.elidedText(
        reason, Qt::ElideMiddle, kMaxReasonLetters * metrics.averageCharWidth());
}

} // namespace

AlertText moveAllReport(const MoveAllOutcome& outcome)
{
    QStringList paragraphs;
    for (const QString& reason : outcome.stayed.mid(0, kMostReasons)) {
        paragraphs.append(shortened(reason));
    }
    if (outcome.stayed.size() > kMostReasons) {
        const auto more = static_cast<int>(outcome.stayed.size() - kMostReasons);
        paragraphs.append(MoveAllReportTexts::tr("and %Ln more", nullptr, more));
    }
    if (!outcome.grownFolders.empty()) {
        const QString text = outcome.grownFolders.size() == 1
            ? MoveAllReportTexts::tr("%1 is in the trash, with all that is in it now.")
            : MoveAllReportTexts::tr(
                "%1 are in the trash, with all that is in them now.",
                nullptr,
                pluralNumber(outcome.grownFolders.size()));
        paragraphs.append(text.arg(namesText(outcome.grownFolders)));
    }
    return {
        headline(outcome), paragraphs.join(QStringLiteral("\n\n")), {MoveAllReportTexts::tr("OK")}};
}

} // namespace tessera
