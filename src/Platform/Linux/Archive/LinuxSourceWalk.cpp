// SPDX-License-Identifier: MIT
#include "Platform/Linux/Archive/LinuxSourceWalk.h"

#include "Platform/Linux/Archive/UserAttributes.h"

#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <functional>
#include <span>
#include <utility>

namespace tessera {

namespace {

constexpr std::size_t kMaxOpenFolders = 32;
constexpr std::uint32_t kPermissionBits = 07777;
constexpr std::size_t kUsualLinkLength = 256;
constexpr std::size_t kListingBytes = std::size_t{32} * 1024;

struct OpenedItem {
    int openError = 0; ///< errno of looking the name up
    int error = 0; ///< errno of what was found there
    FileDescriptor handle;
    FileStatus status;
};

/// Opens a file or folder for reading. Whatever has taken its place meanwhile, opening it waits
/// for nothing.
OpenedItem openAt(int folder, const std::string& name, std::uint32_t kind)
{
    int number = -1;
    do {
        number = ::openat(
            folder, name.c_str(), O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_NOCTTY | O_CLOEXEC);
    } while (number < 0 && errno == EINTR);
    if (number < 0) {
        return {errno, 0, {}, {}};
    }
    OpenedItem opened{0, 0, FileDescriptor(number), {}};
    const StatusResult found = statusOf(number);
    opened.status = found.status;
    opened.error = found.error;
    if (found && (found.status.mode & S_IFMT) != kind) {
        opened.error = ESTALE;
    }
    return opened;
}

void appendNames(std::vector<std::string>& names, std::span<const char> entries)
{
    while (!entries.empty()) {
        const auto* entry = reinterpret_cast<const dirent64*>(entries.data());
        const std::string name = &entry->d_name[0];
        if (name != "." && name != "..") {
            names.push_back(name);
        }
        entries = entries.subspan(entry->d_reclen);
    }
}

/// What the folder holds, in descending order; the errno when it cannot be listed to its end. Not
/// by readdir(), which takes ENOENT for the end.
int listNames(int folder, std::vector<std::string>& names)
{
    alignas(dirent64) std::array<char, kListingBytes> buffer;
    while (true) {
        const ssize_t bytes = ::getdents64(folder, buffer.data(), buffer.size());
        if (bytes > 0) {
            appendNames(names, std::span(buffer).first(static_cast<std::size_t>(bytes)));
        } else if (bytes == 0) {
            std::sort(names.begin(), names.end(), std::greater<>());
            return 0;
        } else if (errno != EINTR) {
            return errno;
        }
    }
}

void takeAttributes(ArchiveItem& item, int descriptor)
{
    UserAttributes found = readUserAttributes(descriptor);
    item.attributes = std::move(found.attributes);
    item.lacksAttributes = found.error != 0;
}

void describe(ArchiveItem& item, ArchiveItem::Kind kind, const FileStatus& status)
{
    item.kind = kind;
    item.permissions = status.mode & kPermissionBits;
    item.modified = status.modified;
    item.owner = status.owner;
    item.group = status.group;
    item.length = kind == ArchiveItem::Kind::File ? status.length : 0;
}

} // namespace

LinuxSourceWalk::LinuxSourceWalk(NamedPlace source, const FileStatus& start)
    : m_boundary(start)
{
    Place around;
    around.identity = statusOf(source.folder.number()).status.identity;
    around.handle = std::move(source.folder);
    around.names.push_back(std::move(source.name));
    m_places.push_back(std::move(around));
}

SourceWalk::Step LinuxSourceWalk::next(ArchiveItem& item)
{
    m_content.reset();
    while (!m_places.empty()) {
        Place& place = m_places.back();
        if (place.names.empty()) {
            leaveFolder();
            continue;
        }
        m_path.resize(place.pathLength);
        if (!place.handle.isOpen()) {
            // Somebody has moved it away, and what is in it cannot be reached any more.
            place.names.clear();
            item.path = m_path;
            m_error = ESTALE;
            return Step::Failed;
        }
        const std::string name = std::move(place.names.back());
        place.names.pop_back();
        m_path += m_path.empty() ? "" : "/";
        m_path += name;
        item = ArchiveItem{};
        item.path = m_path;
        if (const auto step = visit(place.handle.number(), name, item)) {
            return *step;
        }
    }
    return Step::End;
}

std::optional<SourceWalk::Step> LinuxSourceWalk::visit(
    int folder, const std::string& name, ArchiveItem& item)
{
    const StatusResult found = statusAt(folder, name.c_str());
    if (!found) {
        return notFound(found.error);
    }
    if (found.status.identity == m_passedOver) {
        return std::nullopt;
    }
    switch (found.status.mode & S_IFMT) {
    case S_IFDIR:
        return visitFolder(folder, name, found.status, item);
    case S_IFREG:
        return visitFile(folder, name, item);
    case S_IFLNK:
        return visitLink(folder, name, found.status, item);
    default:
        return Step::LeftOut;
    }
}

std::optional<SourceWalk::Step> LinuxSourceWalk::visitFolder(
    int folder, const std::string& name, const FileStatus& status, ArchiveItem& item)
{
    if (!isAtSource() && m_boundary.isCrossedBy(status)) {
        describe(item, ArchiveItem::Kind::Folder, status);
        return Step::Item;
    }
    OpenedItem opened = openAt(folder, name, S_IFDIR);
    if (opened.openError != 0) {
        return notFound(opened.openError);
    }
    if (opened.error != 0) {
        return failed(opened.error);
    }
    std::vector<std::string> names;
    const int error = listNames(opened.handle.number(), names);
    if (error != 0) {
        return failed(error);
    }
    takeAttributes(item, opened.handle.number());
    describe(item, ArchiveItem::Kind::Folder, opened.status);
    enterFolder(std::move(opened.handle), std::move(names));
    return Step::Item;
}

std::optional<SourceWalk::Step> LinuxSourceWalk::visitFile(
    int folder, const std::string& name, ArchiveItem& item)
{
    OpenedItem opened = openAt(folder, name, S_IFREG);
    if (opened.openError != 0) {
        return notFound(opened.openError);
    }
    if (opened.error != 0) {
        return failed(opened.error);
    }
    takeAttributes(item, opened.handle.number());
    describe(item, ArchiveItem::Kind::File, opened.status);
    m_content.emplace(std::move(opened.handle), opened.status.length);
    return Step::Item;
}

std::optional<SourceWalk::Step> LinuxSourceWalk::visitLink(
    int folder, const std::string& name, const FileStatus& status, ArchiveItem& item)
{
    std::string target(kUsualLinkLength, '\0');
    while (true) {
        const ssize_t length = ::readlinkat(folder, name.c_str(), target.data(), target.size());
        if (length < 0) {
            return notFound(errno);
        }
        // A target that fills the buffer may have been cut off.
        if (std::cmp_less(length, target.size())) {
            target.resize(static_cast<std::size_t>(length));
            break;
        }
        target.resize(target.size() * 2);
    }
    item.linkTarget = std::move(target);
    describe(item, ArchiveItem::Kind::Link, status);
    return Step::Item;
}

SourceWalk::Step LinuxSourceWalk::failed(int error)
{
    m_error = error;
    return Step::Failed;
}

/// Of a name; what is open is there, whatever a file system says of it.
SourceWalk::Step LinuxSourceWalk::notFound(int error)
{
    return error == ENOENT && !isAtSource() ? Step::Vanished : failed(error);
}

void LinuxSourceWalk::enterFolder(FileDescriptor handle, std::vector<std::string> names)
{
    const FileIdentity identity = statusOf(handle.number()).status.identity;
    m_places.push_back({std::move(handle), identity, std::move(names), m_path.size()});
    if (m_places.size() > kMaxOpenFolders) {
        m_places[m_places.size() - kMaxOpenFolders - 1].handle = FileDescriptor();
    }
}

void LinuxSourceWalk::leaveFolder()
{
    const Place left = std::move(m_places.back());
    m_places.pop_back();
    if (m_places.empty()) {
        return;
    }
    Place& above = m_places.back();
    if (!above.handle.isOpen() && left.handle.isOpen()) {
        above.handle = openDirectoryAt(left.handle.number(), "..", above.identity);
    }
}

ContentPart LinuxSourceWalk::read(std::span<char> buffer)
{
    return m_content ? m_content->read(buffer) : ContentPart{};
}

} // namespace tessera
