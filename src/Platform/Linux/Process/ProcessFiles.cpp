// SPDX-License-Identifier: MIT
#include "Platform/Linux/Process/ProcessFiles.h"

#include "Model/Allocation.h"
#include "Platform/Linux/Files/ReadToEnd.h"

#include <dirent.h>
#include <fcntl.h>
#include <linux/stat.h>
#include <sys/stat.h>
#include <sys/sysmacros.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <charconv>
#include <climits>
#include <memory>
#include <utility>

namespace tessera {

namespace {

constexpr std::uint64_t kBytesPerBlock = 512;
constexpr int kHexadecimal = 16;
constexpr std::string_view kDeleted = " (deleted)";
constexpr std::uint64_t kKernelThread = 0x00200000; // PF_KTHREAD, which no header exports

std::string_view nextField(std::string_view& text)
{
    text.remove_prefix(std::min(text.find_first_not_of(' '), text.size()));
    const std::string_view field = text.substr(0, text.find(' '));
    text.remove_prefix(field.size());
    return field;
}

std::optional<std::uint64_t> numberFrom(std::string_view text, int base = 10)
{
    std::uint64_t number = 0;
    const auto read = std::from_chars(text.data(), text.data() + text.size(), number, base);
    const bool isWhole = read.ec == std::errc() && read.ptr == text.data() + text.size();
    return isWhole ? std::optional(number) : std::nullopt;
}

/// Nothing when the file cannot be read to its end, and errno says why.
std::optional<std::string> textIn(int folder, const char* name)
{
    return readToEnd(FileDescriptor(::openat(folder, name, O_RDONLY | O_CLOEXEC)));
}

/// Empty when it cannot be read.
std::string linkTarget(int folder, const char* name)
{
    std::array<char, PATH_MAX> target{};
    const ssize_t length = ::readlinkat(folder, name, target.data(), target.size());
    return {target.data(), static_cast<std::size_t>(std::max<ssize_t>(length, 0))};
}

/// As "map_files" writes an address, which "maps" pads to eight digits.
std::string_view withoutLeadingZeros(std::string_view address)
{
    const std::size_t begin = address.find_first_not_of('0');
    return address.substr(std::min(begin, std::max<std::size_t>(address.size(), 1) - 1));
}

bool isNumber(std::string_view name)
{
    return !name.empty() && std::ranges::all_of(name, [](char c) { return c >= '0' && c <= '9'; });
}

using Listing = std::unique_ptr<DIR, int (*)(DIR*)>;

/// Null when the folder cannot be opened, and errno says why.
Listing listingOf(int folder, const char* name)
{
    const int number = ::openat(folder, name, O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    DIR* const stream = number >= 0 ? ::fdopendir(number) : nullptr;
    if (stream == nullptr && number >= 0) {
        const int error = errno;
        ::close(number);
        errno = error;
    }
    return {stream, ::closedir};
}

/// Nothing when the folder cannot be read, and errno says why.
std::optional<std::vector<std::string>> numbersIn(int folder, const char* name)
{
    const Listing listing = listingOf(folder, name);
    if (listing == nullptr) {
        return std::nullopt;
    }
    std::vector<std::string> numbers;
    // NOLINTNEXTLINE(concurrency-mt-unsafe): the stream is this function's own
    while (const dirent* entry = ::readdir(listing.get())) {
        if (isNumber(&entry->d_name[0])) {
            numbers.emplace_back(&entry->d_name[0]);
        }
    }
    return numbers;
}

bool saysThatItIsGone(int error)
{
    return error == ENOENT || error == ESRCH;
}

/// What lies behind one of the links that lead to an open file. A dead file system is not asked:
/// what the system remembers is enough.
OpenFileStatus rememberedStatus(int folder, const std::string& link)
{
    constexpr int kFlags = AT_STATX_DONT_SYNC | AT_NO_AUTOMOUNT;
    constexpr unsigned kWanted = STATX_TYPE | STATX_INO | STATX_NLINK | STATX_BLOCKS;
    struct statx values { };
    OpenFileStatus status;
    if (::statx(folder, link.c_str(), kFlags, kWanted, &values) != 0) {
        status.error = errno;
        return status;
    }
    status.identity = {makedev(values.stx_dev_major, values.stx_dev_minor), values.stx_ino};
    status.mode = values.stx_mode;
    status.links = values.stx_nlink;
    status.allocatedBytes = saturatingProduct(values.stx_blocks, kBytesPerBlock);
    return status;
}

/// In two subvolumes, two files have one number.
bool areOfOneFile(const Mapping& a, const Mapping& b)
{
    return a.identity == b.identity && a.path == b.path;
}

} // namespace

bool OpenFileStatus::isForbidden() const
{
    return error == EACCES || error == EPERM || error == ENOSYS;
}

bool Mapping::looksDeleted() const
{
    return path.ends_with(kDeleted);
}

ProcessFiles::ProcessFiles(int proc, const std::string& number)
    : m_folder(::openat(proc, number.c_str(), O_PATH | O_DIRECTORY | O_CLOEXEC))
{
}

std::string ProcessFiles::name() const
{
    std::string text = textIn(m_folder.number(), "comm").value_or(std::string());
    if (text.ends_with('\n')) {
        text.pop_back(); // the system's; the name may have one of its own before it
    }
    return text;
}

std::string ProcessFiles::mountNamespace() const
{
    return linkTarget(m_folder.number(), "ns/mnt");
}

std::optional<std::string> ProcessFiles::mountInfo() const
{
    return textIn(m_folder.number(), "mountinfo");
}

FilesShown ProcessFiles::filesShown() const
{
    const std::optional<std::string> stat = textIn(m_folder.number(), "stat");
    if (!stat) {
        return saysThatItIsGone(errno) ? FilesShown::Nowhere : FilesShown::InProcess;
    }
    return filesShownBy(*stat);
}

std::optional<std::vector<std::string>> ProcessFiles::descriptors() const
{
    auto numbers = numbersIn(m_folder.number(), "fd");
    return numbers || !saysThatItIsGone(errno) ? numbers : std::vector<std::string>();
}

std::optional<std::uint64_t> ProcessFiles::mountOf(const std::string& descriptor) const
{
    constexpr std::string_view kLabel = "mnt_id:\t";
    const auto text = textIn(m_folder.number(), ("fdinfo/" + descriptor).c_str());
    const std::size_t begin = text ? text->find(kLabel) : std::string::npos;
    if (begin == std::string::npos) {
        return std::nullopt;
    }
    const std::string_view rest = std::string_view(*text).substr(begin + kLabel.size());
    return numberFrom(rest.substr(0, rest.find('\n')));
}

std::optional<std::vector<Mapping>> ProcessFiles::mappings() const
{
    const std::optional<std::string> text = textIn(m_folder.number(), "maps");
    if (!text && !saysThatItIsGone(errno)) {
        return std::nullopt;
    }
    std::vector<Mapping> mappings;
    for (std::string_view rest = text ? *text : std::string_view(); !rest.empty();) {
        const std::string_view line = rest.substr(0, rest.find('\n'));
        rest.remove_prefix(std::min(line.size() + 1, rest.size()));
        std::optional<Mapping> mapping = mappingFrom(line);
        // The pieces of a program or library lie beside each other.
        if (mapping && (mappings.empty() || !areOfOneFile(mappings.back(), *mapping))) {
            mappings.push_back(std::move(*mapping));
        }
    }
    return mappings;
}

OpenFileStatus ProcessFiles::statusOf(const std::string& descriptor) const
{
    return rememberedStatus(m_folder.number(), "fd/" + descriptor);
}

OpenFileStatus ProcessFiles::statusOf(const Mapping& mapping) const
{
    return rememberedStatus(m_folder.number(), "map_files/" + mapping.addresses);
}

RunningProgram ProcessFiles::program() const
{
    return {rememberedStatus(m_folder.number(), "exe"), linkTarget(m_folder.number(), "exe")};
}

std::string ProcessFiles::pathOf(const std::string& descriptor) const
{
    return linkTarget(m_folder.number(), ("fd/" + descriptor).c_str());
}

std::optional<std::vector<std::string>> processNumbers(int proc)
{
    return numbersIn(proc, ".");
}

bool isOfInnerNamespace(int proc)
{
    // PROC_PID_INIT_INO, which programs on all systems rely on.
    constexpr std::string_view kFirst = "pid:[4026531836]";
    const std::string own = linkTarget(proc, "self/ns/pid");
    return !own.empty() && own != kFirst;
}

std::string withoutDeletedWord(std::string path)
{
    if (path.ends_with(kDeleted)) {
        path.resize(path.size() - kDeleted.size());
    }
    return path;
}

std::optional<Mapping> mappingFrom(std::string_view line)
{
    const std::string_view addresses = nextField(line);
    const std::size_t hyphen = std::min(addresses.find('-'), addresses.size());
    const std::string_view end = addresses.substr(std::min(hyphen + 1, addresses.size()));
    Mapping mapping;
    mapping.addresses.append(withoutLeadingZeros(addresses.substr(0, hyphen)));
    mapping.addresses.append("-").append(withoutLeadingZeros(end));
    nextField(line); // what may be done with it
    nextField(line); // where in the file it begins
    const std::string_view device = nextField(line);
    const std::size_t colon = std::min(device.find(':'), device.size());
    const auto majorNumber = numberFrom(device.substr(0, colon), kHexadecimal);
    const auto minorNumber
        = numberFrom(device.substr(std::min(colon + 1, device.size())), kHexadecimal);
    const auto inode = numberFrom(nextField(line));
    if (!majorNumber || !minorNumber || inode.value_or(0) == 0) {
        return std::nullopt;
    }
    mapping.identity = {
        makedev(static_cast<unsigned>(*majorNumber), static_cast<unsigned>(*minorNumber)), *inode};
    mapping.path = line.substr(std::min(line.find_first_not_of(' '), line.size()));
    return mapping;
}

FilesShown filesShownBy(std::string_view stat)
{
    constexpr int kFieldsBeforeFlags = 5;
    constexpr int kFieldsBeforeThreads = 10;
    const std::size_t nameEnd = stat.rfind(')'); // the name may hold brackets and spaces itself
    if (nameEnd == std::string_view::npos) {
        return FilesShown::InProcess;
    }
    stat.remove_prefix(nameEnd + 1);
    const std::string_view state = nextField(stat);
    const auto numberAfter = [&stat](int fields) {
        for (int i = 0; i < fields; ++i) {
            nextField(stat);
        }
        return numberFrom(nextField(stat)).value_or(0);
    };
    const std::uint64_t flags = numberAfter(kFieldsBeforeFlags);
    const std::uint64_t threads = numberAfter(kFieldsBeforeThreads);
    if ((flags & kKernelThread) != 0) {
        return FilesShown::Nowhere;
    }
    if (state != "Z" && state != "X") {
        return FilesShown::InProcess;
    }
    return threads > 1 ? FilesShown::InItsThreads : FilesShown::Nowhere;
}

} // namespace tessera
