// SPDX-License-Identifier: MIT
#pragma once

#include "HelperPrograms/Archiver/ArchiveItem.h"
#include "HelperPrograms/Archiver/ArchiveOutput.h"

#include <cstddef>
#include <memory>
#include <span>

struct archive;
struct archive_entry;

namespace tessera {

/// Writes a zip archive from its beginning to its end, with ZIP64 where sizes or counts need it.
/// The first error stays: from then on nothing is written any more. Sets the process's character
/// set (LC_CTYPE), so no second thread may use that meanwhile.
class ZipWriter {
public:
    /// The format has 16 bits for the length of a path, the slash behind a folder's included.
    static constexpr std::size_t kMaxPathLength = 65534;

    /// `output` must outlive the writer.
    explicit ZipWriter(ArchiveOutput& output);
    ZipWriter(const ZipWriter&) = delete;
    ZipWriter& operator=(const ZipWriter&) = delete;
    ~ZipWriter();

    /// Begins the next entry. Its path must be no longer than kMaxPathLength.
    void begin(const ArchiveItem& item);

    /// Adds to the content of the entry. What exceeds its announced length is dropped; when there
    /// is less, the entry has the length of what was written.
    void write(std::span<const char> content);

    /// Completes the archive. Without it the archive stays a fragment.
    void finish();

    /// The first error, as an errno; 0 when there is none.
    int error() const { return m_error; }

private:
    struct ArchiveDeleter {
        void operator()(struct archive* archive) const;
    };
    struct EntryDeleter {
        void operator()(struct archive_entry* entry) const;
    };

    static std::ptrdiff_t writeToOutput(
        struct archive* archive, void* writer, const void* bytes, std::size_t length);
    void check(std::ptrdiff_t status);

    ArchiveOutput& m_output;
    int m_error = 0;
    std::unique_ptr<struct archive, ArchiveDeleter> m_archive;
    std::unique_ptr<struct archive_entry, EntryDeleter> m_entry;
};

} // namespace tessera
