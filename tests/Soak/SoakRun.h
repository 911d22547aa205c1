// SPDX-License-Identifier: MIT
#pragma once

#include "DiskMutator.h"
#include "Random.h"
#include "Sandbox.h"
#include "StallGuard.h"
#include "UserActions.h"

#include <QElapsedTimer>
#include <QObject>

#include <chrono>
#include <cstdint>
#include <memory>
#include <string>

namespace tessera {
class AppDelegate;
class MainWindowController;
class Scanner;
struct ScanEnvironment;
} // namespace tessera

namespace tessera::test {

struct SoakOptions {
    std::uint64_t seed = 1;
    int actions = 200;
    std::chrono::milliseconds pause{0}; ///< between two actions; 0 for as little as will do
};

/// Uses the program at random while its disk changes, then lets the disk rest and has the program
/// scan it once more: then it must show what is there. Driven by the event loop, that of a question
/// to the user included; quits the application at the end.
class SoakRun final : public QObject {
public:
    /// All must outlive it.
    SoakRun(
        AppDelegate& program,
        const ScanEnvironment& environment,
        const Sandbox& sandbox,
        const OpenWork& work,
        SoakOptions options);
    ~SoakRun() override;

    void start();

    /// What went wrong first; empty when all was well.
    const std::string& failure() const { return m_failure; }

private:
    /// What is done one after the other; each is called until it says that it is done.
    using Phase = bool (SoakRun::*)();

    bool act();
    bool calmDown();
    bool scanDisk();
    bool compareScan();
    bool selectFolder();
    bool rescanFolder();
    bool compareRescan();
    bool quit();

    void turn();
    void turnLater(std::chrono::milliseconds delay) const;
    std::chrono::milliseconds pause();
    bool scanAfreshAndCompare(const char* shown);
    void check();
    void fail(const std::string& problem);
    MainWindowController& controller() const;

    AppDelegate& m_program;
    const ScanEnvironment& m_environment;
    const Sandbox& m_sandbox;
    const OpenWork& m_work;
    const SoakOptions m_options;
    Random m_random;
    UserActions m_actions;
    DiskMutator m_diskMutator;
    DiskMutator m_volumeMutator;
    std::size_t m_phase = 0;
    int m_begun = 0; ///< actions
    int m_paused = 0; ///< actions that were given time
    bool m_isUnderWay = false; ///< what the current phase waits for has been begun
    bool m_isFolderReplaced = false;
    std::shared_ptr<Scanner> m_fresh;
    QElapsedTimer m_sinceProgress;
    StallGuard m_guard;
    std::string m_failure;
};

} // namespace tessera::test
