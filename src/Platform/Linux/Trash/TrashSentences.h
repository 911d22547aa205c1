// SPDX-License-Identifier: MIT
#pragma once

#include <string>

namespace tessera {

/// The context of the sentences, for QT_TRANSLATE_NOOP.
inline constexpr const char* kTrashSentences = "TrashSentences";

/// A sentence that a window will show, in the user's language. What stands at its places %1 and %2
/// are bytes, as names are. In any thread.
[[nodiscard]] std::string trashSentence(
    const char* english, const std::string& first = {}, const std::string& second = {});

/// Why an item is left where it is, whoever asks.
enum class TrashRefusal {
    OtherItem,
    MountsUnknown,
    MountPoint,
    MountInside,
    HomeFolder,
    HoldsTrash,
    InTrash
};

[[nodiscard]] std::string refusalSentence(TrashRefusal refusal, const std::string& name);

} // namespace tessera
