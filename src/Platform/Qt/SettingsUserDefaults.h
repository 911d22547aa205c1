// SPDX-License-Identifier: MIT
#pragma once

#include "Model/UserDefaults.h"

#include <QSettings>
#include <QString>

#include <memory>

namespace tessera {

/// Settings in an INI file. The file is replaced as a whole, so a process that is killed leaves
/// the old or the new one. A file that is none is moved aside and reads as empty. What is no
/// regular file, also behind a link, stays as it is: then values last as long as this object, and
/// synchronize() fails.
///
/// Values set are on disk after synchronize(), or when the event loop next runs. Times are written
/// as ISO 8601 in UTC, paths percent-encoded, since they are bytes and need not be text.
class SettingsUserDefaults final : public UserDefaults {
public:
    explicit SettingsUserDefaults(const QString& filePath);

    /// tessera/tessera.ini in the folder that the desktop keeps for settings.
    static QString defaultFilePath();

    bool synchronize() override;

private:
    std::optional<std::string> storedText(std::string_view key) const override;
    void storeText(std::string_view key, const std::string& text) override;
    std::vector<RecentRecord> storedRecords(std::string_view key) const override;
    void storeRecords(std::string_view key, const std::vector<RecentRecord>& records) override;

    std::unique_ptr<QSettings> m_settings;
};

} // namespace tessera
