// SPDX-License-Identifier: MIT
#include "WindowManager.h"

#include "Eventually.h"
#include "support/Machine/FileContent.h"

#include <stdexcept>

namespace tessera::test {

namespace {

/// It leaves all buttons and keys to the programs. One that looks at clicks first, to raise the
/// window, would let the key pressed next overtake them, and no user is as fast as a test.
constexpr const char* kConfiguration = R"(<openbox_config xmlns="http://openbox.org/3.4/rc">
  <focus><focusNew>yes</focusNew></focus>
  <placement><policy>Smart</policy><center>yes</center></placement>
  <theme><name>Clearlooks</name></theme>
  <desktops><number>1</number></desktops>
  <keyboard/>
  <mouse/>
</openbox_config>
)";

std::string configuration(const TempTree& home)
{
    home.writeFile("rc.xml", kConfiguration);
    return home.pathOf("rc.xml");
}

} // namespace

WindowManager::WindowManager(const std::string& display, const XDesk& desk)
    : m_process(
        {"openbox",
         {"--sm-disable", "--config-file", configuration(m_home)},
         {"DISPLAY=" + display,
          "HOME=" + m_home.path(),
          "XDG_CONFIG_HOME=" + m_home.path(),
          "XDG_CACHE_HOME=" + m_home.path(),
          "XDG_DATA_HOME=" + m_home.path()},
         m_home.pathOf("out"),
         m_home.pathOf("err")})
{
    if (!eventually([&] { return desk.isManaged() || m_process.exitStatus(); })
        || m_process.exitStatus()) {
        throw std::runtime_error("openbox: " + fileContent(m_home.pathOf("err")));
    }
}

} // namespace tessera::test
