// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace tessera {

/// The last component of a path of bytes; "/" for the root, trailing slashes not counted.
std::string_view lastPathComponent(std::string_view path);

/// The bytes as ASCII text: every byte outside RFC 3986's path characters as %XX.
std::string percentEncoded(std::string_view bytes);

/// The reverse; nothing when a percent sign is not followed by two hexadecimal digits.
std::optional<std::string> percentDecoded(std::string_view text);

/// Whether the text starts with a word of ASCII letters, given in lower case, in either case.
bool startsWithWord(std::string_view text, std::string_view lowerCaseWord);

/// A file URL: a path of bytes that may be no valid text, and whether it names a directory.
class Url {
public:
    Url() = default;

    /// Trailing slashes of `path` are dropped, but the root stays "/".
    Url(std::string_view path, bool isDirectory);

    /// Whether the text names a file by a URL, right or wrong, and not by a path.
    static bool isWrittenIn(std::string_view text);

    /// Reads what absoluteString() gives, and what other programs write (RFC 8089): also
    /// "localhost" as the host, or none at all, as in "file:/path". A slash at the end says that it
    /// is a directory. Nothing for other kinds of URL.
    static std::optional<Url> fromAbsoluteString(std::string_view text);

    /// Absolute path as bytes, without a trailing slash.
    const std::string& path() const { return m_path; }
    bool isDirectory() const { return m_isDirectory; }
    bool empty() const { return m_path.empty(); }

    std::string_view lastPathComponent() const { return tessera::lastPathComponent(m_path); }

    /// "file://" and the path, every byte outside RFC 3986's path characters percent-encoded; a
    /// directory's ends in a slash.
    std::string absoluteString() const;

    bool operator==(const Url& other) const = default;

private:
    std::string m_path;
    bool m_isDirectory = false;
};

} // namespace tessera
