// SPDX-License-Identifier: MIT
#include "Platform/Linux/Trash/TrashSentences.h"

#include <QCoreApplication>

#include <array>
#include <cstddef>

namespace tessera {

namespace {

/// In the order of the refusals.
constexpr std::array kRefusalSentences{
    QT_TRANSLATE_NOOP(
        "TrashSentences",
        "'%1' cannot be moved to the trash, because something else is called so now."),
    QT_TRANSLATE_NOOP(
        "TrashSentences",
        "'%1' cannot be moved to the trash, because the system does not say which disks are "
        "mounted."),
    QT_TRANSLATE_NOOP(
        "TrashSentences", "'%1' cannot be moved to the trash, because a disk is mounted there."),
    QT_TRANSLATE_NOOP(
        "TrashSentences",
        "'%1' cannot be moved to the trash, because a disk is mounted inside it."),
    QT_TRANSLATE_NOOP(
        "TrashSentences", "'%1' cannot be moved to the trash, because your home folder is there."),
    QT_TRANSLATE_NOOP(
        "TrashSentences", "'%1' cannot be moved to the trash, because the trash is there."),
    QT_TRANSLATE_NOOP(
        "TrashSentences", "'%1' cannot be moved to the trash, because it is in the trash already."),
};
static_assert(kRefusalSentences.size() == static_cast<std::size_t>(TrashRefusal::InTrash) + 1);

} // namespace

std::string trashSentence(const char* english, const std::string& first, const std::string& second)
{
    const std::string pattern = QCoreApplication::translate(kTrashSentences, english).toStdString();
    std::string sentence;
    std::size_t from = 0;
    // In one pass: a name may hold what looks like a place.
    for (std::size_t at = pattern.find('%'); at != std::string::npos; at = pattern.find('%', at)) {
        const char place = at + 1 < pattern.size() ? pattern[at + 1] : '\0';
        if (place != '1' && place != '2') {
            ++at;
            continue;
        }
        sentence += pattern.substr(from, at - from) + (place == '1' ? first : second);
        at += 2;
        from = at;
    }
    return sentence + pattern.substr(from);
}

std::string refusalSentence(TrashRefusal refusal, const std::string& name)
{
    return trashSentence(kRefusalSentences.at(static_cast<std::size_t>(refusal)), name);
}

} // namespace tessera
