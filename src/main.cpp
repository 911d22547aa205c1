// SPDX-License-Identifier: MIT
#include "Base/Log.h"
#include "DeadMounts/DeadMountLimits.h"
#include "Language/Translations.h"
#include "Platform/PlatformServices.h"
#include "PlatformLaunchServices.h"
#include "Start/CommandLine.h"
#include "Start/Launch.h"

#include <QApplication>
#include <QLocale>

#include <cstdlib>
#include <optional>
#include <span>
#include <string>
#include <variant>

namespace {

constexpr int kFailed = 1;
constexpr int kBadUsage = 2;

/// Qt looks here, and nowhere else, when it activates a window on Wayland, and takes it away then.
constexpr const char* kActivationToken = "XDG_ACTIVATION_TOKEN";

/// Another thread may be reading the environment whenever a token comes, so it must not have to
/// grow then: a variable that is gone again leaves its room behind. To be called before any thread
/// runs.
void makeRoomForActivationToken()
{
    if (!qEnvironmentVariableIsSet(kActivationToken)) {
        qputenv(kActivationToken, "none");
        qunsetenv(kActivationToken);
    }
}

/// Elsewhere nobody would take it away, and all programs started from here would get it.
void adoptActivationToken(const std::string& token)
{
    if (QGuiApplication::platformName().startsWith(QLatin1String("wayland"))) {
        qputenv(kActivationToken, QByteArray::fromStdString(token));
    }
}

/// A scan of a file system that does not answer may never end, and holds on to the services.
void endWorkers(
    const tessera::PlatformServices& services, tessera::ScanWorkers& workers, int status)
{
    services.mainThread->close();
    if (!workers.waitForNone(tessera::kPatienceWithScansAtTheEnd)) {
        (void)services.userDefaults->synchronize();
        std::_Exit(status);
    }
}

int run(const tessera::CommandLine& commandLine, const tessera::PlatformServices& services)
{
    const tessera::Translations translations(QLocale::system().uiLanguages());
    tessera::LaunchServices launched = tessera::launchServices(services);
    launched.helpFolder = tessera::folderInLanguage(launched.helpFolder, translations.language());
    launched.adoptActivationToken = adoptActivationToken;
    const int status = tessera::launch(commandLine, launched);
    endWorkers(services, *launched.scanEnvironment.workers, status);
    return status;
}

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
    if (const std::optional<int> status = printRequestedText(commandLine)) {
        return *status;
    }
    const bool isPicture = commandLine.action == CommandLine::Action::WritePicture;
    if (isPicture) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    } else if (!PlatformServices::hasDisplay()) {
        logLine("tessera: there is no display; --picture draws to a file");
        return kFailed;
    }
    makeRoomForActivationToken();

    endWhenQtFails();
    // Only the program's name: the other arguments are ours, and Qt would take some for its own.
    int qtArgumentCount = 1;
    const QApplication application(qtArgumentCount, argv);
    logQtFailuresOnly();
    return run(commandLine, makePlatformServices(isPicture ? Session::StayOut : Session::TakePart));
}
