// SPDX-License-Identifier: MIT
#include "DrivenProgram.h"

#include "SessionEnvironment.h"
#include "support/Machine/BuiltPaths.h"
#include "support/Machine/FileContent.h"

#include <cstdlib>

namespace tessera::test {

namespace {

std::vector<std::string> withPath(std::vector<std::string> environment, const std::string& path)
{
    if (!path.empty()) {
        // NOLINTNEXTLINE(concurrency-mt-unsafe): nobody changes it
        environment.push_back("PATH=" + path + ':' + std::getenv("PATH"));
    }
    return environment;
}

} // namespace

DrivenProgram::DrivenProgram(
    const std::string& folder, const std::string& installed, const std::string& path)
    : m_desk(m_server.display())
    , m_process(
          {installed.empty() ? test::built::program() : installed,
           {folder},
           withPath(
               sessionEnvironment(
                   m_session, m_server.display(), "unix:path=" + m_session.pathOf("no-bus")),
               path),
           m_session.pathOf("out"),
           m_session.pathOf("err")})
{
}

std::string DrivenProgram::log() const
{
    return fileContent(m_session.pathOf("err"));
}

} // namespace tessera::test
