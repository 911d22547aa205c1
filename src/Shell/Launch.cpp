// SPDX-License-Identifier: MIT
#include "Shell/Launch.h"

#include "QuickLook/QuickLookPanel.h"
#include "Shell/Defaults.h"
#include "Shell/FileAccess.h"
#include "Shell/FolderWindow.h"
#include "Shell/PictureWriter.h"
#include "TreeView/DesktopIconProvider.h"
#include "TreeView/TooltipController.h"
#include "TreeView/TreeViewServices.h"
#include "Utils/Log.h"
#include "Utils/MessageBoxAlert.h"

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

void setUpPreview(QWidget& mainWindow, const LaunchServices& services, IconProvider& icons)
{
    QuickLookPanel& panel = QuickLookPanel::sharedInstance();
    panel.setFileReader(services.fileReader);
    panel.setIconProvider(&icons);
    panel.setMainWindow(&mainWindow);
    panel.setMotionPreference(&services.motion);
}

int showWindow(const std::string& folder, const LaunchServices& services)
{
    const std::string path = services.files.absolutePath(folder);
    if (const std::error_code error = services.files.checkFolder(path)) {
        return fail("cannot read the folder '" + folder + "': " + error.message());
    }
    registerDefaults(services.rootModelServices.defaults);
    RootModel::setServices(services.rootModelServices);
    DesktopIconProvider icons;
    TooltipController& tooltip = TooltipController::sharedInstance();
    tooltip.setResourceValues(&services.scanEnvironment.resourceValues);
    tooltip.setIconProvider(&icons);
    MessageBoxAlert alert;
    FolderWindow window(
        {services.scanEnvironment,
         services.rootModelServices.defaults,
         services.workspace,
         alert,
         {services.archiver,
          services.makeTask,
          services.workspace,
          services.scanEnvironment.resourceValues,
          icons},
         services.motion},
        RootModel::sharedInstance());
    setUpPreview(window, services, icons);
    window.open(Url(path, true));
    window.show();
    const int status = QApplication::exec();
    tooltip.setIconProvider(nullptr);
    QuickLookPanel::sharedInstance().setIconProvider(nullptr);
    return status;
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
    const std::string& home = services.scanEnvironment.homeDirectory;
    return showWindow(commandLine.folder.empty() ? home : commandLine.folder, services);
}

} // namespace tessera
