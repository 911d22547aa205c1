// SPDX-License-Identifier: MIT
#pragma once

#include "Archiver/ArchiveFailure.h"
#include "Archiver/SourceWalk.h"
#include "Archiver/ZipWriter.h"

#include <cstddef>
#include <string>
#include <vector>

namespace tessera {

/// What an archive does not hold, and why. Of many cases the first one stands for all.
struct ArchiveReport {
    int outputError = 0; ///< errno; the archive is a fragment
    std::size_t failureCount = 0; ///< items that should be in the archive and are not, or not whole
    ArchiveFailure firstFailure;
    std::size_t leftOutCount = 0; ///< items that have no content to archive
    std::string firstLeftOut;
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
    void copyContent(const std::string& path);
    void archiveAttributes(const ArchiveItem& item);
    void noteFailure(int code, const std::string& path);
    void noteLeftOut(const std::string& path);

    SourceWalk& m_source;
    ArchiveOutput& m_output;
    ZipWriter m_zip;
    std::vector<char> m_buffer;
    ArchiveReport m_report;
};

} // namespace tessera
