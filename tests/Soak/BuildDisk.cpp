// SPDX-License-Identifier: MIT
#include "BuildDisk.h"

#include "OddNames.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <system_error>
#include <vector>

namespace tessera::test {

namespace {

namespace fs = std::filesystem;

constexpr int kTopFolders = 14;
constexpr int kFoldersEach = 7;
constexpr int kFilesEach = 12;
constexpr int kLevels = 3;
constexpr int kFlatFiles = 3000;
constexpr int kBlock = 4096;
constexpr int kMostBlocks = 24;
constexpr int kDepth = 30;
constexpr std::size_t kLongestName = 255;
constexpr std::uintmax_t kSparseLength = 1ULL << 33U;
constexpr mode_t kMode = 0755;
constexpr int kKinds = 40;

class DiskBuilder {
public:
    DiskBuilder(fs::path root, Random& random)
        : m_root(std::move(root))
        , m_random(random)
    {
    }

    void build()
    {
        for (int i = 0; i < kTopFolders; ++i) {
            addFolder(m_root, kLevels);
        }
        addFlatFolder();
        addTooDeepFolder();
    }

private:
    std::string newName() { return oddName(m_random, m_number++); }

    void addFolder(const fs::path& parent, int levels)
    {
        const fs::path folder = parent / newName();
        fs::create_directory(folder);
        for (int i = m_random.below(kFilesEach); i >= 0; --i) {
            addItem(folder);
        }
        if (levels > 1) {
            for (int i = m_random.below(kFoldersEach); i >= 0; --i) {
                addFolder(folder, levels - 1);
            }
        }
        if (m_random.oneIn(kKinds)) {
            fs::permissions(folder, fs::perms::none);
            m_lastFile.clear();
        }
    }

    void addItem(const fs::path& folder)
    {
        const fs::path item = folder / newName();
        switch (m_random.below(kKinds)) {
        case 0:
            fs::create_symlink(m_random.oneIn(2) ? "/" : "nowhere", item);
            break;
        case 1:
            addFile(item, 0);
            fs::resize_file(item, kSparseLength);
            break;
        case 2:
            if (!m_lastFile.empty()) {
                fs::create_hard_link(m_lastFile, item);
            }
            break;
        case 3:
            fs::create_directory(item);
            break;
        default:
            addFile(item, m_random.below(kMostBlocks) * kBlock / 2);
            m_lastFile = item;
            break;
        }
    }

    static void addFile(const fs::path& path, int bytes)
    {
        std::ofstream(path) << std::string(static_cast<std::size_t>(bytes), 'x');
    }

    void addFlatFolder()
    {
        const fs::path folder = m_root / "flat";
        fs::create_directory(folder);
        for (int i = 0; i < kFlatFiles; ++i) {
            addFile(folder / newName(), i % kBlock);
        }
    }

    void addTooDeepFolder() const
    {
        const std::string name(kLongestName, 'd');
        int at = ::open(m_root.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
        for (int i = 0; i < kDepth && at >= 0; ++i) {
            ::mkdirat(at, name.c_str(), kMode);
            const int next = ::openat(at, name.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
            ::close(at);
            at = next;
        }
        if (at < 0) {
            throw std::system_error(errno, std::generic_category(), "no folder of that depth");
        }
        ::close(at);
    }

    const fs::path m_root;
    Random& m_random;
    int m_number = 0;
    fs::path m_lastFile;
};

} // namespace

void buildDisk(const std::string& path, Random& random)
{
    DiskBuilder(path, random).build();
}

} // namespace tessera::test
