// SPDX-License-Identifier: MIT
#include "Platform/Linux/Desktop/UserDirectories.h"

#include <optional>
#include <sstream>

namespace tessera {

namespace {

constexpr std::string_view kHome = "$HOME";

std::string_view trimmed(std::string_view text)
{
    constexpr std::string_view kBlanks = " \t\r";
    const std::size_t begin = text.find_first_not_of(kBlanks);
    if (begin == std::string_view::npos) {
        return {};
    }
    return text.substr(begin, text.find_last_not_of(kBlanks) - begin + 1);
}

/// The content of a word in double quotes, as a shell reads it: a backslash quotes what follows.
std::optional<std::string> unquoted(std::string_view word)
{
    if (word.size() < 2 || word.front() != '"') {
        return std::nullopt;
    }
    std::string content;
    for (std::size_t i = 1; i < word.size(); ++i) {
        if (word[i] == '"') {
            return content;
        }
        if (word[i] == '\\' && i + 1 < word.size()) {
            ++i;
        }
        content += word[i];
    }
    return std::nullopt;
}

/// Values are absolute, or relative to the home directory as "$HOME/music"; no other form counts.
std::optional<std::string> pathFrom(std::string_view value, const std::string& homeDirectory)
{
    std::optional<std::string> path = unquoted(value);
    if (!path) {
        return std::nullopt;
    }
    if (*path == kHome || path->starts_with(std::string(kHome) + '/')) {
        path->replace(0, kHome.size(), homeDirectory);
    }
    while (path->size() > 1 && path->back() == '/') {
        path->pop_back();
    }
    return path->starts_with('/') ? path : std::nullopt;
}

} // namespace

std::map<std::string, std::string, std::less<>> userDirectories(
    std::string_view text, const std::string& homeDirectory)
{
    std::map<std::string, std::string, std::less<>> directories;
    std::istringstream lines{std::string(text)};
    for (std::string line; std::getline(lines, line);) {
        const std::string_view entry = trimmed(line);
        const std::size_t equals = entry.find('=');
        if (entry.starts_with('#') || equals == std::string_view::npos) {
            continue;
        }
        const std::string_view value = trimmed(entry.substr(equals + 1));
        if (std::optional<std::string> path = pathFrom(value, homeDirectory)) {
            const std::string_view key = trimmed(entry.substr(0, equals));
            directories.insert_or_assign(std::string(key), std::move(*path));
        }
    }
    return directories;
}

} // namespace tessera
