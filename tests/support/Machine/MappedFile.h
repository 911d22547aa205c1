// SPDX-License-Identifier: MIT
#pragma once

#include "Platform/Linux/Files/FileDescriptor.h"

#include <gtest/gtest.h>
#include <sys/mman.h>

#include <cstddef>
#include <cstdint>

namespace tessera::test {

/// The first bytes of a file, mapped into this process's memory.
class MappedFile {
public:
    explicit MappedFile(const FileDescriptor& file)
        : m_address(::mmap(nullptr, kLength, PROT_READ, MAP_PRIVATE, file.number(), 0))
    {
        EXPECT_NE(m_address, MAP_FAILED);
    }
    /// At an address that nothing else may have.
    MappedFile(const FileDescriptor& file, std::uintptr_t address)
        : m_address(::mmap(
            reinterpret_cast<void*>(address), // NOLINT(performance-no-int-to-ptr): it is asked for
            kLength,
            PROT_READ,
            MAP_PRIVATE | MAP_FIXED_NOREPLACE,
            file.number(),
            0))
    {
        EXPECT_NE(m_address, MAP_FAILED);
    }
    MappedFile(const MappedFile&) = delete;
    MappedFile& operator=(const MappedFile&) = delete;
    ~MappedFile() { ::munmap(m_address, kLength); }

private:
    static constexpr std::size_t kLength = 4096;
    void* m_address;
};

} // namespace tessera::test
