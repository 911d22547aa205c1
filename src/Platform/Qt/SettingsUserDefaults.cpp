// SPDX-License-Identifier: MIT
#include "Platform/Qt/SettingsUserDefaults.h"

#include "Base/Url.h"
#include "Platform/Qt/KeepAside.h"

#include <QDateTime>
#include <QFile>
#include <QStandardPaths>

#include <filesystem>
#include <fstream>
#include <system_error>
#include <utility>

namespace tessera {

namespace {

const QString kPathKey = QStringLiteral("path");
const QString kSizeKey = QStringLiteral("size");
const QString kDateKey = QStringLiteral("date");

QString settingsKey(std::string_view key)
{
    return QString::fromUtf8(key.data(), static_cast<qsizetype>(key.size()));
}

bool isMalformed(QSettings& settings)
{
    // Sections are parsed when they are first asked for, so ask for all of them.
    (void)settings.allKeys();
    return settings.status() == QSettings::FormatError;
}

/// A process killed right after it made the lock leaves it without its number in it. QLockFile
/// then cannot tell that the process is gone, and the next write would wait for 30 seconds. A live
/// process's lock is empty for an instant only, and losing it does no harm: files are replaced as
/// a whole.
void removeEmptyLock(const QString& filePath)
{
    const std::filesystem::path lock
        = QFile::encodeName(filePath + QStringLiteral(".lock")).toStdString();
    std::error_code error;
    if (std::filesystem::file_size(lock, error) == 0 && !error) {
        std::filesystem::remove(lock, error);
    }
}

/// Whether the path leads to a device or the like. Some have a link to /dev/null there, to be rid
/// of the file. Qt would read it without an end, or replace it by a file.
bool leadsToNoFile(const std::filesystem::path& path)
{
    std::error_code error;
    const std::filesystem::file_status status = std::filesystem::status(path, error);
    return std::filesystem::exists(status) && !std::filesystem::is_regular_file(status);
}

/// Which folders somebody scanned is nobody else's business. Qt gives a new file the mode that the
/// old one had, so there is one from the first setting on.
void makePrivate(const QString& filePath)
{
    namespace fs = std::filesystem;
    const fs::path path = QFile::encodeName(filePath).toStdString();
    if (leadsToNoFile(path)) {
        return;
    }
    std::error_code error;
    if (!fs::exists(path, error)) {
        fs::create_directories(path.parent_path(), error);
        (void)std::ofstream(path);
    }
    fs::permissions(
        path, fs::perms::group_all | fs::perms::others_all, fs::perm_options::remove, error);
}

std::unique_ptr<QSettings> openSettings(const QString& filePath)
{
    if (leadsToNoFile(QFile::encodeName(filePath).toStdString())) {
        // Below what is no folder Qt can neither read nor write, and remembers what it is given.
        return std::make_unique<QSettings>(
            QStringLiteral("/dev/null/tessera.ini"), QSettings::IniFormat);
    }
    removeEmptyLock(filePath);
    auto settings = std::make_unique<QSettings>(filePath, QSettings::IniFormat);
    if (!isMalformed(*settings)) {
        return settings;
    }
    settings.reset();
    (void)keepAside(QFile::encodeName(filePath).toStdString());
    return std::make_unique<QSettings>(filePath, QSettings::IniFormat);
}

/// The record of the array entry that `settings` stands at; nothing when it is broken.
std::optional<RecentRecord> readRecord(const QSettings& settings)
{
    std::optional<std::string> path
        = percentDecoded(settings.value(kPathKey).toString().toStdString());
    bool isNumber = false;
    const qulonglong size = settings.value(kSizeKey).toULongLong(&isNumber);
    const QDateTime date = QDateTime::fromString(settings.value(kDateKey).toString(), Qt::ISODate);
    if (!path || !path->starts_with('/') || !isNumber || !date.isValid()) {
        return std::nullopt;
    }
    return RecentRecord{
        *std::move(path),
        size,
        std::chrono::sys_seconds(std::chrono::seconds(date.toSecsSinceEpoch()))};
}

void writeRecord(QSettings& settings, const RecentRecord& record)
{
    const QDateTime date
        = QDateTime::fromSecsSinceEpoch(record.date.time_since_epoch().count(), Qt::UTC);
    settings.setValue(kPathKey, QString::fromStdString(percentEncoded(record.path)));
    settings.setValue(kSizeKey, QString::number(record.size));
    settings.setValue(kDateKey, date.toString(Qt::ISODate));
}

} // namespace

SettingsUserDefaults::SettingsUserDefaults(const QString& filePath)
    : m_settings(openSettings(filePath))
{
}

QString SettingsUserDefaults::defaultFilePath()
{
    return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation)
        + QStringLiteral("/tessera/tessera.ini");
}

bool SettingsUserDefaults::synchronize()
{
    m_settings->sync();
    return m_settings->status() == QSettings::NoError;
}

std::optional<std::string> SettingsUserDefaults::storedText(std::string_view key) const
{
    const QVariant value = m_settings->value(settingsKey(key));
    return value.isValid() ? std::optional(value.toString().toStdString()) : std::nullopt;
}

void SettingsUserDefaults::storeText(std::string_view key, const std::string& text)
{
    makePrivate(m_settings->fileName());
    m_settings->setValue(settingsKey(key), QString::fromStdString(text));
}

std::vector<RecentRecord> SettingsUserDefaults::storedRecords(std::string_view key) const
{
    std::vector<RecentRecord> records;
    // Reading an array moves QSettings' own place in the file, which is put back at the end.
    QSettings& settings = *m_settings;
    const int count = settings.beginReadArray(settingsKey(key));
    for (int i = 0; i < count; ++i) {
        settings.setArrayIndex(i);
        // The count is only what the file claims.
        if (settings.childKeys().isEmpty()) {
            break;
        }
        if (std::optional<RecentRecord> record = readRecord(settings)) {
            records.push_back(*std::move(record));
        }
    }
    settings.endArray();
    return records;
}

void SettingsUserDefaults::storeRecords(
    std::string_view key, const std::vector<RecentRecord>& records)
{
    makePrivate(m_settings->fileName());
    // An array that is written shorter would keep its old entries behind the new end.
    m_settings->remove(settingsKey(key));
    m_settings->beginWriteArray(settingsKey(key), static_cast<int>(records.size()));
    for (std::size_t i = 0; i < records.size(); ++i) {
        m_settings->setArrayIndex(static_cast<int>(i));
        writeRecord(*m_settings, records[i]);
    }
    m_settings->endArray();
}

} // namespace tessera
