// SPDX-License-Identifier: MIT
#include "EndToEnd/Session/ScanFolder.h"
#include "Layout/LevelRenderer.h"
#include "Layout/MultiLayoutObject.h"
#include "Model/Folder.h"
#include "Model/NodeLookup.h"

#include <ftw.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>
#include <cstdint>
#include <map>
#include <set>
#include <string>
#include <utility>
#include <vector>

namespace tessera {
namespace {

constexpr const char* kRealFolder = "/usr";
constexpr std::uint64_t kBlockBytes = 512;
constexpr int kOpenFolders = 64;

using Totals = std::map<std::string, std::uint64_t>;

/// A file with several names, all of which may be met.
struct LinkedFile {
    std::uint64_t bytes = 0;
    std::vector<std::string> names;
};

/// What another walk than ours finds. nftw(3) passes nothing on to its callback.
struct Collected {
    Totals totals;
    std::map<std::pair<dev_t, ino_t>, LinkedFile> linkedFiles;
    std::set<std::string> countedNames; ///< of files with several, those that have the size
};

Collected& collected()
{
    static Collected all;
    return all;
}

void addToFoldersAbove(const std::string& path, std::uint64_t bytes)
{
    const std::size_t rootLength = std::string(kRealFolder).size();
    std::size_t slash = path.rfind('/');
    while (slash != std::string::npos && slash >= rootLength) {
        collected().totals[path.substr(0, slash)] += bytes;
        slash = slash == 0 ? std::string::npos : path.rfind('/', slash - 1);
    }
}

int addItem(const char* path, const struct stat* status, int kind, FTW* /*place*/)
{
    const bool isFolder = kind == FTW_D || kind == FTW_DNR;
    if (isFolder) {
        collected().totals[path] += 0;
        return 0;
    }
    const std::uint64_t bytes = static_cast<std::uint64_t>(status->st_blocks) * kBlockBytes;
    if (status->st_nlink > 1) {
        LinkedFile& file = collected().linkedFiles[{status->st_dev, status->st_ino}];
        file.bytes = bytes;
        file.names.emplace_back(path);
    } else {
        addToFoldersAbove(path, bytes);
    }
    return 0;
}

const TopFolder& scannedFolder()
{
    static const std::unique_ptr<TopFolder> kTree = test::scanFolder(kRealFolder);
    return *kTree;
}

/// The names of which the tree has sizes. Which of them it is to be nobody but the order of our own
/// walk says.
std::vector<std::string> countedNames(const LinkedFile& file)
{
    std::vector<std::string> counted;
    for (const std::string& name : file.names) {
        const File* const node = nodeAtPath(const_cast<TopFolder&>(scannedFolder()), name);
        if (node != nullptr && node->totalAllocation() != 0) {
            counted.push_back(name);
        }
    }
    return counted;
}

/// Each file counts once.
void addLinkedFiles()
{
    for (const auto& [identity, file] : collected().linkedFiles) {
        const std::vector<std::string> counted = countedNames(file);
        EXPECT_EQ(counted.size(), file.bytes == 0 ? 0U : 1U) << file.names.front();
        for (const std::string& name : counted) {
            addToFoldersAbove(name, file.bytes);
            collected().countedNames.insert(name);
        }
    }
}

/// What each folder holds, by another walk than ours: all but folders, on the same mount.
const Totals& independentTotals()
{
    if (collected().totals.empty()) {
        // NOLINTNEXTLINE(concurrency-mt-unsafe): no other thread is running
        ::nftw(kRealFolder, addItem, kOpenFolders, FTW_PHYS | FTW_MOUNT);
        addLinkedFiles();
    }
    return collected().totals;
}

bool hasExpectedTotal(const Folder& folder)
{
    const auto expected = independentTotals().find(folder.absolutePath());
    return expected != independentTotals().end() && folder.totalAllocation() == expected->second;
}

/// The paths of folders whose totals are wrong; counts all folders.
std::vector<std::string> wrongFolders(const Folder& top, std::size_t& folders)
{
    std::vector<std::string> wrong;
    std::vector<const Folder*> left{&top};
    while (!left.empty()) {
        const Folder& folder = *left.back();
        left.pop_back();
        ++folders;
        if (!hasExpectedTotal(folder)) {
            wrong.push_back(folder.absolutePath());
        }
        for (const File* child : folder.children()) {
            if (const auto* inner = nodeCast<Folder>(child)) {
                left.push_back(inner);
            }
        }
    }
    return wrong;
}

std::uint64_t independentSize(const File& file)
{
    if (!file.isFolder()) {
        struct stat status { };
        const std::string path = file.absolutePath();
        EXPECT_EQ(::lstat(path.c_str(), &status), 0);
        if (status.st_nlink > 1 && !collected().countedNames.contains(path)) {
            return 0;
        }
        return static_cast<std::uint64_t>(status.st_blocks) * kBlockBytes;
    }
    return independentTotals().at(file.absolutePath());
}

std::uint64_t independentSize(const LayoutObject& box)
{
    const auto* group = dynamic_cast<const MultiLayoutObject*>(&box);
    if (group == nullptr) {
        return independentSize(*box.ref);
    }
    std::uint64_t sum = 0;
    for (const File* member : group->refs) {
        sum += independentSize(*member);
    }
    return sum;
}

bool hasExpectedShare(const LayoutObject& box, double total, const Rect& area)
{
    constexpr double kTolerance = 1e-9;
    const auto size = static_cast<double>(independentSize(box));
    const double pixels = size / total * area.area();
    return box.totalAllocation == size
        && std::abs(box.pixelCount - pixels) <= area.area() * kTolerance;
}

/// How many boxes stand for another size than they should; counts all boxes.
std::size_t wrongBoxes(const RenderedLevel& level, const Rect& area, std::size_t& boxes)
{
    const auto total = static_cast<double>(independentTotals().at(level.folder->absolutePath()));
    std::size_t wrong = 0;
    for (const auto& box : level.layoutItems) {
        ++boxes;
        wrong += hasExpectedShare(*box, total, area) ? 0 : 1;
    }
    for (const RenderedLevel& nested : level.nested) {
        wrong += wrongBoxes(nested, {0, 0, nested.frame.width, nested.frame.height}, boxes);
    }
    return wrong;
}

TEST(RealFolder, EveryFoldersTotalIsTheSumOfTheBlocksBelowIt)
{
    std::size_t folders = 0;
    EXPECT_THAT(wrongFolders(scannedFolder(), folders), testing::IsEmpty());
    EXPECT_EQ(folders, independentTotals().size());
}

TEST(RealFolder, EveryBoxOfThePictureStandsForWhatAnotherWalkFinds)
{
    const Rect bounds{0, 0, 1600, 1000};
    auto& folder = const_cast<TopFolder&>(scannedFolder());
    std::size_t boxes = 0;
    const RenderedLevel top = LevelRenderer(false).renderTop(&folder, bounds);
    EXPECT_EQ(wrongBoxes(top, bounds.inset(3, 3), boxes), 0U);
    EXPECT_GT(boxes, 20U);
}

} // namespace
} // namespace tessera
