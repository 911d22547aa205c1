// SPDX-License-Identifier: MIT
#pragma once

#include "Base/Url.h"

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

namespace tessera {

/// A program of the desktop's that opens items.
struct ProgramChoice {
    std::string id; ///< what the desktop knows it by
    std::string name; ///< for the user
    std::string icon = {}; ///< a name of the icon theme's, or an absolute path; empty for none
    bool isForItem = true; ///< it says that it opens such items

    bool operator==(const ProgramChoice& other) const = default;
};

/// What came of handing an item to another program.
enum class HandOver : std::uint8_t {
    Done,
    Gone, ///< nothing is there any more
    MayNotLook, ///< for want of rights
    NoAnswer, ///< in time, from the disk
    IsProgram, ///< it is one itself, and opening it might run it
    NoProgram, ///< the desktop has none for it
    Failed, ///< the other program did not start
};

/// What hands items to other programs. No operation waits until it is done, whatever disk the item
/// is on; no name is ever read by a shell. Completion handlers are called later, once, and not when
/// this object is gone by then. Main thread only.
class OtherPrograms {
public:
    using Completion = std::function<void(HandOver outcome)>;
    /// The programs with Done, the usual one first, those that are not for the item last.
    using ProgramsCompletion
        = std::function<void(HandOver outcome, const std::vector<ProgramChoice>& programs)>;

    OtherPrograms() = default;
    OtherPrograms(const OtherPrograms&) = delete;
    OtherPrograms& operator=(const OtherPrograms&) = delete;
    virtual ~OtherPrograms() = default;

    /// Opens the item in the program that the desktop has for it. Never runs it: a program is not
    /// opened, and a script is opened as the text that it is.
    virtual void open(const Url& item, Completion completion) = 0;

    /// Asks which programs may open the item.
    virtual void findPrograms(const Url& item, ProgramsCompletion completion) = 0;

    /// Opens the item in one of them.
    virtual void openWith(const Url& item, const std::string& programId, Completion completion) = 0;

    /// Opens a window with a shell in the folder.
    virtual void openTerminal(const Url& folder, Completion completion) = 0;

    /// Has the file manager show what it tells of the item.
    virtual void showProperties(const Url& item, Completion completion) = 0;
};

} // namespace tessera
