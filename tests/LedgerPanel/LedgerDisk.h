// SPDX-License-Identifier: MIT
#pragma once

#include "Model/Document.h"
#include "Model/FileSystemAttributes.h"
#include "Model/Volume.h"

#include <cerrno>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <system_error>

namespace tessera::test {

/// A disk of 10,000 bytes, of which 6000 are used.
inline FileSystemSizes ledgerDiskSizes()
{
    return {
        .totalBytes = 10'000,
        .freeBytes = 4000,
        .availableBytes = 3500,
        .reservedBytes = 500,
        .blockBytes = 1,
        .type = {},
        .device = 7};
}

/// A folder of one file, with blocks of its own.
inline std::unique_ptr<Folder> makeLedgerFolder(
    std::string_view name, std::uint64_t ownBytes, std::uint64_t fileBytes)
{
    auto folder = makeNode<Folder>(name);
    folder->setOwnAllocation(ownBytes);
    auto file = makeNode<Document>("file");
    file->setTotalAllocation(fileBytes);
    folder->addChild(std::move(file));
    return folder;
}

/// A disk of that size on which files take 600 bytes and two folders 512 and 1024.
inline std::unique_ptr<Volume> makeLedgerDisk(
    const FileSystemSizes& sizes, std::string_view path = "/mnt/disk")
{
    auto disk = makeNode<Volume>("disk");
    disk->setOrigin(std::string(path));
    disk->setOwnAllocation(512);
    disk->addChild(makeLedgerFolder("docs", 1024, 600));
    disk->refreshVolume(sizes);
    return disk;
}

inline std::error_code systemError(int number)
{
    return {number, std::system_category()};
}

} // namespace tessera::test
