// SPDX-License-Identifier: MIT
#include "Platform/Linux/LongPath.h"

#include <fcntl.h>

#include <algorithm>
#include <cerrno>
#include <climits>
#include <cstddef>
#include <filesystem>
#include <string_view>
#include <system_error>
#include <utility>

namespace tessera {

namespace {

constexpr std::size_t kMaxPieceLength = PATH_MAX - 1;

int openForReaching(int folder, const std::string& path)
{
    int number = -1;
    do {
        number = ::openat(folder, path.c_str(), O_PATH | O_DIRECTORY | O_CLOEXEC);
    } while (number < 0 && errno == EINTR);
    return number;
}

/// The longest beginning of a relative path that one call takes and that ends with a whole name.
std::string_view firstPiece(std::string_view path)
{
    if (path.size() <= kMaxPieceLength) {
        return path;
    }
    const std::size_t slash = path.rfind('/', kMaxPieceLength);
    return path.substr(0, slash == 0 || slash == std::string_view::npos ? path.size() : slash);
}

NamedPlace openFolder(std::string_view path, std::string name)
{
    NamedPlace place;
    place.name = std::move(name);
    std::string piece = path.starts_with('/') ? "/" : ".";
    int from = AT_FDCWD;
    do {
        const int number = openForReaching(from, piece);
        if (number < 0) {
            place.error = errno;
            return place;
        }
        place.folder = FileDescriptor(number);
        from = number;
        path.remove_prefix(std::min(path.find_first_not_of('/'), path.size()));
        piece = firstPiece(path);
        path.remove_prefix(piece.size());
    } while (!piece.empty());
    return place;
}

} // namespace

NamedPlace openFolderOf(const std::string& path)
{
    std::string_view rest = path;
    while (rest.ends_with('/')) {
        rest.remove_suffix(1);
    }
    const std::size_t slash = rest.rfind('/');
    const std::size_t nameStart = slash == std::string_view::npos ? 0 : slash + 1;
    const std::string_view name = rest.substr(nameStart);
    if (name != "." && name != ".." && !name.empty()) {
        return openFolder(rest.substr(0, nameStart), std::string(name));
    }
    std::error_code error;
    const std::filesystem::path resolved = std::filesystem::canonical(path, error);
    if (!error && !resolved.has_filename()) {
        error = std::make_error_code(std::errc::invalid_argument);
    }
    if (error) {
        return {error.value(), {}, {}};
    }
    return openFolder(resolved.parent_path().native(), resolved.filename().string());
}

} // namespace tessera
