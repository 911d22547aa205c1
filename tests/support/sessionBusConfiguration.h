// SPDX-License-Identifier: MIT
#pragma once

namespace tessera::test {

/// For dbus-daemon: a session bus on which everything is allowed and nothing is started when it is
/// asked for, since what is installed here must not answer.
inline constexpr const char* kSessionBusConfiguration = R"(<busconfig>
  <type>session</type>
  <listen>unix:tmpdir=/tmp</listen>
  <policy context="default">
    <allow send_destination="*" eavesdrop="true"/>
    <allow eavesdrop="true"/>
    <allow own="*"/>
  </policy>
</busconfig>)";

} // namespace tessera::test
