// SPDX-License-Identifier: MIT
#include "Layout/LevelRenderer.h"
#include "Layout/MultiLayoutObject.h"
#include "Model/Folder.h"
#include "Platform/Linux/LinuxFileManager.h"
#include "Platform/Linux/LinuxFileSystemAttributes.h"
#include "Platform/Linux/LinuxResourceValues.h"
#include "Scanning/Scanner.h"
#include "support/FakeMainThread.h"

#include <ftw.h>
#include <gtest/gtest.h>

#include <cstdint>
#include <map>
#include <string>

namespace tessera {
namespace {

constexpr const char* kRealFolder = "/usr";
constexpr std::uint64_t kBlockBytes = 512;
constexpr int kOpenFolders = 64;

using Totals = std::map<std::string, std::uint64_t>;

/// nftw(3) passes nothing on to its callback.
Totals& collectedTotals()
{
    static Totals totals;
    return totals;
}

void addToFoldersAbove(const std::string& path, std::uint64_t bytes)
{
    const std::size_t rootLength = std::string(kRealFolder).size();
    std::size_t slash = path.rfind('/');
    while (slash != std::string::npos && slash >= rootLength) {
        collectedTotals()[path.substr(0, slash)] += bytes;
        slash = slash == 0 ? std::string::npos : path.rfind('/', slash - 1);
    }
}

int addItem(const char* path, const struct stat* status, int kind, FTW* /*place*/)
{
    const bool isFolder = kind == FTW_D || kind == FTW_DNR;
    if (isFolder) {
        collectedTotals()[path] += 0;
    } else {
        addToFoldersAbove(path, static_cast<std::uint64_t>(status->st_blocks) * kBlockBytes);
    }
    return 0;
}

/// What each folder holds, by another walk than ours: all but folders, on the same mount.
const Totals& independentTotals()
{
    if (collectedTotals().empty()) {
        ::nftw(kRealFolder, addItem, kOpenFolders, FTW_PHYS | FTW_MOUNT);
    }
    return collectedTotals();
}

const TopFolder& scannedFolder()
{
    static const std::unique_ptr<TopFolder> kTree = [] {
        const LinuxFileManager fileManager;
        const LinuxResourceValues resourceValues;
        const LinuxFileSystemAttributes fileSystem;
        test::FakeMainThread mainThread;
        const auto scanner = Scanner::create(
            {fileManager, resourceValues, fileSystem, mainThread, [] { return 0.0; }, "/nobody"});
        scanner->scan(Url(kRealFolder, true));
        Scanner::waitForWorkers();
        return scanner->takeTopFolder();
    }();
    return *kTree;
}

void expectTotals(const Folder& folder, std::size_t& folders)
{
    ++folders;
    const auto expected = independentTotals().find(folder.absolutePath());
    ASSERT_NE(expected, independentTotals().end()) << folder.absolutePath();
    ASSERT_EQ(folder.totalAllocation(), expected->second) << folder.absolutePath();
    for (const File* child : folder.children()) {
        if (const auto* inner = nodeCast<Folder>(child)) {
            ASSERT_NO_FATAL_FAILURE(expectTotals(*inner, folders));
        }
    }
}

std::uint64_t independentSize(const File& file)
{
    if (!file.isFolder()) {
        struct stat status { };
        EXPECT_EQ(::lstat(file.absolutePath().c_str(), &status), 0);
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

void expectBoxes(const RenderedLevel& level, const Rect& area, std::size_t& boxes)
{
    const auto total = static_cast<double>(independentTotals().at(level.folder->absolutePath()));
    for (const auto& box : level.layoutItems) {
        ++boxes;
        const auto size = static_cast<double>(independentSize(*box));
        ASSERT_EQ(box->totalAllocation, size);
        ASSERT_NEAR(box->pixelCount, size / total * area.area(), area.area() * 1e-9);
    }
    for (const RenderedLevel& nested : level.nested) {
        const Rect inner{0, 0, nested.frame.width, nested.frame.height};
        ASSERT_NO_FATAL_FAILURE(expectBoxes(nested, inner, boxes));
    }
}

TEST(RealFolder, EveryFoldersTotalIsTheSumOfTheBlocksBelowIt)
{
    std::size_t folders = 0;
    expectTotals(scannedFolder(), folders);
    EXPECT_EQ(folders, independentTotals().size());
}

TEST(RealFolder, EveryBoxOfThePictureStandsForWhatAnotherWalkFinds)
{
    const Rect bounds{0, 0, 1600, 1000};
    auto& folder = const_cast<TopFolder&>(scannedFolder());
    std::size_t boxes = 0;
    expectBoxes(LevelRenderer(false).renderTop(&folder, bounds), bounds.inset(3, 3), boxes);
    EXPECT_GT(boxes, 20U);
}

} // namespace
} // namespace tessera
