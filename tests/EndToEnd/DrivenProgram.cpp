// SPDX-License-Identifier: MIT
#include "DrivenProgram.h"

#include "sessionEnvironment.h"
#include "support/fileContent.h"

namespace tessera::test {

DrivenProgram::DrivenProgram(const std::string& folder)
    : m_desk(m_server.display())
    , m_process(
          {TESSERA_PROGRAM,
           {folder},
           sessionEnvironment(
               m_session, m_server.display(), "unix:path=" + m_session.pathOf("no-bus")),
           m_session.pathOf("out"),
           m_session.pathOf("err")})
{
}

std::string DrivenProgram::log() const
{
    return fileContent(m_session.pathOf("err"));
}

} // namespace tessera::test
