// SPDX-License-Identifier: MIT
#include "Base/CoreUtil.h"

#include "Base/Decimals.h"
#include "Desktop/RecentDocuments.h"
#include "Desktop/UserAccount.h"
#include "Desktop/Workspace.h"
#include "Model/Recents.h"
#include "Model/UserDefaults.h"
#include "Model/Volume.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <cstdlib>
#include <string_view>

namespace tessera {

namespace {

constexpr double kUnitBase = 1000.0;
constexpr std::array<std::string_view, 5> kUnits{"B", "KB", "MB", "GB", "TB"};
constexpr std::size_t kFirstUnitWithDecimal = 2;

/// A node that stands for space, not for a file, lies nowhere.
bool hasPath(const File& file)
{
    return nodeCast<TopFolder>(&file) != nullptr || !file.fragment().empty();
}

/// Walks down a tree along one path. It compares each child's own component at the place where
/// its folder's path ends, instead of making every child's path, which in a deep tree is long.
class PathWalk {
public:
    PathWalk(std::string_view path, const Folder& start)
        : m_path(path)
    {
        setMatched(start.absolutePath());
    }

    /// Takes the child when its path is a prefix of the whole one.
    bool take(const File& child)
    {
        if (!hasPath(child)) {
            return false;
        }
        if (const auto* top = nodeCast<TopFolder>(&child)) {
            if (!m_path.starts_with(top->origin())) {
                return false;
            }
            setMatched(top->origin());
            return true;
        }
        if (!m_isOnPath) {
            return false;
        }
        std::string_view rest = m_path.substr(m_length);
        if (!m_isRoot) {
            if (!rest.starts_with('/')) {
                return false;
            }
            rest.remove_prefix(1);
        }
        if (!rest.starts_with(child.fragment())) {
            return false;
        }
        m_length = m_path.size() - rest.size() + child.fragment().size();
        m_isRoot = false;
        return true;
    }

    bool isAtEnd() const { return m_length == m_path.size(); }

private:
    void setMatched(std::string_view path)
    {
        m_isOnPath = m_path.starts_with(path);
        m_length = path.size();
        m_isRoot = path == "/";
    }

    std::string_view m_path;
    bool m_isOnPath = false; ///< m_path starts with the current node's path
    std::size_t m_length = 0; ///< of the current node's path
    bool m_isRoot = false;
};

File* takeFirstOnPath(const Folder& folder, PathWalk& walk)
{
    for (File* child : folder.children()) {
        if (walk.take(*child)) {
            return child;
        }
    }
    return nullptr;
}

/// The real user's entry. Without one there is no home to show and no name to compare, so it ends
/// the process, in release builds too.
PasswordEntry passwordEntry(const UserAccount& account, const char* function)
{
    std::optional<PasswordEntry> pw = account.realUser();
    if (!pw) {
        (void)std::fprintf(stderr, "Assertion failed: (pw), function %s.\n", function);
        std::abort();
    }
    return *std::move(pw);
}

} // namespace

std::string CoreUtil::formatSize(std::uint64_t bytes)
{
    const auto count = static_cast<double>(bytes);
    double value = count;
    std::size_t unit = 0;
    double divisor = 1.0;
    for (std::size_t i = 0; i < kUnits.size(); ++i, divisor *= kUnitBase) {
        const double quotient = count / divisor;
        if (quotient >= 1.0) {
            unit = i;
            value = quotient;
        }
    }
    return decimals(value, unit < kFirstUnitWithDecimal ? 0 : 1) + ' ' + std::string(kUnits[unit]);
}

std::string CoreUtil::getFolderTitle(const File& file)
{
    const auto* volume = nodeCast<Volume>(&file);
    const std::uint64_t bytes
        = volume != nullptr ? volume->volumeSize() - volume->freeSize() : file.totalAllocation();
    return std::string(file.url().lastPathComponent()) + " (" + formatSize(bytes) + ')';
}

File* CoreUtil::locateURL(const Url& url, Folder& inFolder)
{
    if (url.path() == inFolder.absolutePath()) {
        return &inFolder;
    }
    PathWalk walk(url.path(), inFolder);
    const Folder* folder = &inFolder;
    while (folder != nullptr) {
        File* child = takeFirstOnPath(*folder, walk);
        if (child == nullptr || walk.isAtEnd()) {
            return child;
        }
        folder = nodeCast<Folder>(child);
    }
    return nullptr;
}

Folder* CoreUtil::locateParent(const Url& url, Folder& inFolder)
{
    const std::string& path = url.path();
    const std::size_t slash = path.rfind('/');
    if (slash == std::string::npos) {
        return nullptr;
    }
    const std::string_view parent = std::string_view(path).substr(0, slash);
    return nodeCast<Folder>(locateURL(Url(parent.empty() ? "/" : parent, true), inFolder));
}

double CoreUtil::aspectRatio(double width, double height)
{
    return width > height ? width / height : height / width;
}

void CoreUtil::revealInFinder(
    const Url& url, Workspace& workspace, OpenCompletion completionHandler)
{
    workspace.reveal(url, std::move(completionHandler));
}

void CoreUtil::saveFolderToRecents(
    const TopFolder& folder, UserDefaults& defaults, RecentDocuments& documents)
{
    defaults.setRecentRecords(
        kRecentsKey, withRecordInFront(defaults.recentRecords(kRecentsKey), folder, currentDate()));

    const Url url = folder.url();
    const std::vector<Url> newestFirst = documents.recentDocumentUrls();
    documents.clearRecentDocuments();
    std::for_each(newestFirst.rbegin(), newestFirst.rend(), [&](const Url& other) {
        if (other.path() != url.path()) {
            documents.noteNewRecentDocumentUrl(other);
        }
    });
    documents.noteNewRecentDocumentUrl(url);
}

std::string CoreUtil::realUserName(const UserAccount& account)
{
    return passwordEntry(account, "realUserName").name;
}

std::string CoreUtil::realHomeDirectory(const UserAccount& account)
{
    return passwordEntry(account, "realHomeDirectory").directory;
}

} // namespace tessera
