// SPDX-License-Identifier: MIT
#include "Model/Recents.h"

#include "Desktop/RecentDocuments.h"
#include "Model/TopFolder.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace tessera {

namespace {

/// The records without those of the same folder, and a new one for it in front.
std::vector<RecentRecord> withRecordInFront(
    const std::vector<RecentRecord>& records,
    const TopFolder& folder,
    std::chrono::sys_seconds date)
{
    const std::string path = folder.absolutePath();
    std::vector<RecentRecord> result{{path, folder.totalAllocation(), date}};
    std::copy_if(
        records.begin(), records.end(), std::back_inserter(result), [&path](const auto& record) {
            return record.path != path;
        });
    return result;
}

} // namespace

std::chrono::sys_seconds currentDate()
{
    return std::chrono::floor<std::chrono::seconds>(std::chrono::system_clock::now());
}

Recents::Recents(UserDefaults& defaults, RecentDocuments& documents, Clock clock)
    : m_defaults(defaults)
    , m_documents(documents)
    , m_clock(std::move(clock))
{
    reload();
}

void Recents::reload()
{
    m_mutableList.clear();
    const std::vector<Url> urls = m_documents.recentDocumentUrls();
    for (const RecentRecord& record : m_defaults.recentRecords(kRecentsKey)) {
        for (const Url& url : urls) {
            if (url.path() == record.path) {
                m_mutableList.push_back(record);
            }
        }
    }
}

void Recents::save()
{
    m_defaults.setRecentRecords(kRecentsKey, m_mutableList);
    // A list that cannot be written is only shorter next time; nobody is troubled with it.
    (void)m_defaults.synchronize();
}

void Recents::addToList(const TopFolder& folder)
{
    m_mutableList = withRecordInFront(m_mutableList, folder, m_clock());
    save();
    m_documents.noteNewRecentDocumentUrl(folder.url());
}

void Recents::clearList()
{
    m_mutableList.clear();
    m_documents.clearRecentDocuments();
    save();
}

} // namespace tessera
