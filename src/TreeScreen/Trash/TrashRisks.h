// SPDX-License-Identifier: MIT
#pragma once

namespace tessera {

class File;
class RootModel;
class UserDefaults;

/// What the user wants to be warned of before an item goes to the trash. Main thread only.
class TrashRisks {
public:
    /// Both must outlive it.
    TrashRisks(const RootModel& model, const UserDefaults& defaults);

    /// Whether the item lies where other programs may need it, by where it really is.
    bool isInSystemFolder(const File& item) const;

    /// Whether the item or a folder around it is hidden. The scan's own top folder is where the
    /// user chose to look, so it hides nothing.
    bool isHidden(const File& item) const;

private:
    const RootModel& m_model;
    const UserDefaults& m_defaults;
};

} // namespace tessera
