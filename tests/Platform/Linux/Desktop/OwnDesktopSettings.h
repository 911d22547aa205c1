// SPDX-License-Identifier: MIT
#pragma once

#include <string>

namespace tessera::test {

// Settings of the test's own, kept in memory: a schema like the desktops', one without the keys
// that the program asks for, and one that is not installed.
inline constexpr const char* kOwnSchema = "org.example.tessera.interface";
inline constexpr const char* kSchemaWithoutKeys = "org.example.tessera.other";
inline constexpr const char* kNoSchema = "org.example.tessera.missing";

/// False when the schemas cannot be installed. To be called before the first use of GSettings.
[[nodiscard]] bool installOwnSettings();

/// Of the first schema. Another key than it has ends the test.
void setOwnSetting(const char* key, bool value);
void setOwnSetting(const char* key, const std::string& value);
void resetOwnSettings();

} // namespace tessera::test
