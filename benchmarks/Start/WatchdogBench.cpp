// SPDX-License-Identifier: MIT
// Runs the program, goes through all that a user can do while a folder's tree is shown, and tells
// for how long the main thread was out of reach at the worst: WatchdogBench FOLDER [FILES]
#include "Desktop/RunningInstance.h"
#include "Model/UserDefaults.h"
#include "PlatformLaunchServices.h"
#include "Start/EventLoopWatch.h"
#include "Start/Launch.h"
#include "Start/OwnHome.h"
#include "Start/UserSession.h"

#include <QApplication>
#include <QTemporaryDir>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <functional>
#include <set>
#include <span>
#include <utility>

using namespace tessera;
using bench::EventLoopWatch;

namespace {

constexpr std::size_t kFiles = 100'000;
constexpr std::size_t kLinksToAFile = 1000; ///< file systems allow some ten thousand
constexpr std::size_t kFileBytes = 4096;
constexpr std::size_t kShown = 10;
constexpr const char* kStart = "start";

/// No matter what else runs in the session.
class OnlyInstance final : public RunningInstance {
public:
    [[nodiscard]] bool handOver(const Url& /*folder*/) override { return false; }
    void setHandler(Handler /*handler*/) override { }
    void giveUp() override { }
};

bench::SessionFolders makeFolders(const std::filesystem::path& tree, const QTemporaryDir& home)
{
    bench::SessionFolders folders;
    folders.tree = std::filesystem::canonical(tree).string();
    const auto scratch = std::filesystem::path(home.path().toStdString()) / "scratch";
    folders.scratch = scratch.string();
    folders.doomed = (scratch / "doomed").string();
    return folders;
}

/// Many links to few files take a disk little room and time.
void fill(const std::filesystem::path& folder, std::size_t files)
{
    std::filesystem::create_directories(folder);
    std::filesystem::path linked;
    for (std::size_t i = 0; i < files; ++i) {
        const auto path = folder / ("file-" + std::to_string(i));
        if (i % kLinksToAFile == 0) {
            std::ofstream(path) << std::string(kFileBytes, 'x');
            linked = path;
        } else {
            std::filesystem::create_hard_link(linked, path);
        }
    }
}

void print(const char* what, const EventLoopWatch::Hold& hold)
{
    std::printf(
        "%s %.1f ms, %.1f ms of it at work: %s\n",
        what,
        hold.milliseconds,
        hold.ownMilliseconds,
        hold.activity.c_str());
}

/// The longest ones of all, then the most work of each activity. The start is left out: there is
/// nothing on the screen yet that could react.
void report(std::vector<EventLoopWatch::Hold> holds)
{
    std::erase_if(holds, [](const auto& hold) { return hold.activity == kStart; });
    std::ranges::sort(holds, std::greater(), &EventLoopWatch::Hold::milliseconds);
    for (const auto& hold : std::span(holds).first(std::min(holds.size(), kShown))) {
        print("longest", hold);
    }
    std::ranges::sort(holds, std::greater(), &EventLoopWatch::Hold::ownMilliseconds);
    std::set<std::string> shown;
    for (const auto& hold : holds) {
        if (shown.insert(hold.activity).second) {
            print("busiest", hold);
        }
    }
}

bool measure(const bench::SessionFolders& folders)
{
    PlatformServices services = makePlatformServices();
    services.runningInstance = std::make_unique<OnlyInstance>();
    // A question would hold the session up until somebody answers it.
    services.userDefaults->setBoolean(kWarnDeleteSystemKey, false);
    EventLoopWatch watch;
    watch.setActivity(kStart);
    const bench::UserSession session(folders, watch);
    CommandLine commandLine;
    commandLine.action = CommandLine::Action::ShowWindow;
    const LaunchServices launched = launchServices(services);
    const int status = launch(commandLine, launched);
    report(watch.finish());
    services.mainThread->close();
    launched.scanEnvironment.workers->waitForNone();
    if (!session.problem().empty()) {
        std::fprintf(stderr, "WatchdogBench: %s\n", session.problem().c_str());
    }
    return status == 0;
}

} // namespace

int main(int argc, char** argv)
{
    if (argc < 2) {
        std::fputs("usage: WatchdogBench FOLDER [FILES]\n", stderr);
        return 2;
    }
    const std::size_t files = argc > 2 ? std::strtoul(argv[2], nullptr, 10) : kFiles; // NOLINT
    const QTemporaryDir home;
    const bench::SessionFolders folders = makeFolders(argv[1], home); // NOLINT
    fill(folders.doomed, files);
    fill(folders.scratch + "/kept", 1);
    bench::liveIn(home);
    logQtFailuresOnly();
    const QApplication application(argc, argv);
    return measure(folders) ? EXIT_SUCCESS : EXIT_FAILURE;
}
