// SPDX-License-Identifier: MIT
#include "TreeScreen/Trash/MoveAllQuestion.h"

#include "Base/Url.h"
#include "Freeing/FreedSpaceText.h"
#include "Language/PluralNumber.h"
#include "Language/SizeText.h"
#include "Model/Allocation.h"
#include "TreeScreen/Trash/NamesText.h"

#include <QCoreApplication>
#include <QLocale>
#include <QStringList>

#include <algorithm>
#include <cstddef>
#include <functional>

namespace tessera {

namespace {

constexpr std::size_t kMostItems = 5; ///< that are listed
constexpr const char* kMoveAllContext = "MoveAllTexts";

struct MoveAllTexts {
    Q_DECLARE_TR_FUNCTIONS(MoveAllTexts)
};

/// The sentence with the names; nothing where there are none.
void warnOf(
    const std::vector<std::string>& names,
    const char* ofOne,
    const char* ofSeveral,
    QStringList& sentences)
{
    if (!names.empty()) {
        const QString sentence = names.size() == 1
            ? QCoreApplication::translate(kMoveAllContext, ofOne)
            : QCoreApplication::translate(
                kMoveAllContext, ofSeveral, nullptr, pluralNumber(names.size()));
        sentences.append(sentence.arg(namesText(names)));
    }
}

std::vector<std::string> namesOf(const std::vector<BackupSet>& sets)
{
    std::vector<std::string> names;
    names.reserve(sets.size());
    for (const BackupSet& set : sets) {
        names.emplace_back(lastPathComponent(set.folder));
    }
    return names;
}

KeptFiles shortened(KeptFiles files)
{
    files.largest = shortName(lastPathComponent(files.largest)).toStdString();
    return files;
}

QStringList warnings(const MoveAllFacts& facts)
{
    QStringList sentences;
    warnOf(
        facts.hidden,
        QT_TRANSLATE_NOOP("MoveAllTexts", "%1 is hidden, or is in a hidden folder."),
        QT_TRANSLATE_N_NOOP("MoveAllTexts", "%1 are hidden, or are in hidden folders."),
        sentences);
    warnOf(
        facts.inSystemFolders,
        QT_TRANSLATE_NOOP(
            "MoveAllTexts", "%1 is in a system folder: other applications may be using it."),
        QT_TRANSLATE_N_NOOP(
            "MoveAllTexts", "%1 are in system folders: other applications may be using them."),
        sentences);
    if (facts.heldOpen.count > 0) {
        sentences.append(freedSpaceReasons({.kept = {shortened(facts.heldOpen)}}));
    }
    warnOf(
        facts.ofOthers,
        QT_TRANSLATE_NOOP("MoveAllTexts", "%1 belongs to another user."),
        QT_TRANSLATE_N_NOOP("MoveAllTexts", "%1 belong to other users."),
        sentences);
    warnOf(
        namesOf(facts.lastBackups),
        QT_TRANSLATE_NOOP("MoveAllTexts", "No backup would be left in %1."),
        QT_TRANSLATE_N_NOOP("MoveAllTexts", "No backups would be left in %1."),
        sentences);
    return sentences;
}

std::vector<MoveAllFacts::Item> largestOf(std::vector<MoveAllFacts::Item> items)
{
    const std::size_t count = std::min(items.size(), kMostItems);
    // Equals stay in the order of choosing.
    std::ranges::stable_sort(items, std::greater(), &MoveAllFacts::Item::bytes);
    items.resize(count);
    return items;
}

QString moreText(std::size_t count)
{
    return MoveAllTexts::tr("and %1 more", nullptr, pluralNumber(count))
        .arg(QLocale().toString(qulonglong{count}));
}

QString listOf(const MoveAllFacts& facts)
{
    QStringList lines;
    const std::vector<MoveAllFacts::Item> largest = largestOf(facts.items);
    for (const MoveAllFacts::Item& item : largest) {
        lines.append(MoveAllTexts::tr("%1 (%2)").arg(quotedName(item.name), sizeText(item.bytes)));
    }
    if (largest.size() < facts.items.size()) {
        lines.append(moreText(facts.items.size() - largest.size()));
    }
    return lines.join(QLatin1Char('\n'));
}

QString countOf(const MoveAllFacts& facts)
{
    std::uint64_t bytes = 0;
    for (const MoveAllFacts::Item& item : facts.items) {
        bytes = saturatingSum(bytes, item.bytes);
    }
    const std::size_t count = facts.items.size();
    return count == 1
        ? MoveAllTexts::tr("Are you sure you want to move one item (%1) to the trash?")
              .arg(sizeText(bytes))
        : MoveAllTexts::tr(
              "Are you sure you want to move %1 items (%2) to the trash?",
              nullptr,
              pluralNumber(count))
              .arg(QLocale().toString(qulonglong{count}), sizeText(bytes));
}

} // namespace

AlertText moveAllQuestion(const MoveAllFacts& facts)
{
    const QStringList sentences = warnings(facts);
    QStringList paragraphs = sentences;
    paragraphs.append(countOf(facts));
    paragraphs.append(listOf(facts));
    if (facts.haveFolders) {
        paragraphs.append(MoveAllTexts::tr(
            "What has come into the folders since they were scanned goes with them."));
    }
    AlertText question;
    question.messageText
        = sentences.isEmpty() ? MoveAllTexts::tr("Move to Trash") : MoveAllTexts::tr("Warning");
    question.informativeText = paragraphs.join(QStringLiteral("\n\n"));
    question.buttons = {MoveAllTexts::tr("Move To Trash"), MoveAllTexts::tr("Cancel")};
    question.defaultButton = 1;
    return question;
}

} // namespace tessera
