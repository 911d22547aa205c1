// SPDX-License-Identifier: MIT
#include "Platform/Linux/Trash/DiskTrashHistory.h"

#include "Platform/Linux/Files/LongPath.h"
#include "Platform/Linux/Mounts/FileSystemQuestions.h"
#include "Platform/Linux/Trash/ItemInTrash.h"
#include "Platform/Linux/Trash/TrashJournal.h"

#include <cerrno>
#include <chrono>
#include <optional>
#include <set>
#include <string>
#include <utility>

namespace tessera {

namespace {

using Records = std::vector<TrashRecord>;

bool saysNothingIsThere(int error)
{
    return error == ENOENT || error == ENOTDIR || error == ELOOP;
}

std::optional<bool> isInItsTrash(const TrashedItem& item)
{
    switch (findInTrash(item).place) {
    case TrashPlace::Holds:
        return true;
    case TrashPlace::HoldsNothing:
        return false;
    default:
        // A disk that is not connected has its items again tomorrow.
        return std::nullopt;
    }
}

std::optional<bool> isItemAtPath(const std::string& path, const TrashedItem& item)
{
    if (path == item.to.path()) {
        return isInItsTrash(item);
    }
    const NamedPlace place = openFolderOfWithoutLinks(path);
    if (place.error != 0) {
        return saysNothingIsThere(place.error) ? std::optional(false) : std::nullopt;
    }
    const HeldItem found = holdItemAt(place.folder, place.name);
    if (found.error != 0) {
        return saysNothingIsThere(found.error) ? std::optional(false) : std::nullopt;
    }
    return isVeryItem(found, item);
}

Records settledRecords(const TrashJournal& journal, const FileSystemQuestions& questions)
{
    Records records = journal.records();
    std::set<std::string> inTrash;
    for (TrashRecord& record : records) {
        record
            = settled(std::move(record), [&questions](const Url& place, const TrashedItem& item) {
                  return questions.ask<bool>(
                      place.path(), LinkMode::Keep, [path = place.path(), item] {
                          return isItemAtPath(path, item);
                      });
              });
        // The newest comes first: an item that went to the same place again had left it meanwhile.
        if (record.state == TrashState::Moved && !inTrash.insert(record.item.to.path()).second) {
            record.state = TrashState::PutBack;
            record.place = record.item.from;
        }
    }
    return records;
}

} // namespace

DiskTrashHistory::DiskTrashHistory(
    std::shared_ptr<TrashJournal> journal,
    std::shared_ptr<const FileSystemQuestions> questions,
    MainThread& mainThread)
    : m_journal(std::move(journal))
    , m_questions(std::move(questions))
    , m_workers(mainThread, std::chrono::milliseconds(0))
{
}

void DiskTrashHistory::entries(TrashRecordsCompletion completionHandler)
{
    m_workers.perform(
        std::function<Records()>([journal = m_journal, questions = m_questions] {
            return settledRecords(*journal, *questions);
        }),
        std::move(completionHandler),
        Records());
}

void DiskTrashHistory::shortenJournal()
{
    m_workers.perform(
        std::function<bool()>([journal = m_journal] {
            journal->shorten();
            return true;
        }),
        std::function<void(const bool&)>([](const bool& /*isDone*/) {}),
        false);
}

} // namespace tessera
