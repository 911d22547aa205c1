// SPDX-License-Identifier: MIT
// Makes the tree of files that the scan benchmarks measure, the same one every time.

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <charconv>
#include <cstdint>
#include <cstdio>
#include <random>
#include <span>
#include <string>
#include <string_view>
#include <system_error>
#include <vector>

namespace {

constexpr std::uint64_t kSeed = 20240229;
constexpr std::size_t kLargeFolders = 3;
constexpr std::size_t kChains = 20;
constexpr std::size_t kChainDepth = 200;
constexpr std::size_t kItemsPerFolder = 17; ///< about a million items in about sixty thousand
constexpr std::size_t kFilesPerLargeFolderDivisor = 10; ///< a large folder is a tenth of all items
constexpr unsigned kHardLinkEvery = 200;
constexpr off_t kBlock = 4096;
constexpr mode_t kFileMode = 0644;
constexpr mode_t kFolderMode = 0755;

constexpr std::array<std::string_view, 24> kWords{
    "main",   "test",  "report", "index",  "photo",  "draft", "notes", "config",
    "module", "image", "backup", "readme", "data",   "util",  "final", "invoice",
    "render", "cache", "layout", "summer", "letter", "music", "setup", "archive"};
constexpr std::array<std::string_view, 10> kEndings{
    ".cpp", ".h", ".txt", ".jpg", ".json", ".o", ".py", ".pdf", ".html", ""};

[[noreturn]] void fail(const std::string& what)
{
    throw std::system_error(errno, std::generic_category(), what);
}

class TreeGenerator {
public:
    explicit TreeGenerator(std::size_t items)
        : m_itemsLeft(items)
    {
    }

    /// Fills the current directory.
    void run()
    {
        const std::size_t largeFolder = m_itemsLeft / kFilesPerLargeFolderDivisor;
        for (std::size_t i = 0; i < kLargeFolders; ++i) {
            fill(makeFolder("."), largeFolder);
        }
        for (std::size_t i = 0; i < kChains; ++i) {
            makeChain();
        }
        while (m_itemsLeft > 0) {
            fill(makeFolder(anyFolder()), skewed(2 * kItemsPerFolder));
        }
    }

private:
    std::string freshName(std::string_view ending)
    {
        std::string name(pick(kWords));
        if (m_random() % 2 == 0) {
            name.append("-").append(pick(kWords));
        }
        return name.append(std::to_string(m_nextNumber++)).append(ending);
    }

    template <std::size_t size>
    std::string_view pick(const std::array<std::string_view, size>& from)
    {
        return from[m_random() % size];
    }

    /// 1 to `max`, small values far more often than large ones.
    std::size_t skewed(std::size_t max)
    {
        const std::size_t bound = m_random() % max + 1;
        return m_random() % bound + 1 + (m_random() % 16 == 0 ? max : 0);
    }

    const std::string& anyFolder() { return m_folders[m_random() % m_folders.size()]; }

    void countItem() { m_itemsLeft -= std::min<std::size_t>(m_itemsLeft, 1); }

    std::string makeFolder(const std::string& parent)
    {
        std::string path = parent + '/' + freshName("");
        if (::mkdir(path.c_str(), kFolderMode) != 0) {
            fail(path);
        }
        countItem();
        m_folders.push_back(path);
        return path;
    }

    void makeChain()
    {
        std::string path = ".";
        for (std::size_t depth = 0; depth < kChainDepth && m_itemsLeft > 0; ++depth) {
            path = makeFolder(path);
            m_folders.pop_back();
            fill(path, 1);
        }
    }

    void fill(const std::string& folder, std::size_t files)
    {
        for (std::size_t i = 0; i < files && m_itemsLeft > 0; ++i) {
            makeFile(folder);
        }
    }

    void makeFile(const std::string& folder)
    {
        const std::string path = folder + '/' + freshName(pick(kEndings));
        countItem();
        if (!m_lastFile.empty() && m_random() % kHardLinkEvery == 0) {
            if (::link(m_lastFile.c_str(), path.c_str()) != 0) {
                fail(path);
            }
            return;
        }
        const int file = ::open(path.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, kFileMode);
        if (file < 0 || !allocate(file)) {
            fail(path);
        }
        ::close(file);
        m_lastFile = path;
    }

    /// Half of the files are empty; the others hold a few blocks, one in two thousand many.
    bool allocate(int file)
    {
        if (m_random() % 2 == 0) {
            return true;
        }
        const std::size_t blocks = m_random() % 2000 == 0 ? skewed(2048) : skewed(2) / 2;
        return blocks == 0 || ::posix_fallocate(file, 0, static_cast<off_t>(blocks) * kBlock) == 0;
    }

    std::mt19937_64 m_random{kSeed};
    std::size_t m_itemsLeft;
    std::uint64_t m_nextNumber = 1;
    std::vector<std::string> m_folders{"."};
    std::string m_lastFile;
};

} // namespace

int main(int argc, char** argv)
{
    const std::span<char*> arguments(argv, static_cast<std::size_t>(argc));
    std::size_t items = 0;
    if (arguments.size() == 3) {
        const std::string_view text = arguments[2];
        std::from_chars(text.data(), text.data() + text.size(), items);
    }
    if (items == 0) {
        std::fputs("usage: GenerateTree FOLDER ITEMS (the folder must not exist)\n", stderr);
        return 2;
    }
    try {
        if (::mkdir(arguments[1], kFolderMode) != 0 || ::chdir(arguments[1]) != 0) {
            fail(arguments[1]);
        }
        TreeGenerator(items).run();
    } catch (const std::system_error& error) {
        std::fprintf(stderr, "GenerateTree: %s\n", error.what());
        return 1;
    }
    return 0;
}
