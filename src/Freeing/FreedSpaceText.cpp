// SPDX-License-Identifier: MIT
#include "Freeing/FreedSpaceText.h"

#include "Base/ByteSize.h"
#include "Base/DisplayText.h"
#include "Base/Url.h"
#include "Freeing/FreedSpace.h"

#include <QCoreApplication>

#include <algorithm>
#include <array>

namespace tessera {

namespace {

constexpr std::size_t kMostHolders = 3; ///< that are named

using Reason = KeptFiles::Reason;

QString text(const char* english)
{
    return QCoreApplication::translate("FreedSpaceText", english);
}

/// What is said of one file, and of several.
struct Sentence {
    const char* ofOne;
    const char* ofSeveral;
};

/// In the order of the reasons.
constexpr std::array<Sentence, 8> kSentences{{
    {QT_TRANSLATE_NOOP("FreedSpaceText", "%1 has another name elsewhere, and stays."),
     QT_TRANSLATE_NOOP("FreedSpaceText", "%1 have other names elsewhere, and stay.")},
    {QT_TRANSLATE_NOOP("FreedSpaceText", "%1 has another name that was not scanned."),
     QT_TRANSLATE_NOOP("FreedSpaceText", "%1 have other names that were not scanned.")},
    {QT_TRANSLATE_NOOP("FreedSpaceText", "%1 is shared with other files."),
     QT_TRANSLATE_NOOP("FreedSpaceText", "%1 are shared with other files.")},
    {QT_TRANSLATE_NOOP("FreedSpaceText", "%1 is compressed: how much it takes is not known."),
     QT_TRANSLATE_NOOP("FreedSpaceText", "%1 are compressed: how much they take is not known.")},
    {QT_TRANSLATE_NOOP("FreedSpaceText", "%1 is held open by %2."),
     QT_TRANSLATE_NOOP("FreedSpaceText", "%1 are held open, the first one by %2.")},
    {QT_TRANSLATE_NOOP("FreedSpaceText", "%1 may be shared with other files."),
     QT_TRANSLATE_NOOP("FreedSpaceText", "%1 may be shared with other files.")},
    {QT_TRANSLATE_NOOP("FreedSpaceText", "%1 has changed since the scan."),
     QT_TRANSLATE_NOOP("FreedSpaceText", "%1 have changed since the scan.")},
    {QT_TRANSLATE_NOOP("FreedSpaceText", "%1 was not looked at."),
     QT_TRANSLATE_NOOP("FreedSpaceText", "%1 were not looked at.")},
}};
static_assert(kSentences.size() == static_cast<std::size_t>(Reason::NotLookedAt) + 1);

/// The files as the beginning of a sentence.
QString subjectOf(const KeptFiles& files)
{
    if (files.largest.empty()) {
        return files.count == 1 ? text("One file") : text("%1 files").arg(files.count);
    }
    const QString largest = displayText(lastPathComponent(files.largest));
    switch (files.count) {
    case 1:
        return text("“%1”").arg(largest);
    case 2:
        return text("“%1” and one other file").arg(largest);
    default:
        return text("“%1” and %2 other files").arg(largest, QString::number(files.count - 1));
    }
}

QString holdersText(const std::vector<FileHolder>& holders)
{
    QStringList names;
    const std::size_t count = std::min(holders.size(), kMostHolders);
    for (std::size_t i = 0; i < count; ++i) {
        const QString name = displayText(holders[i].name);
        names.append(text("%1 (%2)").arg(name, QString::number(holders[i].process)));
    }
    if (count < holders.size()) {
        names.append(text("%1 more").arg(holders.size() - count));
    }
    return names.join(text(", "));
}

QString sentenceAbout(const KeptFiles& files)
{
    const Sentence& sentence = kSentences.at(static_cast<std::size_t>(files.reason));
    const QString pattern = text(files.count == 1 ? sentence.ofOne : sentence.ofSeveral);
    // In one step: a name may hold what looks like a place for another one.
    return files.reason == Reason::HeldOpen
        ? pattern.arg(subjectOf(files), holdersText(files.holders))
        : pattern.arg(subjectOf(files));
}

QString sizeText(std::uint64_t bytes)
{
    return QString::fromStdString(formatSize(bytes));
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
        return text("at least %1").arg(least);
    }
    const QString most = sizeText(space.most);
    return least == most ? least : text("%1 to %2").arg(least, most);
}

QStringList freedSpaceReasons(const FreedSpace& space)
{
    QStringList sentences;
    for (const KeptFiles& files : space.kept) {
        sentences.append(sentenceAbout(files));
    }
    if (space.mayBeHeldOpen) {
        sentences.append(text("Programs that may not be looked at may hold files open."));
    }
    return sentences;
}

} // namespace tessera
