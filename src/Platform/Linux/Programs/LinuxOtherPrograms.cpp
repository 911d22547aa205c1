// SPDX-License-Identifier: MIT
#include "Platform/Linux/Programs/LinuxOtherPrograms.h"

#include "Scanning/WayBack.h"

#include <QDBusMessage>
#include <QDBusPendingCall>
#include <QDBusPendingCallWatcher>
#include <QProcess>
#include <QStandardPaths>
#include <QStringList>
#include <QTimer>

#include <unistd.h>

#include <atomic>
#include <utility>

namespace tessera {

struct LinuxOtherPrograms::Answer {
    HandOver outcome = HandOver::Failed;
    std::vector<ProgramChoice> programs = {};
    TerminalCommand terminal = {}; ///< with its path
};

/// The thread that is stuck keeps it.
struct LinuxOtherPrograms::Request {
    Answered answered;
    std::atomic<bool> isGivenUp = false;
};

namespace {

constexpr int kNoSuchFolder = 127; ///< how a child ends that never got to be the program

/// https://www.freedesktop.org/wiki/Specifications/file-manager-interface/
QDBusMessage propertiesRequest(const Url& item)
{
    QDBusMessage message = QDBusMessage::createMethodCall(
        QStringLiteral("org.freedesktop.FileManager1"),
        QStringLiteral("/org/freedesktop/FileManager1"),
        QStringLiteral("org.freedesktop.FileManager1"),
        QStringLiteral("ShowItemProperties"));
    const QStringList urls{QString::fromStdString(item.absoluteString())};
    const QString noStartupId;
    message << urls << noStartupId;
    return message;
}

/// Of those that are installed the first, by its path.
TerminalCommand installedTerminal(const std::vector<TerminalCommand>& terminals)
{
    for (const TerminalCommand& terminal : terminals) {
        const QString path
            = QStandardPaths::findExecutable(QString::fromStdString(terminal.program));
        if (!path.isEmpty()) {
            return {path.toStdString(), terminal.arguments};
        }
    }
    return {};
}

/// The folder's name is bytes, which QProcess does not take. Nobody hears of it without `listener`.
void startIn(
    const std::string& folder,
    const TerminalCommand& terminal,
    QObject& listener,
    const OtherPrograms::Completion& completion)
{
    // Nobody owns it: its destructor would end the terminal that the user works in.
    // NOLINTNEXTLINE(cppcoreguidelines-owning-memory)
    auto* const process = new QProcess;
    process->setProcessChannelMode(QProcess::ForwardedChannels);
    process->setStandardInputFile(QProcess::nullDevice());
    process->setChildProcessModifier([folder] {
        ::setsid();
        if (::chdir(folder.c_str()) != 0) {
            ::_exit(kNoSuchFolder);
        }
    });
    QObject::connect(
        process, &QProcess::started, &listener, [completion] { completion(HandOver::Done); });
    QObject::connect(process, &QProcess::errorOccurred, &listener, [completion](auto error) {
        if (error == QProcess::FailedToStart) {
            completion(HandOver::Failed);
        }
    });
    QObject::connect(process, &QProcess::errorOccurred, process, [process](auto error) {
        if (error == QProcess::FailedToStart) {
            process->deleteLater();
        }
    });
    QObject::connect(process, &QProcess::finished, process, &QObject::deleteLater);
    QStringList arguments;
    for (const std::string& argument : terminal.arguments) {
        arguments.append(QString::fromStdString(argument));
    }
    process->start(QString::fromStdString(terminal.program), arguments);
}

} // namespace

LinuxOtherPrograms::LinuxOtherPrograms(
    QDBusConnection bus,
    MainThread& mainThread,
    std::vector<TerminalCommand> terminals,
    std::chrono::milliseconds patience,
    Look look)
    : m_bus(std::move(bus))
    , m_terminals(std::move(terminals))
    , m_patience(patience)
    , m_look(std::move(look))
    , m_wayBack(WayBack::make(mainThread))
{
}

LinuxOtherPrograms::~LinuxOtherPrograms()
{
    m_wayBack->close();
    for (const auto& [number, request] : m_requests) {
        request->isGivenUp = true;
    }
}

void LinuxOtherPrograms::ask(const Question& question, Answered answered)
{
    const int number = ++m_lastNumber;
    const auto request = std::make_shared<Request>();
    request->answered = std::move(answered);
    m_requests.emplace(number, request);
    const auto started = m_threads->start([this, wayBack = m_wayBack, number, request, question] {
        const Answer answer = question(*request);
        wayBack->perform([this, number, answer] { this->answer(number, answer); });
    });
    // NOLINTNEXTLINE(cppcoreguidelines-owning-memory): it deletes itself, or with those who wait
    auto* const limit = new QTimer(&m_pending);
    limit->setSingleShot(true);
    limit->callOnTimeout(limit, [this, limit, number] {
        limit->deleteLater();
        answer(number, {HandOver::NoAnswer});
    });
    limit->start(started.error ? std::chrono::milliseconds(0) : m_patience);
}

/// The first counts.
void LinuxOtherPrograms::answer(int number, const Answer& answer)
{
    const auto found = m_requests.find(number);
    if (found == m_requests.end()) {
        return;
    }
    const std::shared_ptr<Request> request = found->second;
    m_requests.erase(found);
    request->isGivenUp = true;
    request->answered(answer);
}

void LinuxOtherPrograms::open(const Url& item, Completion completion)
{
    ask(
        [item, look = m_look](const Request& request) -> Answer {
            const ItemLook found = look(item.path());
            if (found.outcome != HandOver::Done || request.isGivenUp) {
                return {found.outcome};
            }
            return {gio_programs::openByType(item, found.contentType)};
        },
        [completion = std::move(completion)](const Answer& answer) { completion(answer.outcome); });
}

void LinuxOtherPrograms::findPrograms(const Url& item, ProgramsCompletion completion)
{
    ask(
        [item, look = m_look](const Request& /*request*/) -> Answer {
            const ItemLook found = look(item.path());
            if (found.outcome != HandOver::Done) {
                return {found.outcome};
            }
            return {HandOver::Done, gio_programs::programsFor(found.contentType)};
        },
        [completion = std::move(completion)](const Answer& answer) {
            completion(answer.outcome, answer.programs);
        });
}

void LinuxOtherPrograms::openWith(
    const Url& item, const std::string& programId, Completion completion)
{
    ask(
        [item, programId, look = m_look](const Request& request) -> Answer {
            const ItemLook found = look(item.path());
            if (found.outcome != HandOver::Done || request.isGivenUp) {
                return {found.outcome};
            }
            return {gio_programs::openBy(programId, item)};
        },
        [completion = std::move(completion)](const Answer& answer) { completion(answer.outcome); });
}

void LinuxOtherPrograms::openTerminal(const Url& folder, Completion completion)
{
    ask(
        [folder, terminals = m_terminals, look = m_look](const Request& /*request*/) -> Answer {
            const ItemLook found = look(folder.path());
            if (found.outcome != HandOver::Done) {
                return {found.outcome};
            }
            if (::access((folder.path() + "/.").c_str(), X_OK) != 0) {
                return {HandOver::MayNotLook};
            }
            TerminalCommand terminal = installedTerminal(terminals);
            const bool isThere = !terminal.program.empty();
            return {isThere ? HandOver::Done : HandOver::NoProgram, {}, std::move(terminal)};
        },
        [this, folder, completion = std::move(completion)](const Answer& answer) {
            if (answer.outcome == HandOver::Done) {
                startIn(folder.path(), answer.terminal, m_pending, completion);
            } else {
                completion(answer.outcome);
            }
        });
}

void LinuxOtherPrograms::showProperties(const Url& item, Completion completion)
{
    ask([item, look = m_look](
            const Request& /*request*/) -> Answer { return {look(item.path()).outcome}; },
        [this, item, completion = std::move(completion)](const Answer& answer) {
            if (answer.outcome != HandOver::Done) {
                completion(answer.outcome);
            } else if (m_bus.isConnected()) {
                askFileManager(item, completion);
            } else {
                completion(HandOver::NoProgram);
            }
        });
}

void LinuxOtherPrograms::askFileManager(const Url& item, Completion completion)
{
    // NOLINTNEXTLINE(cppcoreguidelines-owning-memory): the parent owns it
    auto* const watcher
        = new QDBusPendingCallWatcher(m_bus.asyncCall(propertiesRequest(item)), &m_pending);
    QObject::connect(
        watcher,
        &QDBusPendingCallWatcher::finished,
        &m_pending,
        [completion = std::move(completion)](QDBusPendingCallWatcher* finished) {
            completion(finished->isError() ? HandOver::NoProgram : HandOver::Done);
            finished->deleteLater();
        });
}

} // namespace tessera
