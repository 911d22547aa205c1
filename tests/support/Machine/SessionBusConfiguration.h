// SPDX-License-Identifier: MIT
#pragma once

#include <string>

namespace tessera::test {

/// For dbus-daemon: a session bus on which everything is allowed and nothing is started when it is
/// asked for, since what is installed here must not answer. Its socket is made in the given folder,
/// a path without characters that mean something to XML, so that it goes when the folder goes.
inline std::string sessionBusConfiguration(const std::string& folder)
{
    return R"(<busconfig>
  <type>session</type>
  <listen>unix:dir=)"
        + folder + R"(</listen>
  <policy context="default">
    <allow send_destination="*" eavesdrop="true"/>
    <allow eavesdrop="true"/>
    <allow own="*"/>
  </policy>
</busconfig>)";
}

} // namespace tessera::test
