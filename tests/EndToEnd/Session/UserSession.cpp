// SPDX-License-Identifier: MIT
#include "UserSession.h"

#include "EndToEnd/Desk/Eventually.h"
#include "SessionEnvironment.h"
#include "support/Machine/BuiltPaths.h"
#include "support/Machine/FileContent.h"
#include "support/Machine/SessionBusConfiguration.h"

#include <unistd.h>

#include <stdexcept>

namespace tessera::test {

UserSession::UserSession()
{
    nameUser();
    m_desk = std::make_unique<XDesk>(m_server.display());
    m_windowManager = std::make_unique<WindowManager>(m_server.display(), *m_desk);
    const std::string busAddress = startBus();
    m_reader = std::make_unique<ScreenReader>(busAddress);
    m_environment = sessionEnvironment(m_folders, m_server.display(), busAddress);
    setVariable("QT_LINUX_ACCESSIBILITY_ALWAYS_ON", "1");
}

void UserSession::nameUser()
{
    m_folders.writeFile(
        "passwd",
        "anna:x:" + std::to_string(::getuid()) + ':' + std::to_string(::getgid())
            + ":Anna:" + m_folders.pathOf("home") + ":/bin/sh\n");
    m_mounts.bind(m_folders.pathOf("passwd"), "/etc/passwd");
}

/// Returns the bus's address.
std::string UserSession::startBus()
{
    m_folders.writeFile("bus.conf", sessionBusConfiguration(m_folders.path()));
    const std::string output = m_folders.pathOf("bus-out");
    const std::string errors = m_folders.pathOf("bus-err");
    m_bus = std::make_unique<ChildProcess>(ChildProcessSetup{
        "dbus-daemon",
        {"--config-file=" + m_folders.pathOf("bus.conf"), "--nofork", "--print-address"},
        {},
        output,
        errors});
    const bool isReady
        = eventually([&] { return fileContent(output).ends_with('\n') || m_bus->exitStatus(); });
    if (!isReady || m_bus->exitStatus()) {
        throw std::runtime_error("dbus-daemon: " + fileContent(errors));
    }
    std::string address = fileContent(output);
    address.pop_back();
    return address;
}

void UserSession::setVariable(const std::string& name, const std::string& value)
{
    m_environment.push_back(name + '=' + value);
}

ChildProcessSetup UserSession::setup(const std::vector<std::string>& arguments)
{
    ++m_programs;
    return {
        test::built::program(),
        arguments,
        m_environment,
        m_folders.pathOf("out-" + std::to_string(m_programs)),
        m_folders.pathOf("err-" + std::to_string(m_programs))};
}

std::unique_ptr<ChildProcess> UserSession::start(const std::vector<std::string>& arguments)
{
    return std::make_unique<ChildProcess>(setup(arguments));
}

std::unique_ptr<ChildProcess> UserSession::start(FolderGate& gate)
{
    ChildProcessSetup gated = setup({});
    gated.beforeStart = [&gate] { gate.placeBefore(); };
    auto program = std::make_unique<ChildProcess>(gated);
    gate.watch();
    return program;
}

std::string UserSession::log() const
{
    std::string all;
    for (int i = 1; i <= m_programs; ++i) {
        all += fileContent(m_folders.pathOf("err-" + std::to_string(i)));
    }
    return all;
}

} // namespace tessera::test
