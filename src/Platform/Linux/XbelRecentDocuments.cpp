// SPDX-License-Identifier: MIT
#include "Platform/Linux/XbelRecentDocuments.h"

#include "Platform/keepAside.h"

#include <glib.h>
#include <sys/stat.h>

#include <algorithm>
#include <cerrno>
#include <filesystem>
#include <memory>
#include <optional>
#include <utility>

namespace tessera {

namespace {

using std::chrono::microseconds;

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
using Error = std::unique_ptr<GError, Releaser<g_error_free>>;
using Strings = std::unique_ptr<gchar*, Releaser<g_strfreev>>;
using Text = std::unique_ptr<gchar, Releaser<g_free>>;

struct Entry {
    std::string uri; ///< as the file has it
    Url url;
    microseconds stamp{};
};

enum class FileState : std::uint8_t {
    Usable, ///< read, or not there yet
    Malformed,
    Untouchable,
};

FileState load(GBookmarkFile* bookmarks, const std::string& path)
{
    struct stat status { };
    if (::stat(path.c_str(), &status) != 0) {
        return errno == ENOENT ? FileState::Usable : FileState::Untouchable;
    }
    // Some replace the list by a folder or a link to /dev/null to be rid of it.
    if (!S_ISREG(status.st_mode)) {
        return FileState::Untouchable;
    }
    if (status.st_size == 0) {
        return FileState::Usable;
    }
    GError* raw = nullptr;
    const bool isLoaded = g_bookmark_file_load_from_file(bookmarks, path.c_str(), &raw) != FALSE;
    const Error error(raw);
    if (isLoaded) {
        return FileState::Usable;
    }
    return error->domain == G_FILE_ERROR ? FileState::Untouchable : FileState::Malformed;
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
std::vector<Entry> ownEntries(GBookmarkFile* bookmarks)
{
    std::vector<Entry> entries;
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
    std::stable_sort(entries.begin(), entries.end(), [](const Entry& a, const Entry& b) {
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

void store(GBookmarkFile* bookmarks, const std::string& path)
{
    gsize length = 0;
    const Text data(g_bookmark_file_to_data(bookmarks, &length, nullptr));
    const Text folder(g_path_get_dirname(path.c_str()));
    if (data == nullptr || g_mkdir_with_parents(folder.get(), kFolderMode) != 0) {
        return;
    }
    (void)g_file_set_contents_full(
        linkTarget(path).c_str(),
        data.get(),
        static_cast<gssize>(length),
        G_FILE_SET_CONTENTS_CONSISTENT,
        kFileMode,
        nullptr);
}

/// The list to change, read anew; none when it must be left alone.
BookmarkFile loadForChange(const std::string& path)
{
    BookmarkFile bookmarks(g_bookmark_file_new());
    const FileState state = load(bookmarks.get(), path);
    if (state == FileState::Untouchable
        || (state == FileState::Malformed && !keepAside(linkTarget(path)))) {
        return nullptr;
    }
    if (state == FileState::Malformed) {
        // What was read up to the fault would come twice when the user mends the file.
        bookmarks.reset(g_bookmark_file_new());
    }
    return bookmarks;
}

bool isGone(const std::string& path)
{
    struct stat status { };
    return ::lstat(path.c_str(), &status) != 0 && (errno == ENOENT || errno == ENOTDIR);
}

} // namespace

std::string XbelRecentDocuments::defaultFilePath()
{
    return std::string(g_get_user_data_dir()) + "/recently-used.xbel";
}

XbelRecentDocuments::XbelRecentDocuments(
    std::string filePath, std::shared_ptr<const FileSystemQuestions> questions)
    : XbelRecentDocuments(
        std::move(filePath), std::move(questions), [] { return microseconds(g_get_real_time()); })
{
}

XbelRecentDocuments::XbelRecentDocuments(
    std::string filePath, std::shared_ptr<const FileSystemQuestions> questions, Clock clock)
    : m_filePath(std::move(filePath))
    , m_questions(std::move(questions))
    , m_clock(std::move(clock))
{
}

std::vector<Url> XbelRecentDocuments::recentDocumentUrls() const
{
    const BookmarkFile bookmarks(g_bookmark_file_new());
    if (load(bookmarks.get(), m_filePath) != FileState::Usable) {
        return {};
    }
    std::vector<Entry> entries = ownEntries(bookmarks.get());
    entries.resize(std::min(entries.size(), kMaxDocuments));
    const auto deadline = m_questions->deadline();
    std::vector<Url> urls;
    for (Entry& entry : entries) {
        const std::string& path = entry.url.path();
        const std::optional<bool> gone = m_questions->ask<bool>(
            path, LinkMode::Keep, [path] { return std::optional(isGone(path)); }, deadline);
        // A server that is down for an hour has lost nothing.
        if (!gone.value_or(false)) {
            urls.push_back(std::move(entry.url));
        }
    }
    return urls;
}

void XbelRecentDocuments::noteNewRecentDocumentUrl(const Url& url)
{
    const BookmarkFile bookmarks = loadForChange(m_filePath);
    if (bookmarks == nullptr) {
        return;
    }
    const std::vector<Entry> entries = ownEntries(bookmarks.get());
    // The newest has the largest stamp also after the clock was set back, or did not move on.
    microseconds stamp = m_clock();
    if (!entries.empty()) {
        stamp = std::max(stamp, entries.front().stamp + microseconds(1));
    }
    std::size_t kept = 1;
    for (const Entry& entry : entries) {
        // An entry may spell the same file's URL in another way, so not the text is compared.
        const bool isSame = entry.url.path() == url.path();
        if ((isSame && entry.uri != url.absoluteString()) || (!isSame && kept == kMaxDocuments)) {
            forget(bookmarks.get(), entry.uri);
        } else if (!isSame) {
            ++kept;
        }
    }
    registerUse(bookmarks.get(), url, stamp);
    store(bookmarks.get(), m_filePath);
}

void XbelRecentDocuments::clearRecentDocuments()
{
    const BookmarkFile bookmarks = loadForChange(m_filePath);
    if (bookmarks == nullptr) {
        return;
    }
    const std::vector<Entry> entries = ownEntries(bookmarks.get());
    if (entries.empty()) {
        return;
    }
    for (const Entry& entry : entries) {
        forget(bookmarks.get(), entry.uri);
    }
    store(bookmarks.get(), m_filePath);
}

} // namespace tessera
