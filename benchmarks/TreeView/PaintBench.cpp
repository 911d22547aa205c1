// SPDX-License-Identifier: MIT
// Times painting the picture of a generated tree: PaintBench [FILES] [ROUNDS]
#include "Layout/LevelRenderer.h"
#include "Model/Document.h"
#include "Model/TopFolder.h"
#include "TreeView/TreeBranch.h"
#include "TreeView/TreePicture.h"

#include <QApplication>
#include <QImage>

#include <algorithm>
#include <chrono>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <random>
#include <string>
#include <vector>

using namespace tessera;

namespace {

constexpr unsigned kSeed = 20231;
constexpr long kMaxFilesInFolder = 48;

/// A tree deep and wide, with sizes as skewed as those of real disks, the same at every run.
class TreeGenerator {
public:
    std::unique_ptr<TopFolder> make(long files)
    {
        auto top = makeNode<TopFolder>("generated");
        fill(*top, files);
        top->sort();
        return top;
    }

    /// One folder that holds all the files itself.
    std::unique_ptr<TopFolder> makeWide(long files)
    {
        auto top = makeNode<TopFolder>("wide");
        addFiles(*top, files);
        top->sort();
        return top;
    }

private:
    /// Puts some of the files into the folder itself and shares the rest out among new folders.
    void fill(Folder& folder, long files)
    {
        long left = files - addFiles(folder, std::min(files, m_fileCount(m_random)));
        while (left > 0) {
            const long share
                = std::max(static_cast<long>(static_cast<double>(left) * m_share(m_random)), 1L);
            auto nested = makeNode<Folder>("folder " + std::to_string(left));
            fill(*nested, share);
            folder.addChild(std::move(nested));
            left -= share;
        }
    }

    long addFiles(Folder& folder, long count)
    {
        for (long i = 0; i < count; ++i) {
            auto file = makeNode<Document>("file-" + std::to_string(++m_filesMade) + ".data");
            file->setTotalAllocation(static_cast<std::uint64_t>(m_size(m_random)) + 1);
            folder.addChild(std::move(file));
        }
        return count;
    }

    long m_filesMade = 0;
    std::mt19937 m_random{kSeed};
    std::uniform_int_distribution<long> m_fileCount{0, kMaxFilesInFolder};
    std::uniform_real_distribution<double> m_share{0.1, 0.6};
    std::lognormal_distribution<double> m_size{9, 2};
};

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

void report(Folder& top, QSize size, double scale, int rounds)
{
    using Clock = std::chrono::steady_clock;
    const LevelRenderer renderer(false);
    std::vector<double> layouts;
    std::vector<double> paintings;
    double first = 0;
    std::size_t boxes = 0;
    for (int round = 0; round < rounds; ++round) {
        // Each round is another window size, as in resizing, so that no line is cut as before.
        const double width = size.width() - round % 8;
        const auto begin = Clock::now();
        const auto branch = TreeBranch::make(
            renderer.renderTop(&top, {0, 0, width, static_cast<double>(size.height())}), nullptr);
        const auto laidOut = Clock::now();
        const QImage image = paintTreePicture(*branch, QSizeF(width, size.height()), scale);
        const double painting = milliseconds(Clock::now() - laidOut);
        first = round == 0 ? painting : first;
        layouts.push_back(milliseconds(laidOut - begin));
        paintings.push_back(painting);
        boxes = boxCount(*branch);
    }
    std::printf(
        "%5dx%-5d scale %.1f  %6zu boxes  layout %6.2f ms  painting %6.2f ms (first %.2f)\n",
        size.width(),
        size.height(),
        scale,
        boxes,
        median(layouts),
        median(paintings),
        first);
}

} // namespace

int main(int argc, char** argv)
{
    const QApplication application(argc, argv);
    constexpr long kFiles = 1000000;
    constexpr long kBoxes = 8000;
    constexpr int kRounds = 41;
    const long files = argc > 1 ? std::strtol(argv[1], nullptr, 10) : kFiles;
    const int rounds = argc > 2 ? static_cast<int>(std::strtol(argv[2], nullptr, 10)) : kRounds;
    const auto deep = TreeGenerator().make(files);
    report(*deep, {1920, 1200}, 1, rounds);
    report(*deep, {3840, 2400}, 1, rounds);
    report(*deep, {1920, 1200}, 2, rounds);
    report(*deep, {1280, 800}, 1.5, rounds);
    std::printf("one folder of %ld files\n", files);
    const auto wide = TreeGenerator().makeWide(files);
    report(*wide, {1920, 1200}, 1, rounds);
    // Few files are all large enough for boxes of their own: as many as a picture can hold.
    std::printf("one folder of boxes alone\n");
    const auto boxes = TreeGenerator().makeWide(std::min(files, kBoxes));
    report(*boxes, {1920, 1200}, 1, rounds);
    return 0;
}
