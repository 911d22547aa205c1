// SPDX-License-Identifier: MIT
#include "Compress/ArchivePaths.h"

#include "Base/FileNames.h"

#include <cstddef>

namespace tessera {

namespace {

std::size_t nameStart(std::string_view path)
{
    const std::size_t slash = path.rfind('/');
    return slash == std::string_view::npos ? 0 : slash + 1;
}

} // namespace

std::string archivePath(std::string_view sourcePath, unsigned number)
{
    constexpr unsigned kFirstNumber = 2; // there is no "X 1.zip"
    const std::string ending
        = (number < kFirstNumber ? std::string() : ' ' + std::to_string(number)) + ".zip";
    const std::size_t start = nameStart(sourcePath);
    std::string path(sourcePath.substr(0, start));
    path += beginningOfName(sourcePath.substr(start), kMaxNameBytes - ending.size());
    return path += ending;
}

std::string partName(std::string_view archiveName)
{
    return surroundedName({}, archiveName, ".part");
}

std::string partPath(std::string_view archivePath)
{
    const std::size_t start = nameStart(archivePath);
    return std::string(archivePath.substr(0, start)) + partName(archivePath.substr(start));
}

} // namespace tessera
