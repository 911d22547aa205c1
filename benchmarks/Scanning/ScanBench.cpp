// SPDX-License-Identifier: MIT
// Walks a folder with the platform's enumerator and builds its tree as the scanner does; prints
// the time and the memory that it took.

#include "Model/Document.h"
#include "Model/TopFolder.h"
#include "Platform/Linux/Walk/HeapMemory.h"
#include "Platform/Linux/Walk/LinuxFileManager.h"

#include <sys/resource.h>
#include <unistd.h>

#include <chrono>
#include <cstdint>
#include <cstdio>
#include <fstream>
#include <memory>
#include <span>
#include <vector>

namespace {

using tessera::DirectoryItem;
using tessera::Document;
using tessera::Folder;
using tessera::makeNode;
using tessera::TopFolder;
using Clock = std::chrono::steady_clock;

constexpr double kBytesPerKilobyte = 1024;

/// Memory of the process that is its own, in bytes.
double residentBytes()
{
    double size = 0;
    double pages = 0;
    double shared = 0;
    std::ifstream("/proc/self/statm") >> size >> pages >> shared;
    return (pages - shared) * static_cast<double>(::sysconf(_SC_PAGESIZE));
}

double peakBytes()
{
    struct rusage usage { };
    ::getrusage(RUSAGE_SELF, &usage);
    return static_cast<double>(usage.ru_maxrss) * kBytesPerKilobyte;
}

std::uint64_t buildTree(const char* path, TopFolder& top)
{
    const tessera::LinuxFileManager fileManager;
    const auto enumerator = fileManager.enumerator(
        path, tessera::ItemKeys::SizeAndHidden, tessera::LinksToStart::Follow);
    std::vector<std::unique_ptr<Folder>> open;
    const auto current = [&]() -> Folder& { return open.empty() ? top : *open.back(); };
    const auto closeDownTo = [&](std::size_t depth) {
        while (open.size() > depth) {
            std::unique_ptr<Folder> done = std::move(open.back());
            open.pop_back();
            current().addChild(std::move(done));
        }
    };
    const auto fetch = [&](DirectoryItem& item) {
        const bool isThere = enumerator->next(item);
        if (const tessera::EnteredDirectory* const entered = enumerator->entered()) {
            current().setOwnAllocation(entered->allocatedBytes);
        }
        return isThere;
    };
    std::uint64_t items = 0;
    for (DirectoryItem item; fetch(item); ++items) {
        closeDownTo(item.level - 1);
        if (item.isDirectory) {
            open.push_back(makeNode<Folder>(item.name));
            open.back()->setHidden(item.isHidden);
            continue;
        }
        auto document = makeNode<Document>(item.name);
        document->setTotalAllocation(item.allocatedBytes);
        document->setHidden(item.isHidden);
        current().addChild(std::move(document));
    }
    closeDownTo(0);
    top.sort();
    return items;
}

double secondsSince(Clock::time_point start)
{
    return std::chrono::duration<double>(Clock::now() - start).count();
}

} // namespace

int main(int argc, char** argv)
{
    const std::span<char*> arguments(argv, static_cast<std::size_t>(argc));
    if (arguments.size() != 2) {
        std::fputs("usage: ScanBench FOLDER\n", stderr);
        return 2;
    }
    tessera::returnLargeBlocksAtOnce();
    const double before = residentBytes();
    const auto start = Clock::now();
    std::unique_ptr<TopFolder> top = makeNode<TopFolder>(arguments[1]);
    const std::uint64_t items = buildTree(arguments[1], *top);
    const double took = secondsSince(start);
    const double retained = residentBytes() - before;
    const double peak = peakBytes();
    const std::uintmax_t bytes = top->totalAllocation();
    const auto releaseStart = Clock::now();
    top.reset();
    const double perItem = items == 0 ? 1 : static_cast<double>(items);
    std::printf(
        "seconds %.4f items %ju bytes %ju retained/item %.1f peak/item %.1f release %.4f\n",
        took,
        std::uintmax_t{items},
        bytes,
        retained / perItem,
        peak / perItem,
        secondsSince(releaseStart));
    return 0;
}
