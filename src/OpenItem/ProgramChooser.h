// SPDX-License-Identifier: MIT
#pragma once

#include "Desktop/OtherPrograms.h"

#include <QDialog>

#include <functional>
#include <string_view>
#include <vector>

class QCheckBox;
class QListWidget;
class QPushButton;

namespace tessera {

/// Lets the user choose the program that opens an item. It deletes itself when it closes. Main
/// thread only.
class ProgramChooser final : public QDialog {
    Q_OBJECT

public:
    /// The item's name is bytes. The programs that are for it come first and are all that is listed
    /// at first, unless there are none.
    ProgramChooser(std::string_view itemName, std::vector<ProgramChoice> programs, QWidget* parent);

signals:
    void chosen(const std::string& programId);

private:
    void list(bool withAll);
    void choose();

    const std::vector<ProgramChoice> m_programs;
    QListWidget* m_list;
    QCheckBox* m_showAll;
    QPushButton* m_open = nullptr;
};

} // namespace tessera
