// SPDX-License-Identifier: MIT
#pragma once

#include "HelperPrograms/Archiver/ArchiveFailure.h"
#include "HelperPrograms/Archiver/SourceWalk.h"
#include "HelperPrograms/Archiver/ZipWriter.h"

#include <cstddef>
#include <string>
#include <vector>

namespace tessera {

/// Items of which the first one stands for all.
struct CountedItems {
    std::size_t count = 0;
    std::string first; ///< its path

    void add(const std::string& path);
};

/// What an archive does not hold, and why.
struct ArchiveReport {
    int outputError = 0; ///< errno; the archive is a fragment
    std::size_t failureCount = 0; ///< items that should be in the archive and are not, or not whole
    ArchiveFailure firstFailure;
    CountedItems leftOut; ///< have no content to archive
    CountedItems vanished; ///< were taken away before their turn
    CountedItems lackingAttributes; ///< are there, but not all that was attached to them
    CountedItems shrunk; ///< are there with what they still had
};

/// Puts everything that a walk delivers into one zip archive. An item that cannot be read does not
/// keep the others out.
class Archiver {
public:
    /// Both must outlive the archiver.
    Archiver(SourceWalk& source, ArchiveOutput& output);

    /// Makes the whole archive. To be called once.
    [[nodiscard]] ArchiveReport run();

private:
    void archive(const ArchiveItem& item);
    void copyContent(const ArchiveItem& item);
    void archiveAttributes(const ArchiveItem& item);
    void noteFailure(int code, const std::string& path);

    SourceWalk& m_source;
    ArchiveOutput& m_output;
    ZipWriter m_zip;
    std::vector<char> m_buffer;
    ArchiveReport m_report;
};

} // namespace tessera
