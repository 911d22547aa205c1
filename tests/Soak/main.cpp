// SPDX-License-Identifier: MIT
#include "BuildDisk.h"
#include "Model/RootModel.h"
#include "PlatformLaunchServices.h"
#include "RunInSandbox.h"
#include "Sandbox.h"
#include "Scanning/ScanWorkers.h"
#include "SoakRun.h"
#include "Start/WindowedProgram.h"
#include "support/Machine/BuiltPaths.h"
#include "support/Machine/ChildProcess.h"
#include "support/Machine/SessionBusConfiguration.h"

#include <QApplication>
#include <QImage>

#include <sys/wait.h>

#include <charconv>
#include <csignal>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <optional>
#include <span>
#include <string_view>
#include <thread>

namespace tessera::test {

namespace {

constexpr int kFailed = 1;
constexpr int kBadUsage = 2;
constexpr std::string_view kInside = "--inside";

struct CommandLine {
    SoakOptions options;
    std::string sandbox; ///< empty: it is still to be made
};

std::optional<int> numberIn(std::string_view text)
{
    int number = 0;
    const auto parsed = std::from_chars(text.data(), text.data() + text.size(), number);
    const bool isWhole = parsed.ec == std::errc() && parsed.ptr == text.data() + text.size();
    return isWhole && number >= 0 ? std::optional(number) : std::nullopt;
}

bool take(CommandLine& commandLine, std::string_view name, std::string_view value)
{
    if (name == kInside) {
        commandLine.sandbox = value;
        return true;
    }
    const std::optional<int> number = numberIn(value);
    if (number && name == "--seed") {
        commandLine.options.seed = static_cast<std::uint64_t>(*number);
    } else if (number && name == "--actions") {
        commandLine.options.actions = *number;
    } else if (number && name == "--pause") {
        commandLine.options.pause = std::chrono::milliseconds(*number);
    } else {
        return false;
    }
    return true;
}

std::optional<CommandLine> parse(std::span<char*> arguments)
{
    CommandLine commandLine;
    for (std::size_t i = 0; i < arguments.size(); i += 2) {
        if (i + 1 == arguments.size() || !take(commandLine, arguments[i], arguments[i + 1])) {
            return std::nullopt;
        }
    }
    return commandLine;
}

void furnish(const Sandbox& sandbox, std::uint64_t seed)
{
    Random random(seed);
    buildDisk(sandbox.disk(), random);
    buildDisk(sandbox.volume(), random);
    for (const std::string& parent : {sandbox.volume(), sandbox.home() + "/Desktop"}) {
        std::filesystem::create_directories(parent + "/folder");
        QImage picture(300, 200, QImage::Format_RGB32);
        picture.fill(Qt::darkCyan);
        picture.save(QString::fromStdString(parent + "/picture.png"));
    }
}

std::string writeBusConfiguration(const std::string& sandbox)
{
    std::string path = sandbox + "/run/bus.conf";
    std::ofstream(path) << sessionBusConfiguration(sandbox + "/run");
    return path;
}

/// As it is printed when the bus is ready; empty when it ended before.
QByteArray addressOf(ChildProcess& bus, const std::string& sandbox)
{
    std::string line;
    while (!bus.exitStatus()) {
        std::ifstream printed(sandbox + "/run/address");
        if (std::getline(printed, line) && !printed.eof()) {
            return QByteArray::fromStdString(line);
        }
        std::this_thread::yield();
    }
    return {};
}

// Without Qt's processes: these leave the thread sanitizer blind for the main thread's locks.
ChildProcessSetup busCommand(const std::string& sandbox)
{
    return {
        "dbus-daemon",
        {"--config-file=" + writeBusConfiguration(sandbox), "--nofork", "--print-address"},
        {},
        sandbox + "/run/address",
        sandbox + "/run/bus.log"};
}

int runInside(const CommandLine& commandLine, int& argc, char** argv)
{
    ChildProcess bus(busCommand(commandLine.sandbox));
    const QByteArray address = addressOf(bus, commandLine.sandbox);
    if (address.isEmpty()) {
        (void)std::fputs("soak: no session bus\n", stderr);
        return kFailed;
    }
    qputenv("DBUS_SESSION_BUS_ADDRESS", address);
    const Sandbox sandbox(commandLine.sandbox);
    qputenv("PATH", QByteArray::fromStdString(sandbox.path())); // no other program is started
    furnish(sandbox, commandLine.options.seed);
    const QApplication application(argc, argv);
    OpenWork work;
    PlatformServices services = makePlatformServices();
    confine(services, sandbox, work);
    const LaunchServices launching = launchServices(services);
    int status = kFailed;
    {
        const WindowedProgram program(launching);
        SoakRun run(
            program.delegate(), launching.scanEnvironment, sandbox, work, commandLine.options);
        run.start();
        status = QApplication::exec();
    }
    // Kept to the end of the process by the program, and then too much for a search for leaks.
    RootModel::sharedInstance().setTopFolder(nullptr);
    services.mainThread->close();
    launching.scanEnvironment.workers->waitForNone();
    // GLib has a program end whose session bus goes away, as this one's is about to.
    (void)std::signal(SIGTERM, SIG_IGN);
    return status;
}

} // namespace

} // namespace tessera::test

// NOLINTNEXTLINE(bugprone-exception-escape): what cannot be set up ends the program
int main(int argc, char** argv)
{
    using namespace tessera::test;
    const std::span<char*> arguments(argv, static_cast<std::size_t>(argc));
    const auto commandLine = parse(arguments.subspan(1));
    if (!commandLine) {
        (void)std::fputs(
            "usage: tessera_soak_tests [--seed N] [--actions N] [--pause MILLISECONDS]\n", stderr);
        return kBadUsage;
    }
    if (commandLine->sandbox.empty()) {
        std::vector<std::string> again(arguments.begin(), arguments.end());
        again.emplace_back(kInside);
        return runInSandbox(
            again, {tessera::test::built::archiver(), tessera::test::built::previewer()});
    }
    const int status = runInside(*commandLine, argc, argv);
    if (::waitpid(-1, nullptr, WNOHANG) != -1) {
        (void)std::fputs("soak: FAILED: a child process was left behind\n", stderr);
        return kFailed;
    }
    return status;
}
