// SPDX-License-Identifier: MIT
#include "support/Machine/TempTree.h"

#include <dirent.h>
#include <fcntl.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/sysmacros.h>
#include <sys/un.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <memory>
#include <system_error>
#include <tuple>
#include <utility>
#include <vector>

namespace tessera::test {

namespace {

constexpr mode_t kFolderMode = 0755;
constexpr mode_t kFileMode = 0644;
constexpr dev_t kNullMajor = 1;
constexpr dev_t kNullMinor = 3;
constexpr std::uint64_t kBytesPerBlock = 512;

void check(bool succeeded, const std::string& what)
{
    if (!succeeded) {
        throw std::system_error(errno, std::generic_category(), what);
    }
}

/// Owns a descriptor.
class Handle {
public:
    Handle(int number, const std::string& what)
        : m_number(number)
    {
        check(number >= 0, what);
    }
    Handle(const Handle&) = delete;
    Handle& operator=(Handle&& other) noexcept
    {
        std::swap(m_number, other.m_number);
        return *this;
    }
    ~Handle() { ::close(m_number); }

    int number() const { return m_number; }

private:
    int m_number;
};

Handle openFolderAt(int parent, const char* name)
{
    return {::openat(parent, name, O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC), name};
}

std::vector<std::string> namesIn(int folder)
{
    std::vector<std::string> names;
    const std::unique_ptr<DIR, int (*)(DIR*)> listing(::fdopendir(::dup(folder)), ::closedir);
    // NOLINTNEXTLINE(concurrency-mt-unsafe): the stream is this function's own
    while (const dirent* entry = listing != nullptr ? ::readdir(listing.get()) : nullptr) {
        const std::string name = &entry->d_name[0];
        if (name != "." && name != "..") {
            names.push_back(name);
        }
    }
    return names;
}

/// Empties a folder. Folders in it are moved up beside each other first, so that no path and no
/// stack grows with the depth of what is removed.
class FolderEmptier {
public:
    explicit FolderEmptier(const std::string& path)
        : m_top(openFolderAt(AT_FDCWD, path.c_str()))
    {
    }

    void run()
    {
        liftFolders(m_top.number());
        while (!m_lifted.empty()) {
            const std::string name = m_lifted.back();
            m_lifted.pop_back();
            liftFolders(openFolderAt(m_top.number(), name.c_str()).number());
            ::unlinkat(m_top.number(), name.c_str(), AT_REMOVEDIR);
        }
    }

private:
    void liftFolders(int folder)
    {
        for (const std::string& name : namesIn(folder)) {
            if (::unlinkat(folder, name.c_str(), 0) == 0) {
                continue;
            }
            std::ignore = ::fchmodat(folder, name.c_str(), kFolderMode, 0);
            const std::string lifted = "lifted" + std::to_string(m_nextNumber++);
            if (::renameat(folder, name.c_str(), m_top.number(), lifted.c_str()) == 0) {
                m_lifted.push_back(lifted);
            }
        }
    }

    Handle m_top;
    std::vector<std::string> m_lifted;
    std::uint64_t m_nextNumber = 0;
};

} // namespace

TempTree::TempTree()
    : TempTree(std::filesystem::temp_directory_path().string())
{
}

TempTree::TempTree(const std::string& parent)
    : m_path(std::filesystem::canonical(parent).string() + "/tessera-test-XXXXXX")
{
    check(::mkdtemp(m_path.data()) != nullptr, m_path);
    // Tests give up the super-user's rights and have to get in here nevertheless.
    check(::chmod(m_path.c_str(), kFolderMode) == 0, m_path);
}

TempTree::~TempTree()
{
    try {
        FolderEmptier(m_path).run();
    } catch (const std::system_error& error) {
        std::fprintf(stderr, "TempTree: %s\n", error.what());
    }
    ::rmdir(m_path.c_str());
}

std::string TempTree::fastParent()
{
    const std::string inMemory = "/dev/shm";
    return ::access(inMemory.c_str(), W_OK) == 0 ? inMemory
                                                 : std::filesystem::temp_directory_path().string();
}

std::string TempTree::pathOf(std::string_view name) const
{
    return (m_path + '/').append(name);
}

void TempTree::makeFolder(std::string_view name) const
{
    check(::mkdir(pathOf(name).c_str(), kFolderMode) == 0, pathOf(name));
}

void TempTree::makeFile(std::string_view name, std::size_t bytes) const
{
    writeFile(name, std::string(bytes, 'x'));
}

void TempTree::writeFile(std::string_view name, std::string_view content) const
{
    const std::string path = pathOf(name);
    const Handle file(::open(path.c_str(), O_WRONLY | O_CREAT | O_CLOEXEC, kFileMode), path);
    const ssize_t written = ::write(file.number(), content.data(), content.size());
    check(std::cmp_equal(written, content.size()), path);
    // Blocks that are still to be allocated do not count as allocated.
    check(content.empty() || ::fsync(file.number()) == 0, path);
}

void TempTree::makeSparseFile(std::string_view name, off_t length) const
{
    makeFile(name);
    check(::truncate(pathOf(name).c_str(), length) == 0, pathOf(name));
}

void TempTree::makeSymbolicLink(std::string_view name, const std::string& target) const
{
    check(::symlink(target.c_str(), pathOf(name).c_str()) == 0, pathOf(name));
}

void TempTree::makeHardLink(std::string_view name, std::string_view existing) const
{
    check(::link(pathOf(existing).c_str(), pathOf(name).c_str()) == 0, pathOf(name));
}

void TempTree::makeFifo(std::string_view name) const
{
    check(::mkfifo(pathOf(name).c_str(), kFileMode) == 0, pathOf(name));
}

void TempTree::makeSocket(std::string_view name) const
{
    const Handle socket(::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0), "socket");
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    const std::string path = pathOf(name);
    check(path.size() < sizeof(address.sun_path), path);
    std::memcpy(&address.sun_path[0], path.data(), path.size());
    const auto* generic = reinterpret_cast<const sockaddr*>(&address);
    check(::bind(socket.number(), generic, sizeof(address)) == 0, path);
}

void TempTree::makeNullDevice(std::string_view name) const
{
    const dev_t device = makedev(kNullMajor, kNullMinor);
    check(::mknod(pathOf(name).c_str(), S_IFCHR | kFileMode, device) == 0, pathOf(name));
}

void TempTree::makeChain(std::size_t depth, const std::string& sibling) const
{
    Handle folder = openFolderAt(AT_FDCWD, m_path.c_str());
    for (std::size_t i = 0; i < depth; ++i) {
        check(::mkdirat(folder.number(), "d", kFolderMode) == 0, "d");
        if (!sibling.empty()) {
            check(::mkdirat(folder.number(), sibling.c_str(), kFolderMode) == 0, sibling);
        }
        folder = openFolderAt(folder.number(), "d");
    }
}

void TempTree::setMode(std::string_view name, mode_t mode) const
{
    check(::chmod(pathOf(name).c_str(), mode) == 0, pathOf(name));
}

void TempTree::rename(std::string_view from, std::string_view to) const
{
    check(std::rename(pathOf(from).c_str(), pathOf(to).c_str()) == 0, pathOf(from));
}

void TempTree::removeFile(std::string_view name) const
{
    check(::unlink(pathOf(name).c_str()) == 0, pathOf(name));
}

void TempTree::removeFolder(std::string_view name) const
{
    check(::rmdir(pathOf(name).c_str()) == 0, pathOf(name));
}

std::uint64_t TempTree::allocatedBytes(std::string_view name) const
{
    struct stat values { };
    check(::lstat(pathOf(name).c_str(), &values) == 0, pathOf(name));
    return static_cast<std::uint64_t>(values.st_blocks) * kBytesPerBlock;
}

} // namespace tessera::test
