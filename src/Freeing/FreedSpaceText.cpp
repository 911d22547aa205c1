// SPDX-License-Identifier: MIT
#include "Freeing/FreedSpaceText.h"

#include "Base/DisplayText.h"
#include "Base/Url.h"
#include "Freeing/FreedSpace.h"
#include "Language/PluralNumber.h"
#include "Language/SizeText.h"

#include <QCoreApplication>
#include <QLocale>

#include <algorithm>
#include <array>

namespace tessera {

namespace {

constexpr std::size_t kMostHolders = 3; ///< that are named
constexpr const char* kFreedSpaceContext = "FreedSpaceText";

using Reason = KeptFiles::Reason;

struct FreedSpaceTexts {
    Q_DECLARE_TR_FUNCTIONS(FreedSpaceText)
};

QString numberText(std::size_t number)
{
    return QLocale().toString(qulonglong{number});
}

/// What is said of one file, and of several.
struct Sentence {
    const char* ofOne; ///< null where English has the same for both
    const char* ofSeveral;
};

/// In the order of the reasons.
constexpr std::array<Sentence, 8> kSentences{{
    {QT_TRANSLATE_NOOP("FreedSpaceText", "%1 has another name elsewhere, and stays."),
     QT_TRANSLATE_N_NOOP("FreedSpaceText", "%1 have other names elsewhere, and stay.")},
    {QT_TRANSLATE_NOOP("FreedSpaceText", "%1 has another name that was not scanned."),
     QT_TRANSLATE_N_NOOP("FreedSpaceText", "%1 have other names that were not scanned.")},
    {QT_TRANSLATE_NOOP("FreedSpaceText", "%1 is shared with other files."),
     QT_TRANSLATE_N_NOOP("FreedSpaceText", "%1 are shared with other files.")},
    {QT_TRANSLATE_NOOP("FreedSpaceText", "%1 is compressed: how much it takes is not known."),
     QT_TRANSLATE_N_NOOP("FreedSpaceText", "%1 are compressed: how much they take is not known.")},
    {QT_TRANSLATE_NOOP("FreedSpaceText", "%1 is held open by %2."),
     QT_TRANSLATE_N_NOOP("FreedSpaceText", "%1 are held open, the first one by %2.")},
    {nullptr, QT_TRANSLATE_N_NOOP("FreedSpaceText", "%1 may be shared with other files.")},
    {QT_TRANSLATE_NOOP("FreedSpaceText", "%1 has changed since the scan."),
     QT_TRANSLATE_N_NOOP("FreedSpaceText", "%1 have changed since the scan.")},
    {QT_TRANSLATE_NOOP("FreedSpaceText", "%1 was not looked at."),
     QT_TRANSLATE_N_NOOP("FreedSpaceText", "%1 were not looked at.")},
}};
static_assert(kSentences.size() == static_cast<std::size_t>(Reason::NotLookedAt) + 1);

/// The files as the beginning of a sentence.
QString subjectOf(const KeptFiles& files)
{
    if (files.largest.empty()) {
        return files.count == 1
            ? FreedSpaceTexts::tr("One file")
            : FreedSpaceTexts::tr("%1 files", nullptr, pluralNumber(files.count))
                  .arg(numberText(files.count));
    }
    const QString largest = displayText(lastPathComponent(files.largest));
    switch (files.count) {
    case 1:
        return FreedSpaceTexts::tr("“%1”").arg(largest);
    case 2:
        return FreedSpaceTexts::tr("“%1” and one other file").arg(largest);
    default:
        return FreedSpaceTexts::tr(
                   "“%1” and %2 other files", nullptr, pluralNumber(files.count - 1))
            .arg(largest, numberText(files.count - 1));
    }
}

QString holdersText(const std::vector<FileHolder>& holders)
{
    QStringList names;
    const std::size_t count = std::min(holders.size(), kMostHolders);
    for (std::size_t i = 0; i < count; ++i) {
        const QString name = displayText(holders[i].name);
        names.append(FreedSpaceTexts::tr("%1 (%2)").arg(name, QString::number(holders[i].process)));
    }
    if (count < holders.size()) {
        const std::size_t more = holders.size() - count;
        names.append(
            FreedSpaceTexts::tr("%1 more", nullptr, pluralNumber(more)).arg(numberText(more)));
    }
    return names.join(FreedSpaceTexts::tr(", "));
}

QString sentenceAbout(const KeptFiles& files)
{
    const Sentence& sentence = kSentences.at(static_cast<std::size_t>(files.reason));
    const QString pattern = files.count == 1 && sentence.ofOne != nullptr
        ? QCoreApplication::translate(kFreedSpaceContext, sentence.ofOne)
        : QCoreApplication::translate(
            kFreedSpaceContext, sentence.ofSeveral, nullptr, pluralNumber(files.count));
    // In one step: a name may hold what looks like a place for another one.
    return files.reason == Reason::HeldOpen
        ? pattern.arg(subjectOf(files), holdersText(files.holders))
        : pattern.arg(subjectOf(files));
}

} // namespace

QString freedSpaceText(const FreedSpace& space)
{
    if (space.least == space.most) {
        return sizeText(space.least);
    }
    const QString least = sizeText(space.least);
    const bool isAtLeast = std::ranges::any_of(
        space.kept, [](const KeptFiles& files) { return files.reason == Reason::NotLookedAt; });
    if (isAtLeast) {
        return FreedSpaceTexts::tr("at least %1").arg(least);
    }
    const QString most = sizeText(space.most);
    return least == most ? least : FreedSpaceTexts::tr("%1 to %2").arg(least, most);
}

QStringList freedSpaceReasons(const FreedSpace& space)
{
    QStringList sentences;
    for (const KeptFiles& files : space.kept) {
        sentences.append(sentenceAbout(files));
    }
    if (space.mayBeHeldOpen) {
        sentences.append(
            FreedSpaceTexts::tr("Programs that may not be looked at may hold files open."));
    }
    return sentences;
}

} // namespace tessera
