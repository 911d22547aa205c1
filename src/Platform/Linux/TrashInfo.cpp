// SPDX-License-Identifier: MIT
#include "Platform/Linux/TrashInfo.h"

#include "Model/Url.h"

#include <algorithm>
#include <array>

namespace tessera {

namespace {

/// A longer one is no extension but the rest of a name that has a dot in it.
constexpr std::size_t kMaxExtensionBytes = 16;

/// Whether the byte continues a UTF-8 character.
bool continuesCharacter(char byte)
{
    constexpr unsigned kMarkMask = 0xC0;
    constexpr unsigned kContinuationMark = 0x80;
    return (static_cast<unsigned char>(byte) & kMarkMask) == kContinuationMark;
}

/// Where the extension begins, its dot included; the end when there is none.
std::size_t extensionStart(std::string_view name)
{
    const std::size_t dot = name.rfind('.');
    const bool isExtension = dot != std::string_view::npos && dot != 0 && name.size() - dot > 1
        && name.size() - dot <= kMaxExtensionBytes;
    return isExtension ? dot : name.size();
}

std::string_view cutTo(std::string_view stem, std::size_t maxBytes)
{
    constexpr std::size_t kMaxContinuationBytes = 3;
    if (stem.size() <= maxBytes) {
        return stem;
    }
    std::size_t end = maxBytes;
    for (std::size_t i = 0; i < kMaxContinuationBytes && end > 0 && continuesCharacter(stem[end]);
         ++i) {
        --end;
    }
    // More of them than a character has are no UTF-8, and may be cut anywhere.
    return stem.substr(0, end == 0 || continuesCharacter(stem[end]) ? maxBytes : end);
}

std::string localTime(std::time_t time)
{
    std::tm parts{};
    ::localtime_r(&time, &parts);
    std::array<char, sizeof("YYYYYYYYYYY-MM-DDThh:mm:ss")> text{};
    const std::size_t length = std::strftime(text.data(), text.size(), "%Y-%m-%dT%H:%M:%S", &parts);
    return {text.data(), length};
}

} // namespace

std::string trashInfoText(std::string_view originalPath, std::time_t deletionTime)
{
    return "[Trash Info]\nPath=" + percentEncoded(originalPath)
        + "\nDeletionDate=" + localTime(deletionTime) + '\n';
}

std::string trashName(std::string_view name, unsigned number, std::size_t maxBytes)
{
    const std::size_t dot = extensionStart(name);
    const std::string_view extension = name.substr(dot);
    const std::string mark = number < 2 ? std::string() : ' ' + std::to_string(number);
    const std::size_t added = mark.size() + extension.size() + kTrashInfoSuffix.size();
    const std::size_t room = maxBytes > added ? maxBytes - added : 1;
    return std::string(cutTo(name.substr(0, dot), room)).append(mark).append(extension);
}

} // namespace tessera
