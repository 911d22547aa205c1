// SPDX-License-Identifier: MIT
#pragma once

#include "Base/Observation.h"

#include <chrono>
#include <cstdint>
#include <functional>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace tessera {

inline constexpr std::string_view kTooltipTypeKey = "TooltipType";
inline constexpr std::string_view kWarnDeleteHiddenKey = "WarnDeleteHidden";
inline constexpr std::string_view kWarnDeleteSystemKey = "WarnDeleteSystem";
inline constexpr std::string_view kFolderSizesKey = "FolderSizes"; ///< in folder titles
inline constexpr std::string_view kStatusLineKey = "StatusLine";
inline constexpr std::string_view kGreetedKey = "Greeted"; ///< on the first start
inline constexpr std::string_view kRecentsKey = "recents";

/// One finished scan, as the list of recent scans remembers it.
struct RecentRecord {
    std::string path; ///< absolute path of the scanned folder, as bytes
    std::uint64_t size = 0; ///< bytes on disk at that time
    std::chrono::sys_seconds date; ///< when it was scanned

    bool operator==(const RecentRecord&) const = default;
};

/// The user's settings: values by key. What the user never set reads as the registered default,
/// and without one as 0, false or empty. Main thread only.
class UserDefaults {
public:
    using Value = std::variant<bool, int, std::string>;

    UserDefaults() = default;
    UserDefaults(const UserDefaults&) = delete;
    UserDefaults& operator=(const UserDefaults&) = delete;
    virtual ~UserDefaults() = default;

    /// A stored value that is none of the asked type counts as not stored.
    int integer(std::string_view key) const;
    bool boolean(std::string_view key) const;
    /// UTF-8.
    std::string string(std::string_view key) const;
    /// Without those entries that are broken; empty when there is no list.
    std::vector<RecentRecord> recentRecords(std::string_view key) const;

    void setInteger(std::string_view key, int value);
    void setBoolean(std::string_view key, bool value);
    void setString(std::string_view key, const std::string& value);
    void setRecentRecords(std::string_view key, const std::vector<RecentRecord>& records);

    /// Values for keys that nobody set, never written to the store. Adds to those registered
    /// before.
    void registerDefaults(std::map<std::string, Value, std::less<>> defaults);

    /// Brings the store on disk and this object to the same state, now; false when that failed.
    virtual bool synchronize() = 0;

    /// The callback gets the key of each value that was set to something new.
    [[nodiscard]] Observation addChangeObserver(std::function<void(std::string_view)> callback);

private:
    virtual std::optional<std::string> storedText(std::string_view key) const = 0;
    virtual void storeText(std::string_view key, const std::string& text) = 0;
    virtual std::vector<RecentRecord> storedRecords(std::string_view key) const = 0;
    virtual void storeRecords(std::string_view key, const std::vector<RecentRecord>& records) = 0;

    template <typename T>
    T registered(std::string_view key) const;
    void setText(std::string_view key, const std::string& text);

    std::map<std::string, Value, std::less<>> m_defaults;
    ObserverList<std::string_view> m_observers;
};

} // namespace tessera
