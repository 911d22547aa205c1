// SPDX-License-Identifier: MIT
#include "Start/Launch.h"

#include "Base/ByteSize.h"
#include "Base/Log.h"
#include "Desktop/FileAccess.h"
#include "Model/Defaults.h"
#include "Start/AppDelegate.h"
#include "Start/FolderToShow.h"
#include "Start/LaunchServices.h"
#include "Start/PictureWriter.h"
#include "Start/SecondStart.h"
#include "Start/WindowedProgram.h"

#include <QApplication>

#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <system_error>

namespace tessera {

namespace {

constexpr int kDone = 0;
constexpr int kFailed = 1;

int fail(const std::string& reason)
{
    logLine("tessera: %s", reason.c_str());
    return kFailed;
}

int print(const char* text)
{
    if (std::fputs(text, stdout) >= 0 && std::fflush(stdout) == 0) {
        return kDone;
    }
    const std::error_code error(errno, std::generic_category());
    return fail("cannot write to the standard output: " + error.message());
}

/// What Qt was to show windows on, and could not.
std::string displayFailure()
{
    std::string display;
    for (const char* variable : {"WAYLAND_DISPLAY", "DISPLAY"}) {
        const std::string value = qgetenv(variable).toStdString();
        if (!value.empty()) {
            display += (display.empty() ? "'" : " and '") + value + '\'';
        }
    }
    const std::string platform = qgetenv("QT_QPA_PLATFORM").toStdString();
    const std::string hint = "; --picture draws to a file";
    if (platform.empty()) {
        return "the display " + display + " does not answer" + hint;
    }
    return "Qt's platform '" + platform + "' does not start"
        + (display.empty() ? "" : " on the display " + display) + hint;
}

[[noreturn]] void endInFailure(const QString& text)
{
    std::string reason = text.toStdString();
    if (text.contains(QLatin1String("platform plugin"))) {
        reason = displayFailure();
    } else if (text.contains(QLatin1String("setuid"))) {
        reason = "it does not run with the rights of another user than the one who started it";
    }
    // There is no object yet whose end would matter, and Qt would abort the process.
    std::_Exit(fail(reason));
}

int writePicture(const CommandLine& commandLine, const LaunchServices& services)
{
    const std::uint64_t needed = commandLine.pictureMemory();
    if (needed > services.availableMemory) {
        return fail(
            "the picture needs " + formatSize(needed) + " of memory, and there are "
            + formatSize(services.availableMemory));
    }
    UserDefaults& defaults = services.rootModelServices.defaults;
    registerDefaults(defaults);
    const std::string problem
        = PictureWriter(services.scanEnvironment, services.files, folderTitles(defaults))
              .write(commandLine);
    return problem.empty() ? kDone : fail(problem);
}

int showWindow(const Url& folder, const LaunchServices& services)
{
    const WindowedProgram program(services);
    if (!folder.empty()) {
        program.delegate().openFile(folder);
    }
    return QApplication::exec();
}

int openWindow(const std::string& folder, const LaunchServices& services)
{
    Url url;
    if (!folder.empty()) {
        const std::string path = services.filesWithTimeLimit->absolutePath(folder);
        const std::error_code error = services.filesWithTimeLimit->checkFolder(path);
        // A scan of what does not answer now can be watched, and broken off.
        if (error && error != std::errc::timed_out) {
            const int status = fail("cannot read the folder '" + folder + "': " + error.message());
            // Started from a file manager, only the window can say so.
            if (services.hasTerminal) {
                return status;
            }
        }
        url = Url(path, true);
    }
    return handOverToFirstStart(services.runningInstance, url) ? kDone : showWindow(url, services);
}

} // namespace

std::optional<int> printRequestedText(const CommandLine& commandLine)
{
    if (commandLine.action == CommandLine::Action::PrintHelp) {
        return print(commandLineHelp().c_str());
    }
    if (commandLine.action == CommandLine::Action::PrintVersion) {
        return print("tessera " TESSERA_VERSION "\n");
    }
    return std::nullopt;
}

void endWhenQtFails()
{
    qInstallMessageHandler([](QtMsgType type, const QMessageLogContext&, const QString& text) {
        if (type == QtFatalMsg) {
            endInFailure(text);
        }
    });
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
    CommandLine named = commandLine;
    named.folder
        = folderToShow(commandLine, services.homeScreen.homeDirectory, services.homeScreen.volumes);
    named.place = CommandLine::Place::Folder;
    if (named.action == CommandLine::Action::WritePicture) {
        return writePicture(named, services);
    }
    return openWindow(named.folder, services);
}

} // namespace tessera
