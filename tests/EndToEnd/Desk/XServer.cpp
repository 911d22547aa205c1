// SPDX-License-Identifier: MIT
#include "XServer.h"

#include "Eventually.h"
#include "support/Machine/FileContent.h"

#include <csignal>
#include <stdexcept>

namespace tessera::test {

XServer::XServer()
    // It picks a free display and says on descriptor 1 which, as soon as it takes clients.
    : m_process(
        {"Xvfb",
         {"-displayfd", "1", "-screen", "0", "1920x1200x24", "-nolisten", "tcp", "-noreset"},
         {},
         m_output.pathOf("out"),
         m_output.pathOf("err")})
{
    std::string number;
    const bool isReady = eventually([&] {
        number = fileContent(m_output.pathOf("out"));
        return number.ends_with('\n') || m_process.exitStatus();
    });
    if (!isReady || m_process.exitStatus()) {
        throw std::runtime_error("Xvfb: " + fileContent(m_output.pathOf("err")));
    }
    number.pop_back();
    m_display = ':' + number;
}

XServer::~XServer()
{
    m_process.signal(SIGTERM);
    m_process.waitForExit();
}

} // namespace tessera::test
