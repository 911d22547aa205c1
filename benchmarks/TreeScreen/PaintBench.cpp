// SPDX-License-Identifier: MIT
// Times laying out and painting the picture of a generated tree, and says how much more of the
// processors the sizes in the titles of folders take: PaintBench [ITEMS] [ROUNDS]
#include "Layout/LevelRenderer.h"
#include "Model/TopFolder.h"
#include "TreeScreen/Picture/TreeBranch.h"
#include "TreeScreen/Picture/TreePainter.h"
#include "support/GeneratedTree.h"

#include <QApplication>
#include <QImage>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <memory>
#include <vector>

using namespace tessera;

namespace {

std::size_t boxCount(const TreeBranch& branch)
{
    std::size_t count = branch.layoutItems().size();
    for (const auto& nested : branch.subBranches()) {
        count += boxCount(*nested);
    }
    return count;
}

double milliseconds(const std::chrono::steady_clock::duration& duration)
{
    return std::chrono::duration<double, std::milli>(duration).count();
}

double median(std::vector<double> values)
{
    const auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
    std::nth_element(values.begin(), middle, values.end());
    return *middle;
}

/// What one window size takes, in milliseconds for each round.
struct Timings {
    std::vector<double> layouts; ///< with the release of the picture before, as in the program
    std::vector<double> paintings;
    std::vector<double> both;
};

void report(const char* name, Folder& top, QSize size, double scale, int rounds)
{
    using Clock = std::chrono::steady_clock;
    const LevelRenderer renderer(false);
    Timings timings;
    std::unique_ptr<TreeBranch> branch;
    TreePainter painter;
    for (int round = 0; round < rounds; ++round) {
        // Each round is another window size, as in resizing, so that no line is cut as before.
        const double width = size.width() - round % 8;
        const auto begin = Clock::now();
        branch = TreeBranch::make(
            renderer.renderTop(&top, {0, 0, width, static_cast<double>(size.height())}));
        const auto laidOut = Clock::now();
        const QImage image = painter.paint(
            *branch, QSizeF(width, size.height()), scale, FolderTitles::NamesAndSizes);
        const auto end = Clock::now();
        timings.layouts.push_back(milliseconds(laidOut - begin));
        timings.paintings.push_back(milliseconds(end - laidOut));
        timings.both.push_back(milliseconds(end - begin));
    }
    std::printf(
        "%s %dx%d@%g  %6zu boxes  layout %6.2f ms  painting %6.2f ms  renderTree %6.2f ms "
        "(first %.2f)\n",
        name,
        size.width(),
        size.height(),
        scale,
        boxCount(*branch),
        median(timings.layouts),
        median(timings.paintings),
        median(timings.both),
        timings.both.front());
}

/// Of the processors, by all threads: two paintings compare on a busy machine too.
double paintingTime(TreePainter& painter, const TreeBranch& branch, FolderTitles titles)
{
    const std::clock_t begin = std::clock();
    const QImage image
        = painter.paint(branch, QSizeF(branch.frame().width, branch.frame().height), 1, titles);
    return static_cast<double>(std::clock() - begin);
}

/// With the sizes and without, picture by picture in turn.
void reportTitles(const char* name, Folder& top, QSize size, int rounds)
{
    const LevelRenderer renderer(false);
    TreePainter withSizes;
    TreePainter withNames;
    std::vector<double> sizes;
    std::vector<double> names;
    for (int round = 0; round < rounds; ++round) {
        const double width = size.width() - round % 8;
        const auto branch = TreeBranch::make(
            renderer.renderTop(&top, {0, 0, width, static_cast<double>(size.height())}));
        sizes.push_back(paintingTime(withSizes, *branch, FolderTitles::NamesAndSizes));
        names.push_back(paintingTime(withNames, *branch, FolderTitles::Names));
    }
    std::printf(
        "%s %dx%d  sizes in titles: %.2f times the painting without\n",
        name,
        size.width(),
        size.height(),
        median(sizes) / median(names));
}

} // namespace

int main(int argc, char** argv)
{
    const QApplication application(argc, argv);
    constexpr std::size_t kItems = 1'000'000;
    constexpr std::size_t kBoxes = 8000;
    constexpr int kRounds = 41;
    const std::size_t items = argc > 1 ? std::strtoul(argv[1], nullptr, 10) : kItems; // NOLINT
    const int rounds
        = argc > 2 ? std::max(static_cast<int>(std::strtol(argv[2], nullptr, 10)), 1) : kRounds;
    const auto deep = bench::generateTree(items);
    report("tree", *deep, {1920, 1200}, 1, rounds);
    report("tree", *deep, {3840, 2400}, 1, rounds);
    reportTitles("tree", *deep, {1920, 1200}, rounds);
    report("tree", *deep, {1920, 1200}, 2, rounds);
    report("tree", *deep, {1280, 800}, 1.5, rounds);
    const auto flat = bench::generateFlatFolder(items);
    report("flat", *flat, {1920, 1200}, 1, rounds);
    // Few files are all large enough for boxes of their own: as many as a picture can hold.
    const auto boxes = bench::generateFlatFolder(std::min(items, kBoxes));
    report("boxes", *boxes, {1920, 1200}, 1, rounds);
    return 0;
}
