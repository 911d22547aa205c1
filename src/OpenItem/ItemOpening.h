// SPDX-License-Identifier: MIT
#pragma once

#include "Base/Url.h"
#include "Commands/Command.h"
#include "Desktop/OtherPrograms.h"

#include <QObject>
#include <QPointer>

#include <vector>

class QWidget;

namespace tessera {

class Alert;
class File;
class ProgramChooser;

/// What can be done with an item in other programs: they open it, show its properties or a
/// terminal in its folder, or take its path. What does not work is told. Main thread only.
class ItemOpening final : public QObject {
    Q_OBJECT

public:
    /// All must outlive it. The chooser of programs is shown over the window of `view`.
    ItemOpening(OtherPrograms& programs, Alert& alert, QWidget& view);
    ~ItemOpening() override;

    /// Carries out one of the commands that are about an item in other programs; of other commands,
    /// and for space that is no item, does nothing. The item may leave the tree meanwhile.
    void perform(Command command, const File& item);

private:
    void chooseProgram(const Url& item);
    void showChooser(const Url& item, const std::vector<ProgramChoice>& programs);
    OtherPrograms::Completion tell(Command command, const Url& item);
    void say(Command command, const Url& item, HandOver outcome);

    OtherPrograms& m_programs;
    Alert& m_alert;
    QWidget& m_view;
    QPointer<ProgramChooser> m_chooser;
};

} // namespace tessera
