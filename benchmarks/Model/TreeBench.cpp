// SPDX-License-Identifier: MIT
// Times changes to a finished tree, and its release: TreeBench [ITEMS]
#include "Ledger/FoundSpace.h"
#include "Model/Document.h"
#include "Model/TopFolder.h"
#include "support/GeneratedTree.h"

#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <memory>

using namespace tessera;

namespace {

using Clock = std::chrono::steady_clock;

constexpr std::size_t kDefaultItems = 1'000'000;

double millisecondsSince(Clock::time_point begin)
{
    return std::chrono::duration<double, std::milli>(Clock::now() - begin).count();
}

Folder& crowdedFolder(const Folder& top)
{
    for (File* child : top.children()) {
        if (child->name().substr(0, bench::kCrowdedPrefix.size()) == bench::kCrowdedPrefix) {
            return static_cast<Folder&>(*child);
        }
    }
    std::fputs("TreeBench: the tree has no crowded folder\n", stderr);
    // NOLINTNEXTLINE(concurrency-mt-unsafe): there is one thread
    std::exit(EXIT_FAILURE);
}

double timeReplacing(Folder& top, std::size_t files)
{
    auto fresh = bench::generateFlatFolder(files);
    Folder& stale = crowdedFolder(top);
    const auto begin = Clock::now();
    top.replaceChild(stale, std::move(fresh));
    return millisecondsSince(begin);
}

double timeRemoving(Folder& top)
{
    Folder& folder = crowdedFolder(top);
    File& child = *folder.children()[folder.children().size() / 2];
    const auto begin = Clock::now();
    folder.removeChild(child);
    return millisecondsSince(begin);
}

double timeAddingUp(const TopFolder& top)
{
    const auto begin = Clock::now();
    const FoundSpace found = foundSpace(top);
    const double took = millisecondsSince(begin);
    if (found.files != top.totalAllocation()) {
        std::fputs("TreeBench: the files do not add up to the tree\n", stderr);
        std::exit(EXIT_FAILURE); // NOLINT(concurrency-mt-unsafe): there is one thread
    }
    return took;
}

} // namespace

int main(int argc, char** argv)
{
    const std::size_t items
        = argc > 1 ? std::strtoul(argv[1], nullptr, 10) : kDefaultItems; // NOLINT
    std::unique_ptr<TopFolder> tree = bench::generateTree(items);
    const double addingUp = timeAddingUp(*tree);
    const double removing = timeRemoving(*tree);
    const double replacing = timeReplacing(*tree, items / 10);
    const auto begin = Clock::now();
    tree.reset();
    const double releasing = millisecondsSince(begin);
    std::printf(
        "releasing %zu items %.1f ms, replacing a folder of %zu %.1f ms, "
        "removing one of %zu siblings %.1f ms, adding up the space of all %.1f ms\n",
        items,
        releasing,
        items / 10,
        replacing,
        items / 10,
        removing,
        addingUp);
    return EXIT_SUCCESS;
}
