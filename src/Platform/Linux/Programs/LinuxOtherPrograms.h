// SPDX-License-Identifier: MIT
#pragma once

#include "DeadMounts/QuestionThreads.h"
#include "Desktop/OtherPrograms.h"
#include "Platform/Linux/Programs/GioPrograms.h"
#include "Platform/Linux/Programs/TerminalPrograms.h"

#include <QDBusConnection>
#include <QObject>

#include <chrono>
#include <functional>
#include <map>
#include <memory>
#include <string>
#include <vector>

namespace tessera {

class MainThread;
class WayBack;

/// The freedesktop.org desktop's programs, by GIO; its file manager over D-Bus; and whatever
/// terminal there is. Whatever looks at an item runs on a thread of its own, since its disk may be
/// dead.
class LinuxOtherPrograms final : public OtherPrograms {
public:
    /// Looks at what is at a path, on any thread, for as long as that takes.
    using Look = std::function<ItemLook(const std::string& path)>;

    /// `mainThread` must outlive it. After `patience` without an answer a disk counts as dead, and
    /// nothing is started any more when it answers after all.
    LinuxOtherPrograms(
        QDBusConnection bus,
        MainThread& mainThread,
        std::vector<TerminalCommand> terminals,
        std::chrono::milliseconds patience,
        Look look = gio_programs::lookAt);
    ~LinuxOtherPrograms() override;

    void open(const Url& item, Completion completion) override;
    void findPrograms(const Url& item, ProgramsCompletion completion) override;
    void openWith(const Url& item, const std::string& programId, Completion completion) override;
    void openTerminal(const Url& folder, Completion completion) override;
    void showProperties(const Url& item, Completion completion) override;

private:
    struct Answer;
    struct Request;
    using Question = std::function<Answer(const Request& request)>;
    using Answered = std::function<void(const Answer& answer)>;

    void ask(const Question& question, Answered answered);
    void answer(int number, const Answer& answer);
    void askFileManager(const Url& item, Completion completion);

    QDBusConnection m_bus;
    std::vector<TerminalCommand> m_terminals;
    std::chrono::milliseconds m_patience;
    Look m_look;
    std::shared_ptr<WayBack> m_wayBack; ///< shared with the threads
    std::shared_ptr<QuestionThreads> m_threads = QuestionThreads::make();
    std::map<int, std::shared_ptr<Request>> m_requests; ///< not yet answered, by their numbers
    int m_lastNumber = 0;
    QObject m_pending; ///< owns what waits for the bus and the clock
};

} // namespace tessera
