// SPDX-License-Identifier: MIT
#include "Platform/Linux/Archive/LinuxArchiveOutput.h"

#include "Platform/Linux/Archive/EndLater.h"
#include "Platform/Linux/Files/FileStatus.h"
#include "Platform/Linux/Files/RenameWithoutReplacing.h"

#include <unistd.h>

#include <cerrno>
#include <cstddef>
#include <utility>

namespace tessera {

LinuxArchiveOutput::LinuxArchiveOutput(
    FileDescriptor file, const FileIdentity& identity, NamedPlace target, std::string partName)
    : m_file(std::move(file))
    , m_identity(identity)
    , m_target(std::move(target))
    , m_partName(std::move(partName))
{
}

int LinuxArchiveOutput::write(std::span<const char> bytes)
{
    while (!bytes.empty()) {
        const ssize_t count = ::write(m_file.number(), bytes.data(), bytes.size());
        if (count < 0 && errno != EINTR) {
            return errno;
        }
        bytes = bytes.subspan(static_cast<std::size_t>(count < 0 ? 0 : count));
    }
    return 0;
}

int LinuxArchiveOutput::close()
{
    if (::fsync(m_file.number()) != 0) {
        return errno;
    }
    // File systems that write late report at any closing what went wrong, and the file's own
    // descriptor has no way to say so.
    const int copy = ::dup(m_file.number());
    return copy >= 0 && ::close(copy) == 0 ? 0 : errno;
}

int LinuxArchiveOutput::publish()
{
    // It may take two steps, between which something that is no archive has the name.
    const EndLater endLater;
    const int error
        = renameWithoutReplacing({m_target.folder, m_partName}, {m_target.folder, m_target.name});
    if (error == 0) {
        return 0;
    }
    // A server that carried it out may have been cut off before it could say so.
    const StatusResult found = statusAt(m_target.folder.number(), m_target.name.c_str());
    return found && found.status.identity == m_identity ? 0 : error;
}

void LinuxArchiveOutput::giveRoomBack()
{
    // What cannot be cut stays as long as it is; the failure that led here is told in any case.
    [[maybe_unused]] const int result = ::ftruncate(m_file.number(), 0);
}

} // namespace tessera
