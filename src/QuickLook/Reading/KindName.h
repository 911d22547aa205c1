// SPDX-License-Identifier: MIT
#pragma once

#include "QuickLook/Reading/FileReader.h"

#include <QByteArray>
#include <QString>

#include <cstdint>
#include <string>

namespace tessera {

/// What of a file's content can be seen.
enum class ContentShown : std::uint8_t { Nothing, Picture, Pages, Text };

/// What the user is told that a file is: "PNG image", in their language. A file's name tells its
/// kind more closely than its first bytes do, but not against them, nor against what is shown. The
/// path is bytes.
QString kindNameOfContent(const std::string& path, const QByteArray& beginning, ContentShown shown);

/// Likewise of an item that has no content, or none that can be read.
QString kindNameOfItem(const std::string& path, FileKind kind);

} // namespace tessera
