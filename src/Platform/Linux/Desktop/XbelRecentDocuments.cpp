// SPDX-License-Identifier: MIT
#include "Platform/Linux/Desktop/XbelRecentDocuments.h"

#include "Base/StartThread.h"
#include "DeadMounts/DeadMountLimits.h"
#include "Model/UserDefaults.h"
#include "Platform/Linux/Desktop/XbelContent.h"

#include <glib.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <condition_variable>
#include <deque>
#include <filesystem>
#include <memory>
#include <mutex>
#include <optional>
#include <string_view>
#include <utility>

namespace tessera {

namespace {

using std::chrono::microseconds;

constexpr std::string_view kUnlistedKey = "unlistedRecents";

constexpr const char* kApplication = "tessera";
constexpr const char* kCommandLine = "tessera %u";
constexpr const char* kFolderMimeType = "inode/directory";
constexpr const char* kFileMimeType = "application/octet-stream";
constexpr gint64 kMicrosecondsPerSecond = 1000000;

/// The list is nobody else's business, and other programs protect it likewise.
constexpr int kFileMode = 0600;
constexpr int kFolderMode = 0700;

template <auto release>
struct Releaser {
    template <typename T>
    void operator()(T* object) const
    {
        release(object);
    }
};

using BookmarkFile = std::unique_ptr<GBookmarkFile, Releaser<g_bookmark_file_free>>;
using DateTime = std::unique_ptr<GDateTime, Releaser<g_date_time_unref>>;
using Strings = std::unique_ptr<gchar*, Releaser<g_strfreev>>;
using Text = std::unique_ptr<gchar, Releaser<g_free>>;

struct RecentEntry {
    std::string uri; ///< as the file has it
    Url url;
    microseconds stamp{};
};

/// What a list is before anybody has made one.
bool isMissing(const std::string& path)
{
    struct stat status { };
    return ::stat(path.c_str(), &status) != 0 && errno == ENOENT;
}

/// Whether it is a list that the user may write, and not too large. Some replace it by a folder or
/// by a link to /dev/null, or protect it, to be rid of it.
bool isOpenToChanges(const std::string& path)
{
    struct stat status { };
    return ::stat(path.c_str(), &status) == 0 && S_ISREG(status.st_mode)
        && (status.st_mode & S_IWUSR) != 0 && ::access(path.c_str(), R_OK | W_OK) == 0
        && static_cast<std::size_t>(status.st_size) <= XbelRecentDocuments::kMostBytes;
}

/// GLib skips an entry without applications when it writes, and complains.
bool haveApplications(GBookmarkFile* bookmarks)
{
    const Strings uris(g_bookmark_file_get_uris(bookmarks, nullptr));
    for (gchar** uri = uris.get(); *uri != nullptr; ++uri) {
        gsize count = 0;
        const Strings names(g_bookmark_file_get_applications(bookmarks, *uri, &count, nullptr));
        if (count == 0) {
            return false;
        }
    }
    return true;
}

DateTime dateTime(microseconds time)
{
    const gint64 count = time.count();
    const DateTime second(g_date_time_new_from_unix_utc(count / kMicrosecondsPerSecond));
    return DateTime(g_date_time_add(second.get(), count % kMicrosecondsPerSecond));
}

std::optional<microseconds> ownStamp(GBookmarkFile* bookmarks, const char* uri)
{
    GDateTime* stamp = nullptr; // stays the list's own
    const gboolean isOurs = g_bookmark_file_get_application_info(
        bookmarks, uri, kApplication, nullptr, nullptr, &stamp, nullptr);
    if (isOurs == FALSE || stamp == nullptr) {
        return std::nullopt;
    }
    return microseconds(
        g_date_time_to_unix(stamp) * kMicrosecondsPerSecond + g_date_time_get_microsecond(stamp));
}

/// What is registered under our name, newest first.
std::vector<RecentEntry> ownEntries(GBookmarkFile* bookmarks)
{
    std::vector<RecentEntry> entries;
    gsize count = 0;
    const Strings uris(g_bookmark_file_get_uris(bookmarks, &count));
    for (gsize i = 0; i < count; ++i) {
        const char* const uri = uris.get()[i];
        const std::optional<microseconds> stamp = ownStamp(bookmarks, uri);
        std::optional<Url> url = Url::fromAbsoluteString(uri);
        if (stamp && url) {
            entries.push_back({uri, *std::move(url), *stamp});
        }
    }
    std::stable_sort(
        entries.begin(), entries.end(), [](const RecentEntry& a, const RecentEntry& b) {
            return a.stamp > b.stamp;
        });
    return entries;
}

/// Takes our name off the entry, and the entry away when nobody else's is on it.
void forget(GBookmarkFile* bookmarks, const std::string& uri)
{
    (void)g_bookmark_file_remove_application(bookmarks, uri.c_str(), kApplication, nullptr);
    gsize others = 0;
    const Strings names(g_bookmark_file_get_applications(bookmarks, uri.c_str(), &others, nullptr));
    if (others == 0) {
        (void)g_bookmark_file_remove_item(bookmarks, uri.c_str(), nullptr);
    }
}

void registerUse(GBookmarkFile* bookmarks, const Url& url, microseconds time)
{
    const std::string uri = url.absoluteString();
    const DateTime now = dateTime(time);
    if (g_bookmark_file_has_item(bookmarks, uri.c_str()) == FALSE) {
        g_bookmark_file_set_mime_type(
            bookmarks, uri.c_str(), url.isDirectory() ? kFolderMimeType : kFileMimeType);
        g_bookmark_file_set_added_date_time(bookmarks, uri.c_str(), now.get());
    }
    g_bookmark_file_set_visited_date_time(bookmarks, uri.c_str(), now.get());
    // A count of -1 adds one to what was counted before.
    (void)g_bookmark_file_set_application_info(
        bookmarks, uri.c_str(), kApplication, kCommandLine, -1, now.get(), nullptr);
}

/// A link to the list, as those have who keep their settings elsewhere, stays a link.
std::string linkTarget(const std::string& path)
{
    std::error_code error;
    const std::filesystem::path target = std::filesystem::canonical(path, error);
    return error ? path : target.string();
}

[[nodiscard]] bool store(GBookmarkFile* bookmarks, const std::string& path)
{
    gsize length = 0;
    const Text data(g_bookmark_file_to_data(bookmarks, &length, nullptr));
    const Text folder(g_path_get_dirname(path.c_str()));
    if (data == nullptr || g_mkdir_with_parents(folder.get(), kFolderMode) != 0) {
        return false;
    }
    const gboolean isStored = g_file_set_contents_full(
        linkTarget(path).c_str(),
        data.get(),
        static_cast<gssize>(length),
        G_FILE_SET_CONTENTS_CONSISTENT,
        kFileMode,
        nullptr);
    return isStored != FALSE;
}

/// The list as it is now; null when it must be left alone.
BookmarkFile load(const std::string& path)
{
    BookmarkFile bookmarks(g_bookmark_file_new());
    if (isMissing(path)) {
        return bookmarks;
    }
    gchar* raw = nullptr;
    gsize length = 0;
    if (!isOpenToChanges(path)
        || g_file_get_contents(path.c_str(), &raw, &length, nullptr) == FALSE) {
        return nullptr;
    }
    const Text original(raw);
    if (length == 0) {
        return bookmarks;
    }
    if (g_bookmark_file_load_from_data(bookmarks.get(), original.get(), length, nullptr) == FALSE
        || !haveApplications(bookmarks.get())) {
        return nullptr;
    }
    gsize copied = 0;
    const Text copy(g_bookmark_file_to_data(bookmarks.get(), &copied, nullptr));
    const bool isSame = copy != nullptr && saysAll({copy.get(), copied}, {original.get(), length});
    return isSame ? std::move(bookmarks) : nullptr;
}

/// Makes the URL the newest that is registered under our name.
void enter(GBookmarkFile* bookmarks, const Url& url, microseconds now)
{
    const std::vector<RecentEntry> entries = ownEntries(bookmarks);
    // The newest has the largest stamp also after the clock was set back, or did not move on.
    const microseconds stamp
        = entries.empty() ? now : std::max(now, entries.front().stamp + microseconds(1));
    std::size_t kept = 1;
    for (const RecentEntry& entry : entries) {
        // An entry may spell the same file's URL in another way, so not the text is compared.
        const bool isSame = entry.url.path() == url.path();
        if ((isSame && entry.uri != url.absoluteString())
            || (!isSame && kept == XbelRecentDocuments::kMaxDocuments)) {
            forget(bookmarks, entry.uri);
        } else if (!isSame) {
            ++kept;
        }
    }
    registerUse(bookmarks, url, stamp);
}

/// Whether the list on disk has the URLs, the newest of which comes first.
bool note(const std::string& path, const std::vector<Url>& urls, microseconds now)
{
    const BookmarkFile bookmarks = load(path);
    if (bookmarks == nullptr) {
        return false;
    }
    std::for_each(
        urls.rbegin(), urls.rend(), [&](const Url& url) { enter(bookmarks.get(), url, now); });
    return store(bookmarks.get(), path);
}

void clear(const std::string& path)
{
    const BookmarkFile bookmarks = load(path);
    if (bookmarks == nullptr) {
        return;
    }
    const std::vector<RecentEntry> entries = ownEntries(bookmarks.get());
    if (entries.empty()) {
        return;
    }
    for (const RecentEntry& entry : entries) {
        forget(bookmarks.get(), entry.uri);
    }
    // Where it cannot be written it is as if it could not be read: nobody is troubled with it.
    (void)store(bookmarks.get(), path);
}

void removePath(std::vector<Url>& urls, const std::string& path)
{
    std::erase_if(urls, [&path](const Url& url) { return url.path() == path; });
}

/// `newer` and then what only `older` has, as many as the list may hold.
std::vector<Url> joined(std::vector<Url> newer, std::vector<Url> older)
{
    for (const Url& url : newer) {
        removePath(older, url.path());
    }
    newer.insert(newer.end(), older.begin(), older.end());
    newer.resize(std::min(newer.size(), XbelRecentDocuments::kMaxDocuments));
    return newer;
}

std::vector<Url> urlsOf(const std::vector<RecentRecord>& records)
{
    std::vector<Url> urls;
    urls.reserve(records.size());
    for (const RecentRecord& record : records) {
        urls.emplace_back(record.path, true);
    }
    return urls;
}

/// Only the paths count.
std::vector<RecentRecord> recordsOf(const std::vector<Url>& urls)
{
    std::vector<RecentRecord> records;
    records.reserve(urls.size());
    for (const Url& url : urls) {
        records.push_back({url.path(), 0, {}});
    }
    return records;
}

bool isGone(const std::string& path)
{
    struct stat status { };
    return ::lstat(path.c_str(), &status) != 0 && (errno == ENOENT || errno == ENOTDIR);
}

} // namespace

/// One after the other, on a thread that lives as long as there are some: the user's home may be on
/// a server, and others' lists are long. Knows what was noted and is not in the list yet.
class XbelRecentDocuments::Changes {
public:
    explicit Changes(std::vector<Url> unlisted)
        : m_unlisted(std::move(unlisted))
    {
    }

    /// Newest first.
    std::vector<Url> unlisted() const
    {
        const std::lock_guard lock(m_mutex);
        return m_unlisted;
    }

    void addUnlisted(const Url& url)
    {
        const std::lock_guard lock(m_mutex);
        m_unlisted = joined({url}, std::move(m_unlisted));
    }

    void removeUnlisted(const std::vector<Url>& urls)
    {
        const std::lock_guard lock(m_mutex);
        for (const Url& url : urls) {
            removePath(m_unlisted, url.path());
        }
    }

    static void add(const std::shared_ptr<Changes>& changes, std::function<void()> change)
    {
        const std::lock_guard lock(changes->m_mutex);
        changes->m_waiting.push_back(std::move(change));
        if (std::exchange(changes->m_isAtWork, true)) {
            return;
        }
        if (startThread([changes] { changes->work(); })) {
            // It is as where the list cannot be written.
            changes->m_waiting.clear();
            changes->m_isAtWork = false;
        }
    }

    void wait(std::chrono::milliseconds patience)
    {
        std::unique_lock lock(m_mutex);
        m_isDone.wait_for(lock, patience, [this] { return !m_isAtWork; });
    }

private:
    void work()
    {
        std::unique_lock lock(m_mutex);
        while (!m_waiting.empty()) {
            const std::function<void()> change = std::move(m_waiting.front());
            m_waiting.pop_front();
            lock.unlock();
            change();
            lock.lock();
        }
        m_isAtWork = false;
        m_isDone.notify_all();
    }

    mutable std::mutex m_mutex;
    std::condition_variable m_isDone;
    std::deque<std::function<void()>> m_waiting;
    std::vector<Url> m_unlisted;
    bool m_isAtWork = false;
};

std::string XbelRecentDocuments::defaultFilePath()
{
    return std::string(g_get_user_data_dir()) + "/recently-used.xbel";
}

XbelRecentDocuments::XbelRecentDocuments(
    std::string filePath,
    UserDefaults& settings,
    std::shared_ptr<const FileSystemQuestions> questions)
    : XbelRecentDocuments(std::move(filePath), settings, std::move(questions), [] {
        return microseconds(g_get_real_time());
    })
{
}

XbelRecentDocuments::XbelRecentDocuments(
    std::string filePath,
    UserDefaults& settings,
    std::shared_ptr<const FileSystemQuestions> questions,
    Clock clock)
    : m_filePath(std::move(filePath))
    , m_settings(settings)
    , m_questions(std::move(questions))
    , m_clock(std::move(clock))
    , m_changes(std::make_shared<Changes>(urlsOf(settings.recentRecords(kUnlistedKey))))
{
    if (!m_changes->unlisted().empty()) {
        enterUnlisted();
    }
}

XbelRecentDocuments::~XbelRecentDocuments()
{
    m_changes->wait(kWorkerPatience);
    m_settings.setRecentRecords(kUnlistedKey, recordsOf(m_changes->unlisted()));
}

void XbelRecentDocuments::enterUnlisted()
{
    Changes::add(m_changes, [changes = m_changes, path = m_filePath, clock = m_clock] {
        const std::vector<Url> urls = changes->unlisted();
        // What was noted twice in a moment is entered by the first change already.
        if (!urls.empty() && note(path, urls, clock())) {
            changes->removeUnlisted(urls);
        }
    });
}

std::vector<Url> XbelRecentDocuments::listedUrls() const
{
    const BookmarkFile bookmarks = load(m_filePath);
    if (bookmarks == nullptr) {
        return urlsOf(m_settings.recentRecords(kRecentsKey));
    }
    std::vector<Url> urls;
    for (RecentEntry& entry : ownEntries(bookmarks.get())) {
        urls.push_back(std::move(entry.url));
    }
    return urls;
}

std::vector<Url> XbelRecentDocuments::recentDocumentUrls() const
{
    m_changes->wait(kWorkerPatience);
    std::vector<Url> urls = joined(m_changes->unlisted(), listedUrls());
    const auto deadline = m_questions->deadline();
    std::erase_if(urls, [this, deadline](const Url& url) {
        const std::string& path = url.path();
        const std::optional<bool> gone = m_questions->ask<bool>(
            path, LinkMode::Keep, [path] { return std::optional(isGone(path)); }, deadline);
        // A server that is down for an hour has lost nothing.
        return gone.value_or(false);
    });
    return urls;
}

void XbelRecentDocuments::noteNewRecentDocumentUrl(const Url& url)
{
    m_changes->addUnlisted(url);
    enterUnlisted();
}

void XbelRecentDocuments::clearRecentDocuments()
{
    m_changes->removeUnlisted(m_changes->unlisted());
    m_settings.setRecentRecords(kUnlistedKey, {});
    Changes::add(m_changes, [path = m_filePath] { clear(path); });
}

} // namespace tessera
