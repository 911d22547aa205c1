// SPDX-License-Identifier: MIT
#include "SoakRun.h"

#include "MainWindow/MainWindowController.h"
#include "Model/RootModel.h"
#include "ProgramChecks.h"
#include "Scanning/Scanner.h"
#include "Start/AppDelegate.h"
#include "TreeLines.h"
#include "TreeScreen/TreeViewController.h"

#include <QApplication>
#include <QTimer>

#include <algorithm>
#include <array>
#include <cstdio>

namespace tessera::test {

namespace {

using std::chrono::milliseconds;

/// Far beyond what anything takes on a busy machine with sanitizers.
constexpr std::chrono::seconds kStuck{120};

constexpr milliseconds kTurn{10};
constexpr int kMostTurnsBetweenActions = 6;
constexpr std::uint64_t kOtherSeed = 0x5eed;
constexpr std::uint64_t kThirdSeed = 0xfeed;

/// As often for each action, however long the run.
milliseconds mutatorPause(const SoakOptions& options)
{
    constexpr int kChangesForEachAction = 10;
    return std::max(options.pause / kChangesForEachAction, milliseconds(4));
}

void log(const std::string& text)
{
    (void)std::fprintf(stderr, "soak: %s\n", text.c_str());
}

} // namespace

SoakRun::SoakRun(
    AppDelegate& program,
    const ScanEnvironment& environment,
    const Sandbox& sandbox,
    const OpenWork& work,
    SoakOptions options)
    : m_program(program)
    , m_environment(environment)
    , m_sandbox(sandbox)
    , m_work(work)
    , m_options(options)
    , m_random(options.seed)
    , m_actions(program, sandbox, m_random)
    , m_diskMutator(sandbox.disk(), options.seed ^ kOtherSeed, mutatorPause(options))
    , m_volumeMutator(sandbox.volume(), options.seed ^ kThirdSeed, mutatorPause(options))
    , m_guard(kStuck)
{
}

SoakRun::~SoakRun() = default;

void SoakRun::start()
{
    m_sinceProgress.start();
    turnLater(kTurn);
}

MainWindowController& SoakRun::controller() const
{
    return *m_program.mainWindow();
}

void SoakRun::turnLater(milliseconds delay) const
{
    // A timer of its own each time: one that is being handled fires in no nested event loop.
    QTimer::singleShot(delay, this, &SoakRun::turn);
}

void SoakRun::turn()
{
    static constexpr std::array<Phase, 8> kPhases{
        &SoakRun::act,
        &SoakRun::calmDown,
        &SoakRun::scanDisk,
        &SoakRun::compareScan,
        &SoakRun::selectFolder,
        &SoakRun::rescanFolder,
        &SoakRun::compareRescan,
        &SoakRun::quit};
    m_guard.signOfLife();
    if (std::chrono::nanoseconds(m_sinceProgress.nsecsElapsed()) > kStuck) {
        fail("nothing goes on any more in phase " + std::to_string(m_phase));
    }
    if (m_failure.empty() && (this->*kPhases.at(m_phase))()) {
        ++m_phase;
        m_isUnderWay = false;
        m_sinceProgress.restart();
    }
    if (m_failure.empty()) {
        turnLater(m_begun == m_paused ? kTurn : pause());
        m_paused = m_begun;
    }
}

milliseconds SoakRun::pause()
{
    return std::max(m_options.pause, m_random.below(kMostTurnsBetweenActions) * kTurn);
}

void SoakRun::check()
{
    const RootModel& model = RootModel::sharedInstance();
    const std::string problem = problemOf(controller(), model);
    if (!problem.empty()) {
        fail(problem);
    } else if (
        controller().state() == ScreenState::Tree
        && model.topFolder()->origin() != m_actions.lastScanned()) {
        fail("shown is not what was to be scanned: " + m_actions.lastScanned());
    }
}

void SoakRun::fail(const std::string& problem)
{
    m_failure = problem;
    log("FAILED with seed " + std::to_string(m_options.seed) + " after action "
        + std::to_string(m_begun) + ": " + problem);
    QCoreApplication::exit(1);
}

bool SoakRun::act()
{
    const ScreenState state = controller().state();
    const bool scans = state == ScreenState::Scanning || state == ScreenState::Cancelling;
    if (scans && m_actions.isWatchingScan()) {
        return false;
    }
    check();
    if (!m_failure.empty() || m_begun == m_options.actions) {
        return true;
    }
    ++m_begun;
    log(std::to_string(m_begun) + ' ' + m_actions.next());
    m_sinceProgress.restart();
    return false;
}

bool SoakRun::calmDown()
{
    m_diskMutator.stop();
    m_volumeMutator.stop();
    if (UserActions::dismiss()) {
        return false;
    }
    if (controller().state() == ScreenState::Scanning) {
        UserActions::press(Qt::Key_Escape);
        return false;
    }
    const TopFolder* const top = RootModel::sharedInstance().topFolder();
    const bool rescans = controller().treeVC() != nullptr && isRescanning(*top);
    return !rescans && m_work.moves == 0 && m_work.archives == 0;
}

bool SoakRun::scanDisk()
{
    if (!m_isUnderWay) {
        log("the disk rests after " + std::to_string(m_diskMutator.changes()) + " changes; "
            + std::to_string(m_work.movesBegun) + " moves to the trash and "
            + std::to_string(m_work.archivesBegun) + " archives were begun");
        m_program.openFromElsewhere(Url(m_sandbox.disk(), true));
        m_isUnderWay = true;
        return false;
    }
    if (controller().state() != ScreenState::Tree) {
        return false;
    }
    check();
    return true;
}

bool SoakRun::compareScan()
{
    return scanAfreshAndCompare("the last scan");
}

bool SoakRun::selectFolder()
{
    if (nodeCast<Folder>(controller().treeVC()->selectedFile()) != nullptr) {
        return true;
    }
    m_actions.selectFolder();
    return false;
}

bool SoakRun::rescanFolder()
{
    if (!m_isUnderWay) {
        m_isUnderWay = true;
        connect(controller().treeVC(), &TreeViewController::folderReplaced, this, [this] {
            m_isFolderReplaced = true;
        });
        UserActions::press(Qt::Key_F5);
    }
    return m_isFolderReplaced;
}

bool SoakRun::compareRescan()
{
    check();
    return scanAfreshAndCompare("the last rescan");
}

bool SoakRun::scanAfreshAndCompare(const char* shown)
{
    if (!m_isUnderWay) {
        m_isUnderWay = true;
        m_fresh = Scanner::create(m_environment);
        m_fresh->scan(Url(m_sandbox.disk(), true));
    }
    if (m_fresh->topFolder() == nullptr) {
        return false;
    }
    const std::vector<std::string> is = treeLines(*RootModel::sharedInstance().topFolder());
    const std::vector<std::string> should = treeLines(*m_fresh->topFolder());
    const auto [wrong, right] = std::ranges::mismatch(is, should);
    log(std::string(shown) + " shows " + std::to_string(is.size()) + " items");
    if (wrong != is.end() || right != should.end()) {
        fail(
            std::string(shown) + " shows " + (wrong == is.end() ? "nothing" : *wrong)
            + " in the place of " + (right == should.end() ? "nothing" : *right));
    }
    return true;
}

/// Who has had enough leaves, whatever is going on.
bool SoakRun::quit()
{
    constexpr int kLastActions = 6;
    if (m_begun < m_options.actions + kLastActions) {
        ++m_begun;
        log("and at last " + m_actions.next());
    } else {
        m_actions.leave();
    }
    return false;
}

} // namespace tessera::test
