// SPDX-License-Identifier: MIT
#include "Shell/Launch.h"

#include "Shell/AppDelegate.h"
#include "Shell/FileAccess.h"
#include "Shell/PictureWriter.h"
#include "Shell/RunningInstance.h"
#include "Shell/WindowedProgram.h"
#include "Utils/Log.h"

#include <QApplication>

#include <cstdio>

namespace tessera {

namespace {

constexpr int kDone = 0;
constexpr int kFailed = 1;

int fail(const std::string& reason)
{
    logLine("tessera: %s", reason.c_str());
    return kFailed;
}

int writePicture(const CommandLine& commandLine, const LaunchServices& services)
{
    const std::string problem
        = PictureWriter(services.scanEnvironment, services.files).write(commandLine);
    return problem.empty() ? kDone : fail(problem);
}

int showWindow(const Url& folder, const LaunchServices& services)
{
    const WindowedProgram program(services);
    if (!folder.empty()) {
        program.delegate().openFile(folder.path());
    }
    return QApplication::exec();
}

int openWindow(const std::string& folder, const LaunchServices& services)
{
    Url url;
    if (!folder.empty()) {
        const std::string path = services.promptFiles.absolutePath(folder);
        const std::error_code error = services.promptFiles.checkFolder(path);
        // A scan of what does not answer now can be watched, and broken off.
        if (error && error != std::errc::timed_out) {
            return fail("cannot read the folder '" + folder + "': " + error.message());
        }
        url = Url(path, true);
    }
    return services.runningInstance.handOver(url) ? kDone : showWindow(url, services);
}

} // namespace

bool printRequestedText(const CommandLine& commandLine)
{
    if (commandLine.action == CommandLine::Action::PrintHelp) {
        (void)std::fputs(commandLineHelp().c_str(), stdout);
        return true;
    }
    if (commandLine.action == CommandLine::Action::PrintVersion) {
        (void)std::fputs("tessera " TESSERA_VERSION "\n", stdout);
        return true;
    }
    return false;
}

void logQtFailuresOnly()
{
    qInstallMessageHandler([](QtMsgType type, const QMessageLogContext&, const QString& text) {
        if (type == QtCriticalMsg || type == QtFatalMsg) {
            logLine("%s", text.toUtf8().constData());
        }
    });
}

int launch(const CommandLine& commandLine, const LaunchServices& services)
{
    if (commandLine.action == CommandLine::Action::WritePicture) {
        return writePicture(commandLine, services);
    }
    return openWindow(commandLine.folder, services);
}

} // namespace tessera
