// SPDX-License-Identifier: MIT
#include "OpenItem/ItemOpening.h"

#include "Base/DisplayText.h"
#include "Desktop/Alert.h"
#include "Model/File.h"
#include "Model/Folder.h"
#include "Model/NodeLookup.h"
#include "OpenItem/PathForClipboard.h"
#include "OpenItem/ProgramChooser.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QMimeData>
#include <QWidget>

#include <string>

namespace tessera {

namespace {

/// Where a terminal opens.
Url folderOf(const File& item)
{
    const bool isFolder = item.isFolder() || item.parent() == nullptr;
    return placeOnDisk(isFolder ? item : *item.parent());
}

QString whyNotLooked(HandOver outcome)
{
    switch (outcome) {
    case HandOver::Gone:
        return ItemOpening::tr(
            "It is not there any more. It was moved or deleted after the scan; a rescan of the "
            "folder around it shows what is there now.");
    case HandOver::MayNotLook:
        return ItemOpening::tr("You are not allowed to look there.");
    case HandOver::NoAnswer:
        return ItemOpening::tr("The disk that it is on does not answer.");
    default:
        return ItemOpening::tr("The program did not start.");
    }
}

QString whyNoProgram(Command command)
{
    switch (command) {
    case Command::OpenTerminal:
        return ItemOpening::tr("No terminal was found on this computer.");
    case Command::Properties:
        return ItemOpening::tr(
            "The desktop offers no file manager that shows properties, or it did not answer.");
    default:
        return ItemOpening::tr(
            "The desktop has no program for it. Open With lets you choose among all programs.");
    }
}

QString headline(Command command, const QString& name)
{
    switch (command) {
    case Command::OpenTerminal:
        return ItemOpening::tr("No terminal can be opened in '%1'").arg(name);
    case Command::Properties:
        return ItemOpening::tr("The properties of '%1' cannot be shown").arg(name);
    default:
        return ItemOpening::tr("'%1' cannot be opened").arg(name);
    }
}

} // namespace

ItemOpening::ItemOpening(OtherPrograms& programs, Alert& alert, QWidget& view)
    : m_programs(programs)
    , m_alert(alert)
    , m_view(view)
{
}

ItemOpening::~ItemOpening()
{
    delete m_chooser; // NOLINT(cppcoreguidelines-owning-memory): it would act for this object
}

void ItemOpening::perform(Command command, const File& item)
{
    if (!isItem(item)) {
        return;
    }
    const Url place = placeOnDisk(item);
    switch (command) {
    case Command::OpenItem:
        m_programs.open(place, tell(command, place));
        break;
    case Command::OpenWith:
        chooseProgram(place);
        break;
    case Command::CopyPath:
        QGuiApplication::clipboard()->setMimeData(pathForClipboard(item.url()).release());
        break;
    case Command::OpenTerminal: {
        const Url folder = folderOf(item);
        m_programs.openTerminal(folder, tell(command, folder));
        break;
    }
    case Command::Properties:
        m_programs.showProperties(place, tell(command, place));
        break;
    default:
        break;
    }
}

void ItemOpening::chooseProgram(const Url& item)
{
    m_programs.findPrograms(
        item,
        [self = QPointer<ItemOpening>(this),
         item](HandOver outcome, const std::vector<ProgramChoice>& programs) {
            if (self == nullptr) {
                return;
            }
            const bool isChoice = outcome == HandOver::Done && !programs.empty();
            if (isChoice) {
                self->showChooser(item, programs);
            } else {
                self->say(
                    Command::OpenWith,
                    item,
                    outcome == HandOver::Done ? HandOver::NoProgram : outcome);
            }
        });
}

void ItemOpening::showChooser(const Url& item, const std::vector<ProgramChoice>& programs)
{
    delete m_chooser; // NOLINT(cppcoreguidelines-owning-memory): of a question asked before
    // NOLINTNEXTLINE(cppcoreguidelines-owning-memory): it deletes itself when it closes
    m_chooser = new ProgramChooser(item.lastPathComponent(), programs, m_view.window());
    connect(m_chooser, &ProgramChooser::chosen, this, [this, item](const std::string& programId) {
        m_programs.openWith(item, programId, tell(Command::OpenWith, item));
    });
    m_chooser->show();
}

OtherPrograms::Completion ItemOpening::tell(Command command, const Url& item)
{
    return [self = QPointer<ItemOpening>(this), command, item](HandOver outcome) {
        if (self != nullptr && outcome != HandOver::Done) {
            self->say(command, item, outcome);
        }
    };
}

void ItemOpening::say(Command command, const Url& item, HandOver outcome)
{
    const QString title = headline(command, displayText(item.lastPathComponent()));
    QString text;
    if (outcome == HandOver::IsProgram) {
        text = tr("It is a program, and Tessera runs none. Start it in your file manager, or look "
                  "into it with Open With.");
    } else {
        text = outcome == HandOver::NoProgram ? whyNoProgram(command) : whyNotLooked(outcome);
    }
    m_alert.beginSheet({title, text, {tr("OK")}});
}

} // namespace tessera
