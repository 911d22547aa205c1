// SPDX-License-Identifier: MIT
#include "Platform/PlatformServices.h"
#include "Shell/CommandLine.h"
#include "Shell/Launch.h"
#include "Utils/Log.h"
#include "launchServices.h"

#include <QApplication>

#include <cstdio>
#include <span>
#include <variant>

namespace {

constexpr int kFailed = 1;
constexpr int kBadUsage = 2;

} // namespace

// NOLINTNEXTLINE(bugprone-exception-escape): out of memory ends the program
int main(int argc, char** argv)
{
    using namespace tessera;
    const std::span<const char* const> arguments(argv, static_cast<std::size_t>(argc));
    const auto parsed = parseCommandLine(arguments.subspan(argc > 0 ? 1 : 0));
    if (const auto* error = std::get_if<CommandLineError>(&parsed)) {
        logLine("tessera: %s; see tessera --help", error->message.c_str());
        return kBadUsage;
    }
    const auto& commandLine = std::get<CommandLine>(parsed);
    if (printRequestedText(commandLine)) {
        return 0;
    }
    if (commandLine.action == CommandLine::Action::WritePicture) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    } else if (!PlatformServices::hasDisplay()) {
        (void)std::fputs("tessera: there is no display; --picture draws to a file\n", stderr);
        return kFailed;
    }

    logQtFailuresOnly();
    // Only the program's name: the other arguments are ours, and Qt would take some for its own.
    int qtArgumentCount = 1;
    const QApplication application(qtArgumentCount, argv);
    const PlatformServices services = makePlatformServices();
    const LaunchServices launched = launchServices(services);
    const int status = launch(commandLine, launched);
    services.mainThread->close();
    launched.scanEnvironment.workers->waitForNone();
    return status;
}
