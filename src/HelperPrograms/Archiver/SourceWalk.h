// SPDX-License-Identifier: MIT
#pragma once

#include "Base/FileIdentity.h"
#include "HelperPrograms/Archiver/ArchiveItem.h"

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>

namespace tessera {

/// A part of a file's content; an empty part without an error is the end.
struct ContentPart {
    std::size_t length = 0;
    int error = 0; ///< errno
};

/// Delivers what is to be archived, item by item, a folder before what is in it. Links are
/// delivered, never followed. A folder on which something is mounted is delivered without content.
class SourceWalk {
public:
    enum class Step : std::uint8_t {
        Item, ///< the item is complete; a file's content can be read until the next step
        LeftOut, ///< what has no content and no place in an archive: a socket, say
        Vanished, ///< somebody took it away after it was listed
        Failed, ///< the item could not be read, nor what is in it
        End,
    };

    SourceWalk() = default;
    SourceWalk(const SourceWalk&) = delete;
    SourceWalk& operator=(const SourceWalk&) = delete;
    virtual ~SourceWalk() = default;

    /// Passes over that file should the walk meet it: the archive that is being made.
    virtual void passOver(const FileIdentity& file) = 0;

    /// Moves on. Of what is left out, vanished or failed only the path is set.
    [[nodiscard]] virtual Step next(ArchiveItem& item) = 0;

    /// Why the last step failed, as an errno.
    virtual int error() const = 0;

    /// Fills the buffer's beginning with the next part of the file's content. A file that has
    /// shrunk since it was delivered ends early; what was appended to it is not read.
    [[nodiscard]] virtual ContentPart read(std::span<char> buffer) = 0;
};

} // namespace tessera
