// SPDX-License-Identifier: MIT
#include "Platform/Linux/Desktop/LinuxStandardFolders.h"

#include "Platform/Linux/Desktop/UserDirectories.h"
#include "Platform/Linux/Files/RealPath.h"

#include <fstream>
#include <iterator>
#include <string_view>

namespace tessera {

namespace {

std::string_view userDirectoryKey(LocationKind kind)
{
    switch (kind) {
    case LocationKind::Desktop:
        return "XDG_DESKTOP_DIR";
    case LocationKind::Documents:
        return "XDG_DOCUMENTS_DIR";
    case LocationKind::Downloads:
        return "XDG_DOWNLOAD_DIR";
    case LocationKind::Movies:
        return "XDG_VIDEOS_DIR";
    case LocationKind::Music:
        return "XDG_MUSIC_DIR";
    case LocationKind::Pictures:
        return "XDG_PICTURES_DIR";
    case LocationKind::Public:
        return "XDG_PUBLICSHARE_DIR";
    default:
        return {};
    }
}

/// Where no such folder is set.
std::string usualLocation(LocationKind kind, const std::string& homeDirectory)
{
    switch (kind) {
    case LocationKind::Applications:
        return "/usr";
    case LocationKind::Library:
        return homeDirectory + "/.local/share";
    case LocationKind::Trash:
        return homeDirectory + "/.local/share/Trash/files";
    case LocationKind::Movies:
        return homeDirectory + "/Videos";
    default:
        return {};
    }
}

} // namespace

Url LinuxStandardFolders::localUsers() const
{
    return {realPath("/home").value_or("/home"), true};
}

std::string LinuxStandardFolders::equivalentLocation(
    LocationKind kind, const std::string& homeDirectory) const
{
    const std::string_view key = userDirectoryKey(kind);
    if (!key.empty()) {
        std::ifstream file(homeDirectory + "/.config/user-dirs.dirs", std::ios::binary);
        const std::string text{std::istreambuf_iterator<char>(file), {}};
        const auto directories = userDirectories(text, homeDirectory);
        const auto found = directories.find(key);
        if (found != directories.end()) {
            return found->second;
        }
    }
    return usualLocation(kind, homeDirectory);
}

} // namespace tessera
