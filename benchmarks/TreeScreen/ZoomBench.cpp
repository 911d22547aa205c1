// SPDX-License-Identifier: MIT
// Scans a folder, zooms into the folders that its picture shows and out of them, and counts the
// pictures that come to the screen meanwhile: ZoomBench FOLDER [ZOOMS]
#include "Basket/BasketKeeper.h"
#include "Model/RootModel.h"
#include "Platform/PlatformServices.h"
#include "Scanning/ScanEnvironment.h"
#include "Scanning/Scanner.h"
#include "Scanning/ScannerDelegate.h"
#include "TreeScreen/Map/TreeMapView.h"
#include "TreeScreen/Picture/TreeBranch.h"
#include "TreeScreen/TreeViewController.h"
#include "TreeScreen/TreeViewServices.h"
#include "Undo/DiskChanges.h"
#include "Undo/TrashUndo.h"
#include "Widgets/DesktopIconProvider.h"
#include "Widgets/MessageBoxAlert.h"

#include <QApplication>
#include <QEventLoop>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <memory>
#include <vector>

using namespace tessera;

namespace {

constexpr std::size_t kZooms = 10;
constexpr QSize kSmallMap{1920, 1200};
constexpr QSize kLargeMap{3840, 2400};
constexpr std::size_t kPercent = 100;
constexpr std::size_t kHighPercent = 95;
constexpr double kMilliseconds = 1000;

/// A desktop without wishes.
class FullMotion final : public MotionPreference {
public:
    [[nodiscard]] bool reducesMotion() const override { return false; }
};

class ScanWaiter final : public ScannerDelegate {
public:
    std::unique_ptr<TopFolder> scan(const Url& folder, const ScanEnvironment& environment)
    {
        const std::shared_ptr<Scanner> scanner = Scanner::create(environment);
        scanner->setDelegate(this);
        scanner->scan(folder);
        m_loop.exec();
        return scanner->takeTopFolder();
    }

    void scanUpdated(Scanner& /*scanner*/) override { }
    void scanEnded(Scanner& /*scanner*/) override { m_loop.quit(); }
    void scanCancelled(Scanner& /*scanner*/) override { m_loop.quit(); }
    void scanFailed(Scanner& /*scanner*/, const std::error_code& /*problem*/) override
    {
        m_loop.quit();
    }

private:
    QEventLoop m_loop;
};

/// Notes when the map is painted.
class PaintTimes final : public QObject {
public:
    explicit PaintTimes(TreeMapView& map) { map.installEventFilter(this); }

    bool eventFilter(QObject* /*watched*/, QEvent* event) override
    {
        if (event->type() == QEvent::Paint) {
            m_times.push_back(FrameClock::steadySeconds());
        }
        return false;
    }

    std::vector<double> takeTimes() { return std::exchange(m_times, {}); }

private:
    std::vector<double> m_times;
};

/// Zooms and keeps how long each picture stayed until the next one.
class Zooming {
public:
    explicit Zooming(TreeMapView& map)
        : m_map(map)
        , m_frames(map)
    {
    }

    template <typename Start>
    void zoom(Start start)
    {
        (void)m_frames.takeTimes();
        const double begin = FrameClock::steadySeconds();
        start();
        m_started.push_back((FrameClock::steadySeconds() - begin) * kMilliseconds);
        while (m_map.isZooming()) {
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        }
        note(m_frames.takeTimes());
        QCoreApplication::processEvents();
    }

    bool report()
    {
        if (m_started.empty() || m_frameTimes.empty()) {
            return false;
        }
        for (auto* figures : {&m_started, &m_frameTimes, &m_rates}) {
            std::sort(figures->begin(), figures->end());
        }
        std::printf(
            "zoom %dx%d  %zu zooms  frames/s median %.1f, least %.1f  frame median %.2f ms, 95th "
            "percentile %.2f ms, longest %.2f ms  start median %.2f ms\n",
            m_map.width(),
            m_map.height(),
            m_rates.size(),
            middle(m_rates),
            m_rates.front(),
            middle(m_frameTimes),
            m_frameTimes[m_frameTimes.size() * kHighPercent / kPercent],
            m_frameTimes.back(),
            middle(m_started));
        return true;
    }

private:
    static double middle(const std::vector<double>& sorted) { return sorted[sorted.size() / 2]; }

    void note(const std::vector<double>& times)
    {
        m_rates.push_back(static_cast<double>(times.size()) / ZoomAnimation::kSeconds);
        for (std::size_t i = 1; i < times.size(); ++i) {
            m_frameTimes.push_back((times[i] - times[i - 1]) * kMilliseconds);
        }
    }

    TreeMapView& m_map;
    PaintTimes m_frames;
    std::vector<double> m_rates;
    std::vector<double> m_frameTimes;
    std::vector<double> m_started;
};

/// The folders of the picture's upper two levels, those in the largest boxes first.
std::vector<Folder*> shownFolders(const TreeBranch& top)
{
    std::vector<const LayoutObject*> boxes;
    const auto add = [&boxes](const TreeBranch& branch) {
        for (const auto& item : branch.layoutItems()) {
            if (item->ref != nullptr && item->ref->isFolder()) {
                boxes.push_back(item.get());
            }
        }
    };
    add(top);
    for (const auto& nested : top.subBranches()) {
        add(*nested);
    }
    std::ranges::stable_sort(
        boxes, std::greater(), [](const LayoutObject* box) { return box->rect.area(); });
    std::vector<Folder*> folders;
    std::ranges::transform(boxes, std::back_inserter(folders), [](const LayoutObject* box) {
        return static_cast<Folder*>(box->ref);
    });
    return folders;
}

ScanEnvironment scanEnvironment(const PlatformServices& services)
{
    return {
        .fileManager = *services.fileManager,
        .resourceValues = *services.resourceValues,
        .fileSystemAttributes = *services.fileSystemAttributes,
        .mainThread = *services.mainThread,
        .clock = services.clock,
        .homeDirectory = services.userAccount->homeDirectory()};
}

/// Whether the figures it prints stand for anything.
bool zoomInAndOut(TreeMapView& map, TreeViewController& controller, QSize size, std::size_t zooms)
{
    const std::vector<Folder*> folders = shownFolders(*map.branches().front());
    if (folders.empty() || map.size() != size) {
        return false;
    }
    Folder& whole = *controller.currentFolder();
    Zooming zooming(map);
    for (std::size_t i = 0; i < zooms; i += 2) {
        Folder& folder = *folders[i / 2 % folders.size()];
        zooming.zoom([&] { controller.zoomInFolder(folder); });
        zooming.zoom([&] { controller.zoomOutFolder(whole); });
    }
    return zooming.report();
}

/// Which no zoom makes.
struct Changes {
    Changes(const PlatformServices& services, Alert& alert)
        : undo(*services.workspace, alert, told)
        , basket(services.itemStates, *services.mainThread)
    {
    }

    CompressServices compressing(
        const PlatformServices& services, IconProvider& icons, Alert& alert)
    {
        return {
            .archiver = services.archiver,
            .makeTask = services.makeTask,
            .workspace = *services.workspace,
            .resourceValues = WithTimeLimit(*services.withTimeLimit.resourceValues),
            .icons = icons,
            .targetsInUse = targetsInUse,
            .alert = alert,
            .itemChanges = services.itemChanges,
            .itemStates = services.itemStates};
    }

    DiskChanges told;
    TrashUndo undo;
    BasketKeeper basket;
    std::set<std::string> targetsInUse;
};

bool measure(
    RootModel& model,
    const PlatformServices& services,
    const ScanEnvironment& environment,
    QSize size,
    std::size_t zooms)
{
    TreeMapView map(*services.userDefaults);
    map.resize(size);
    map.show();
    const FullMotion motion;
    MessageBoxAlert alert;
    DesktopIconProvider icons;
    Changes changes{services, alert};
    TreeViewController controller(
        model,
        map,
        {.scanEnvironment = environment,
         .resourceValues = WithTimeLimit(*services.withTimeLimit.resourceValues),
         .fileSystemAttributes = WithTimeLimit(*services.withTimeLimit.fileSystemAttributes),
         .defaults = *services.userDefaults,
         .workspace = *services.workspace,
         .otherPrograms = *services.otherPrograms,
         .alert = alert,
         .compressing = changes.compressing(services, icons, alert),
         .motion = motion,
         .diskChanges = changes.told,
         .trashUndo = changes.undo,
         .basket = changes.basket,
         .checkFolder = [](const std::string&) { return std::error_code(); }});
    QCoreApplication::processEvents();
    return zoomInAndOut(map, controller, size, zooms);
}

bool measureFolder(const char* folder, std::size_t zooms)
{
    const PlatformServices services = makePlatformServices();
    const ScanEnvironment environment = scanEnvironment(services);
    RootModel model(
        {.defaults = *services.userDefaults,
         .recentDocuments = *services.recentDocuments,
         .standardFolders = *services.standardFolders});
    model.setTopFolder(
        ScanWaiter().scan(Url(services.fileAccess->absolutePath(folder), true), environment));
    const bool isValid = measure(model, services, environment, kSmallMap, zooms)
        && measure(model, services, environment, kLargeMap, zooms);
    services.mainThread->close();
    environment.workers->waitForNone();
    return isValid;
}

} // namespace

int main(int argc, char** argv)
{
    const QApplication application(argc, argv);
    if (argc < 2) {
        std::fputs("usage: ZoomBench FOLDER [ZOOMS]\n", stderr);
        return 2;
    }
    const std::size_t zooms = argc > 2 ? std::strtoul(argv[2], nullptr, 10) : kZooms; // NOLINT
    if (!measureFolder(argv[1], zooms)) { // NOLINT
        std::fputs("ZoomBench: there was nothing to zoom into\n", stderr);
        return EXIT_FAILURE;
    }
    return EXIT_SUCCESS;
}
