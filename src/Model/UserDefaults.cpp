// SPDX-License-Identifier: MIT
#include "Model/UserDefaults.h"

#include <charconv>
#include <system_error>
#include <utility>

namespace tessera {

namespace {

constexpr std::string_view kTrue = "true";
constexpr std::string_view kFalse = "false";

std::optional<int> parsedInteger(std::string_view text)
{
    int value = 0;
    const char* const end = text.data() + text.size();
    const auto [stop, error] = std::from_chars(text.data(), end, value);
    return error == std::errc{} && stop == end ? std::optional(value) : std::nullopt;
}

std::optional<bool> parsedBoolean(std::string_view text)
{
    // A settings file may have been edited by hand.
    if (text == kTrue || text == "1") {
        return true;
    }
    if (text == kFalse || text == "0") {
        return false;
    }
    return std::nullopt;
}

} // namespace

template <typename T>
T UserDefaults::registered(std::string_view key) const
{
    const auto found = m_defaults.find(key);
    const T* value = found != m_defaults.end() ? std::get_if<T>(&found->second) : nullptr;
    return value != nullptr ? *value : T{};
}

int UserDefaults::integer(std::string_view key) const
{
    const std::optional<std::string> text = storedText(key);
    const std::optional<int> value = text ? parsedInteger(*text) : std::nullopt;
    return value ? *value : registered<int>(key);
}

bool UserDefaults::boolean(std::string_view key) const
{
    const std::optional<std::string> text = storedText(key);
    const std::optional<bool> value = text ? parsedBoolean(*text) : std::nullopt;
    return value ? *value : registered<bool>(key);
}

std::string UserDefaults::string(std::string_view key) const
{
    std::optional<std::string> text = storedText(key);
    return text ? *std::move(text) : registered<std::string>(key);
}

std::vector<RecentRecord> UserDefaults::recentRecords(std::string_view key) const
{
    return storedRecords(key);
}

void UserDefaults::setInteger(std::string_view key, int value)
{
    setText(key, std::to_string(value));
}

void UserDefaults::setBoolean(std::string_view key, bool value)
{
    setText(key, std::string(value ? kTrue : kFalse));
}

void UserDefaults::setString(std::string_view key, const std::string& value)
{
    setText(key, value);
}

void UserDefaults::setRecentRecords(std::string_view key, const std::vector<RecentRecord>& records)
{
    if (storedRecords(key) == records) {
        return;
    }
    storeRecords(key, records);
    m_observers.notify(key);
}

void UserDefaults::registerDefaults(std::map<std::string, Value, std::less<>> defaults)
{
    // merge() keeps what is there, so the newer ones take in the older ones.
    defaults.merge(m_defaults);
    m_defaults = std::move(defaults);
}

Observation UserDefaults::addChangeObserver(std::function<void(std::string_view)> callback)
{
    return m_observers.add(std::move(callback));
}

void UserDefaults::setText(std::string_view key, const std::string& text)
{
    // Two controls bound to one key set each other; this ends the echo.
    if (storedText(key) == text) {
        return;
    }
    storeText(key, text);
    m_observers.notify(key);
}

} // namespace tessera
