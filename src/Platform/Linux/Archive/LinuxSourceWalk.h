// SPDX-License-Identifier: MIT
#pragma once

#include "HelperPrograms/Archiver/SourceWalk.h"
#include "Platform/Linux/Archive/SparseFileReader.h"
#include "Platform/Linux/Files/FileStatus.h"
#include "Platform/Linux/Files/LongPath.h"
#include "Platform/Linux/Mounts/MountBoundary.h"

#include <optional>
#include <string>
#include <vector>

namespace tessera {

/// Walks an item of the real file system in the order of the names' bytes. Everything is opened by
/// its own name in the open folder above, so depth is no limit and nothing that is moved meanwhile
/// leads elsewhere. Only the innermost folders stay open; a folder further up is opened again
/// through the one left, if it still is the same.
class LinuxSourceWalk final : public SourceWalk {
public:
    /// `start` is the status of what `source` names.
    LinuxSourceWalk(NamedPlace source, const FileStatus& start);

    void passOver(const FileIdentity& file) override { m_passedOver = file; }
    [[nodiscard]] Step next(ArchiveItem& item) override;
    int error() const override { return m_error; }
    [[nodiscard]] ContentPart read(std::span<char> buffer) override;

private:
    /// A folder that the walk is in.
    struct Place {
        FileDescriptor handle; ///< closed while many folders further in are open
        FileIdentity identity;
        std::vector<std::string> names; ///< still to be visited, the next one last
        std::size_t pathLength = 0;
    };

    std::optional<Step> visit(int folder, const std::string& name, ArchiveItem& item);
    std::optional<Step> visitFolder(
        int folder, const std::string& name, const FileStatus& status, ArchiveItem& item);
    std::optional<Step> visitFile(int folder, const std::string& name, ArchiveItem& item);
    std::optional<Step> visitLink(
        int folder, const std::string& name, const FileStatus& status, ArchiveItem& item);
    Step failed(int error);
    Step notFound(int error);
    bool isAtSource() const { return m_places.size() == 1; }
    void enterFolder(FileDescriptor handle, std::vector<std::string> names);
    void leaveFolder();

    const MountBoundary m_boundary;
    std::optional<FileIdentity> m_passedOver;
    std::vector<Place> m_places; ///< outermost first, which is the one around the source
    std::string m_path; ///< of the last item
    std::optional<SparseFileReader> m_content;
    int m_error = 0;
};

} // namespace tessera
