// SPDX-License-Identifier: MIT
// Times the main thread's work from a move of the pointer over the map to the tooltip in its place
// and painted: HoverBench [ITEMS] [MOVES]
#include "DeadMounts/DeadMountLimits.h"
#include "Layout/LevelRenderer.h"
#include "Model/Defaults.h"
#include "Platform/Linux/Mounts/LinuxResourceValues.h"
#include "Platform/Qt/SettingsUserDefaults.h"
#include "TreeScreen/Map/TreeMapView.h"
#include "TreeScreen/Picture/TreeBranch.h"
#include "TreeScreen/Tooltip/TooltipController.h"
#include "Widgets/DesktopIconProvider.h"
#include "support/GeneratedTree.h"

#include <QApplication>
#include <QMouseEvent>
#include <QTemporaryDir>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <random>
#include <vector>

using namespace tessera;

namespace {

using Clock = std::chrono::steady_clock;

constexpr std::size_t kItems = 1'000'000;
constexpr std::size_t kMoves = 2000;
constexpr QSize kMapSize{1920, 1200};
constexpr unsigned kSeed = 20231;
constexpr int kAwayFromEdge = 4; ///< outside the map's margin, where there are no boxes

/// Counts how often a widget, or anything in it that it shines through, is painted.
class PaintCounter final : public QObject {
public:
    explicit PaintCounter(QObject& watched) { watched.installEventFilter(this); }

    bool eventFilter(QObject* /*watched*/, QEvent* event) override
    {
        m_count += event->type() == QEvent::Paint ? 1 : 0;
        return false;
    }

    std::size_t count() const { return m_count; }

private:
    std::size_t m_count = 0;
};

/// Moves the pointer over a map and keeps what each move took, by what it led to.
class Hovering {
public:
    Hovering(TreeMapView& map, const PaintCounter& paints)
        : m_map(map)
        , m_paints(paints)
    {
    }

    void moveTo(QPoint point)
    {
        const LayoutObject* const shownBefore = m_map.currentToolTip();
        const std::size_t paintsBefore = m_paints.count();
        QMouseEvent event(
            QEvent::MouseMove,
            point,
            m_map.mapToGlobal(QPointF(point)),
            Qt::NoButton,
            Qt::NoButton,
            Qt::NoModifier);
        const auto begin = Clock::now();
        QCoreApplication::sendEvent(&m_map, &event);
        QCoreApplication::processEvents();
        const std::chrono::duration<double, std::milli> took = Clock::now() - begin;
        if (m_map.currentToolTip() == shownBefore) {
            m_sameBox.push_back(took.count());
            return;
        }
        m_otherBox.push_back(took.count());
        m_unpainted += m_paints.count() == paintsBefore ? 1 : 0;
    }

    void report(const char* picture)
    {
        print(picture, "other", m_otherBox);
        print(picture, "same", m_sameBox);
    }

    /// Whether both kinds of move came about and the tooltip was painted each time it had to be.
    bool isValid() const { return !m_otherBox.empty() && !m_sameBox.empty() && m_unpainted == 0; }

private:
    static void print(const char* picture, const char* kind, std::vector<double>& times)
    {
        constexpr std::size_t kPercent = 100;
        constexpr std::size_t kHigh = 95;
        if (times.empty()) {
            return;
        }
        std::sort(times.begin(), times.end());
        std::printf(
            "%s %s box  %zu moves  median %.3f ms, 95th percentile %.3f ms, longest %.3f ms\n",
            picture,
            kind,
            times.size(),
            times[times.size() / 2],
            times[times.size() * kHigh / kPercent],
            times.back());
    }

    TreeMapView& m_map;
    const PaintCounter& m_paints;
    std::vector<double> m_otherBox;
    std::vector<double> m_sameBox;
    std::size_t m_unpainted = 0;
};

void showTree(TreeMapView& map, Folder& tree)
{
    const Rect bounds{
        0, 0, static_cast<double>(kMapSize.width()), static_cast<double>(kMapSize.height())};
    map.resize(kMapSize);
    map.addBranch(TreeBranch::make(LevelRenderer(false).renderTop(&tree, bounds)));
    map.show();
    map.activateWindow();
    QCoreApplication::processEvents();
}

/// Jumps to places all over the map, and at each goes one point further.
void hoverAllOver(Hovering& hovering, std::size_t moves)
{
    std::mt19937 random(kSeed);
    std::uniform_int_distribution<int> x(kAwayFromEdge, kMapSize.width() - 2 * kAwayFromEdge);
    std::uniform_int_distribution<int> y(kAwayFromEdge, kMapSize.height() - 2 * kAwayFromEdge);
    for (std::size_t i = 0; i < moves; ++i) {
        const int column = x(random);
        const QPoint place(column, y(random));
        hovering.moveTo(place);
        hovering.moveTo(place + QPoint(1, 0));
    }
}

/// Whether the figures it prints stand for anything.
bool measure(const char* picture, Folder& tree, const UserDefaults& defaults, std::size_t moves)
{
    TreeMapView map(defaults);
    showTree(map, tree);
    const PaintCounter paints(TooltipController::sharedInstance().window());
    Hovering hovering(map, paints);
    hoverAllOver(hovering, moves);
    hovering.report(picture);
    return hovering.isValid();
}

} // namespace

int main(int argc, char** argv)
{
    const QApplication application(argc, argv);
    const std::size_t items = argc > 1 ? std::strtoul(argv[1], nullptr, 10) : kItems; // NOLINT
    const std::size_t moves = argc > 2 ? std::strtoul(argv[2], nullptr, 10) : kMoves; // NOLINT
    const QTemporaryDir settingsFolder;
    SettingsUserDefaults defaults(settingsFolder.filePath(QStringLiteral("settings.ini")));
    registerDefaults(defaults);
    const LinuxResourceValues resourceValues(
        std::make_shared<const FileSystemQuestions>(kMainThreadPatience));
    DesktopIconProvider icons;
    TooltipController& tooltip = TooltipController::sharedInstance();
    tooltip.setResourceValues(&resourceValues);
    tooltip.setIconProvider(&icons);

    const bool isValid = measure("tree", *bench::generateTree(items), defaults, moves)
        && measure("flat", *bench::generateFlatFolder(items), defaults, moves);
    tooltip.setIconProvider(nullptr);
    if (!isValid) {
        std::fputs("HoverBench: the tooltip did not follow the pointer\n", stderr);
        return EXIT_FAILURE;
    }
    return EXIT_SUCCESS;
}
