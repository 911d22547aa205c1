// SPDX-License-Identifier: MIT
#include "Layout/LevelRenderer.h"
#include "Model/Document.h"
#include "Model/Folder.h"
#include "TreeScreen/Picture/TreePainter.h"
#include "support/LevelPainting.h"
#include "support/LevelPicture.h"
#include "support/Machine/WithoutThreads.h"
#include "support/MakeTree.h"
#include "support/ParameterNames.h"

#include <QPainter>

#include <gtest/gtest.h>

#include <cmath>
#include <random>
#include <string>
#include <tuple>

namespace tessera {
namespace {

/// Levels at random: every kind of box in a grid of cells, at any quarter of a point.
class RandomLevel {
public:
    explicit RandomLevel(unsigned seed)
        : m_random(seed)
    {
        for (int i = 0; i < kCount; ++i) {
            addNodes();
        }
    }

    /// This object must live as long as the picture.
    void addTo(test::LevelPicture& picture)
    {
        std::size_t next = 0;
        // Cells are too low for a label of two lines, and names are empty: no text at all.
        for (double y = 1; y < 400; y += kCellHeight) {
            for (double x = 1; x < 500; x += kCellWidth, ++next) {
                addBox(picture, next % m_nodes.size(), {x, y, kCellWidth, kCellHeight});
            }
        }
    }

private:
    static constexpr int kCount = 8;
    static constexpr double kCellWidth = 63;
    static constexpr double kCellHeight = 57;

    void addNodes()
    {
        m_nodes.push_back(makeNode<Folder>({}));
        m_nodes.push_back(makeNode<Document>({}));
        m_nodes.push_back(makeNode<Folder>({}));
        m_nodes.push_back(makeNode<Document>({}));
        m_nodes.push_back(makeNode<Document>({}));
        for (const auto& node : m_nodes) {
            node->setHue(static_cast<std::uint8_t>(m_random() % 7));
            node->setSelected(m_random() % 4 == 0);
        }
    }

    double quarters(double from, double to)
    {
        std::uniform_real_distribution<double> distribution(from, to);
        return std::round(distribution(m_random) * 4) / 4;
    }

    void addBox(test::LevelPicture& picture, std::size_t index, const Rect& cell)
    {
        // Small boxes are the difficult ones.
        const bool isSmall = m_random() % 2 == 0;
        const Rect rect{
            cell.x + quarters(1, 3),
            cell.y + quarters(1, 3),
            quarters(1, isSmall ? 12 : cell.width - 4),
            quarters(1, isSmall ? 12 : cell.height - 4)};
        if (m_random() % 4 == 0) {
            picture.addGroup({m_nodes[index].get()}, rect);
        } else {
            picture.add(m_nodes[index].get(), rect);
        }
    }

    std::mt19937 m_random;
    std::vector<std::unique_ptr<File>> m_nodes;
};

class PaintedLikeReference : public testing::TestWithParam<std::tuple<long, double>> { };

TEST_P(PaintedLikeReference, EveryKindOfBoxAtAnySizeAndPlace)
{
    const auto [level, scale] = GetParam();
    // QPainter flattens small curves differently from place to place within a pixel.
    const int tolerance = scale == std::floor(scale) ? 12 : 24;
    for (unsigned seed = 0; seed < 6; ++seed) {
        RandomLevel nodes(seed);
        test::LevelPicture painted(level, scale);
        nodes.addTo(painted);
        painted.paint();
        const QImage fast = painted.image();
        painted.paintReference();
        EXPECT_LE(test::greatestDifference(fast, painted.image()), tolerance) << "seed " << seed;
    }
}

INSTANTIATE_TEST_SUITE_P(
    LevelsAndScales,
    PaintedLikeReference,
    testing::Combine(testing::Values(0L, 1L, 3L), testing::Values(1.0, 1.25, 1.5, 2.0)),
    test::kNameOfLevelAndScale);

void drawWithoutShortcuts(const TreeBranch& branch, QPainter& painter)
{
    painter.save();
    painter.translate(branch.frame().x, branch.frame().y);
    test::paintWholeLevel(painter, branch, FolderTitles::NamesAndSizes);
    for (const auto& nested : branch.subBranches()) {
        drawWithoutShortcuts(*nested, painter);
    }
    painter.restore();
}

TEST(TreePainter, LooksAsIfEveryLevelWasPaintedInFull)
{
    const auto top = test::makeTree(
        "/disk",
        "a/ ( b/ ( c/ ( d/ ( e:50 f:9 g/ ( h:40 ) ) i:8 j:1 k:1 ) l:30 ) m/ ( n:70 o:30 ) ) p:90 "
        "q/ ( r/ ( s/ ( t:80 ) u:1 ) v/ ( w:50 ) )");
    TreePainter treePainter;
    for (const double scale : {1.0, 1.5, 2.0}) {
        const auto branch
            = TreeBranch::make(LevelRenderer(false).renderTop(top.get(), {0, 0, 800, 600}));
        const QImage picture
            = treePainter.paint(*branch, QSizeF(800, 600), scale, FolderTitles::NamesAndSizes);
        QImage plain(picture.size(), QImage::Format_RGB32);
        plain.setDevicePixelRatio(scale);
        plain.fill(Qt::black);
        QPainter painter(&plain);
        drawWithoutShortcuts(*branch, painter);
        painter.end();
        EXPECT_LE(test::greatestDifference(picture, plain), 2) << "scale " << scale;
    }
}

TEST(TreePainter, PaintsTheSameWhereThereIsNoThreadToHelp)
{
    const auto top = test::makeTree("/disk", "a/ ( b/ ( c:50 d:9 ) e:40 ) f:30 g/ ( h:80 )");
    const auto branch
        = TreeBranch::make(LevelRenderer(false).renderTop(top.get(), {0, 0, 800, 600}));
    TreePainter treePainter;
    const QImage usual
        = treePainter.paint(*branch, QSizeF(800, 600), 1.0, FolderTitles::NamesAndSizes);
    QImage alone;
    EXPECT_TRUE(test::withoutThreads([&] {
        alone = treePainter.paint(*branch, QSizeF(800, 600), 1.0, FolderTitles::NamesAndSizes);
    }));
    EXPECT_EQ(alone, usual);
}

} // namespace
} // namespace tessera
