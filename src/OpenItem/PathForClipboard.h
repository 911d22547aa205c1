// SPDX-License-Identifier: MIT
#pragma once

#include <memory>

class QMimeData;

namespace tessera {

class Url;

/// What a copied path gives to other programs: as text exactly its bytes, whatever they are, and
/// to who takes files the file's address.
[[nodiscard]] std::unique_ptr<QMimeData> pathForClipboard(const Url& item);

} // namespace tessera
