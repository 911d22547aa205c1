// SPDX-License-Identifier: MIT
#include "Commands/CommandTable.h"

#include "Base/Mnemonic.h"

#include <QCoreApplication>

#include <algorithm>
#include <array>
#include <cassert>

namespace tessera {

namespace {

constexpr const char* kContext = "MainMenu";
constexpr int kNoTag = 0;

constexpr std::array kRows{
    CommandRow{
        Command::OpenFolder,
        MainMenu::File,
        21,
        QT_TRANSLATE_NOOP("MainMenu", "&Open Folder…"),
        QT_TRANSLATE_NOOP("MainMenu", "Lets you choose a folder and scans it."),
        "Ctrl+O"},
    CommandRow{
        Command::Home,
        MainMenu::File,
        41,
        QT_TRANSLATE_NOOP("MainMenu", "Choose &Another Disk or Folder"),
        QT_TRANSLATE_NOOP(
            "MainMenu", "Goes back to the home screen, where you choose what to scan."),
        "Alt+Home"},
    CommandRow{
        Command::Preferences,
        MainMenu::File,
        kNoTag,
        QT_TRANSLATE_NOOP("MainMenu", "&Preferences…"),
        QT_TRANSLATE_NOOP(
            "MainMenu",
            "Lets you choose what is shown under the pointer and when Tessera warns you."),
        "Ctrl+,",
        true},
    CommandRow{
        Command::Quit,
        MainMenu::File,
        kNoTag,
        QT_TRANSLATE_NOOP("MainMenu", "&Quit"),
        QT_TRANSLATE_NOOP(
            "MainMenu", "Ends Tessera, and asks you first while an archive is being made."),
        "Ctrl+Q",
        true},
    CommandRow{
        Command::Undo,
        MainMenu::Edit,
        kNoTag,
        QT_TRANSLATE_NOOP("MainMenu", "&Undo"),
        QT_TRANSLATE_NOOP("MainMenu", "Puts what you moved to the trash last back where it was."),
        "Ctrl+Z"},
    CommandRow{
        Command::Redo,
        MainMenu::Edit,
        kNoTag,
        QT_TRANSLATE_NOOP("MainMenu", "&Redo"),
        QT_TRANSLATE_NOOP("MainMenu", "Moves what you put back last to the trash again."),
        "Ctrl+Shift+Z"},
    CommandRow{
        Command::OpenItem,
        MainMenu::Item,
        kNoTag,
        QT_TRANSLATE_NOOP("MainMenu", "&Open"),
        QT_TRANSLATE_NOOP(
            "MainMenu",
            "Opens the selected item in the program that your desktop has for it, and never runs "
            "it."),
        "Ctrl+Return; Ctrl+Enter"},
    CommandRow{
        Command::OpenWith,
        MainMenu::Item,
        kNoTag,
        QT_TRANSLATE_NOOP("MainMenu", "Open &With…"),
        QT_TRANSLATE_NOOP(
            "MainMenu", "Lets you choose the program in which the selected item opens."),
        "Ctrl+Shift+O"},
    CommandRow{
        Command::QuickLook,
        MainMenu::Item,
        33,
        QT_TRANSLATE_NOOP("MainMenu", "&Quick Look"),
        QT_TRANSLATE_NOOP("MainMenu", "Previews the selected item in a small window."),
        "Ctrl+Y"},
    CommandRow{
        Command::ShowInFinder,
        MainMenu::Item,
        34,
        //: Translate “Show in File Manager”: the system has words of its own.
        QT_TRANSLATE_NOOP("MainMenu", "&Show in Finder"),
        QT_TRANSLATE_NOOP("MainMenu", "Shows the selected item in your file manager."),
        "Ctrl+Shift+R"},
    CommandRow{
        Command::CopyPath,
        MainMenu::Item,
        kNoTag,
        QT_TRANSLATE_NOOP("MainMenu", "Copy &Path"),
        QT_TRANSLATE_NOOP(
            "MainMenu",
            "Copies the path of the selected item, or of the folder in view while nothing is "
            "selected."),
        "Ctrl+C",
        true},
    CommandRow{
        Command::OpenTerminal,
        MainMenu::Item,
        kNoTag,
        QT_TRANSLATE_NOOP("MainMenu", "Open Ter&minal Here"),
        QT_TRANSLATE_NOOP(
            "MainMenu",
            "Opens a terminal in the selected folder, in that of the selected file, or in the "
            "folder in view while nothing is selected."),
        "Shift+F4"},
    CommandRow{
        Command::Rescan,
        MainMenu::Item,
        35,
        QT_TRANSLATE_NOOP("MainMenu", "&Rescan"),
        QT_TRANSLATE_NOOP(
            "MainMenu",
            "Scans the selected folder again, or the folder in view while nothing is selected."),
        "Ctrl+R; F5",
        true},
    CommandRow{
        Command::Ignore,
        MainMenu::Item,
        36,
        QT_TRANSLATE_NOOP("MainMenu", "&Ignore"),
        QT_TRANSLATE_NOOP(
            "MainMenu",
            "Leaves the selected folder out of the picture and changes nothing on the disk."),
        "Ctrl+I"},
    CommandRow{
        Command::Compress,
        MainMenu::Item,
        37,
        QT_TRANSLATE_NOOP("MainMenu", "&Compress"),
        QT_TRANSLATE_NOOP(
            "MainMenu",
            "Makes a zip archive of the selected item beside it; the item itself stays."),
        "Ctrl+Shift+C",
        true,
        QT_TRANSLATE_NOOP("MainMenu", "Compress Folder"),
        QT_TRANSLATE_NOOP("MainMenu", "Compress File")},
    CommandRow{
        Command::AddToBasket,
        MainMenu::Item,
        kNoTag,
        QT_TRANSLATE_NOOP("MainMenu", "Add to &Basket"),
        QT_TRANSLATE_NOOP(
            "MainMenu",
            "Puts the selected item into the basket, or takes it out again; nothing moves on the "
            "disk."),
        "Ctrl+Shift+B"},
    CommandRow{
        Command::MoveToTrash,
        MainMenu::Item,
        38,
        QT_TRANSLATE_NOOP("MainMenu", "Move to &Trash"),
        QT_TRANSLATE_NOOP(
            "MainMenu",
            "Moves the selected item to the trash, after a warning where that is risky."),
        "Ctrl+Del"},
    CommandRow{
        Command::Properties,
        MainMenu::Item,
        kNoTag,
        QT_TRANSLATE_NOOP("MainMenu", "Prop&erties"),
        QT_TRANSLATE_NOOP("MainMenu", "Shows what your file manager tells of the selected item."),
        "Alt+Return; Alt+Enter",
        true},
    CommandRow{
        Command::ZoomIn,
        MainMenu::View,
        32,
        QT_TRANSLATE_NOOP("MainMenu", "Zoom &In"),
        QT_TRANSLATE_NOOP("MainMenu", "Fills the window with the selected folder."),
        "Ctrl++; Ctrl+=; Alt+Down"},
    CommandRow{
        Command::ZoomOut,
        MainMenu::View,
        31,
        QT_TRANSLATE_NOOP("MainMenu", "Zoom &Out"),
        QT_TRANSLATE_NOOP("MainMenu", "Shows the folder around the one in view."),
        "Ctrl+-; Alt+Up"},
    CommandRow{
        Command::Reload,
        MainMenu::View,
        kNoTag,
        QT_TRANSLATE_NOOP("MainMenu", "&Reload"),
        QT_TRANSLATE_NOOP(
            "MainMenu",
            "Scans all that is shown again and leads you back to where you were, or looks for "
            "disks and folders again on the home screen."),
        "Ctrl+F5",
        true},
    CommandRow{
        Command::Basket,
        MainMenu::View,
        kNoTag,
        QT_TRANSLATE_NOOP("MainMenu", "&Basket"),
        QT_TRANSLATE_NOOP(
            "MainMenu",
            "Shows, in a panel beside the picture, what you have collected and what moving it to "
            "the trash will free, or closes that panel."),
        "Ctrl+B",
        true},
    CommandRow{
        Command::SpaceLedger,
        MainMenu::View,
        kNoTag,
        QT_TRANSLATE_NOOP("MainMenu", "Where the &Space Is"),
        QT_TRANSLATE_NOOP(
            "MainMenu",
            "Shows, in a panel beside the picture, what all of the scanned disk's space is used "
            "for, or closes that panel."),
        "Ctrl+L"},
    CommandRow{
        Command::TrashHistory,
        MainMenu::View,
        kNoTag,
        QT_TRANSLATE_NOOP("MainMenu", "&History"),
        QT_TRANSLATE_NOOP(
            "MainMenu", "Lists what you moved to the trash, and puts it back where it was."),
        "Ctrl+H"},
    CommandRow{
        Command::FullScreen,
        MainMenu::View,
        kNoTag,
        QT_TRANSLATE_NOOP("MainMenu", "&Full Screen"),
        QT_TRANSLATE_NOOP(
            "MainMenu", "Lets the window fill the whole screen, or gives it back its size."),
        "F11",
        true},
    CommandRow{
        Command::StatusLine,
        MainMenu::View,
        kNoTag,
        QT_TRANSLATE_NOOP("MainMenu", "Status &Line"),
        QT_TRANSLATE_NOOP(
            "MainMenu",
            "Shows, in a line below the picture, what is under the pointer or selected, or hides "
            "that line."),
        ""},
    CommandRow{
        Command::Features,
        MainMenu::Help,
        62,
        QT_TRANSLATE_NOOP("MainMenu", "What Tessera &Does"),
        QT_TRANSLATE_NOOP(
            "MainMenu", "Opens a page that says what Tessera does and how you use it."),
        "F1"},
    CommandRow{
        Command::Questions,
        MainMenu::Help,
        64,
        QT_TRANSLATE_NOOP("MainMenu", "Frequently Asked &Questions"),
        QT_TRANSLATE_NOOP(
            "MainMenu", "Opens a page that answers frequently asked questions about Tessera."),
        "Ctrl+F1"},
    CommandRow{
        Command::About,
        MainMenu::Help,
        kNoTag,
        QT_TRANSLATE_NOOP("MainMenu", "&About Tessera"),
        QT_TRANSLATE_NOOP(
            "MainMenu",
            "Says which version this is, what it is made with, and under which license."),
        "Ctrl+Shift+F1",
        true},
};

constexpr std::array kMenuTitles{
    QT_TRANSLATE_NOOP("MainMenu", "&File"),
    QT_TRANSLATE_NOOP("MainMenu", "&Edit"),
    QT_TRANSLATE_NOOP("MainMenu", "&Item"),
    QT_TRANSLATE_NOOP("MainMenu", "&View"),
    QT_TRANSLATE_NOOP("MainMenu", "&Help"),
};

QString titleInItemMenu(const CommandRow& row, const char* ownTitle)
{
    return ownTitle == nullptr ? withoutMnemonic(titleOf(row))
                               : QCoreApplication::translate(kContext, ownTitle);
}

} // namespace

std::span<const CommandRow> commandTable()
{
    return kRows;
}

const CommandRow& rowOf(Command command)
{
    const auto* const found = std::ranges::find(kRows, command, &CommandRow::command);
    assert(found != kRows.end());
    return *found;
}

QString titleOf(const CommandRow& row)
{
    return QCoreApplication::translate(kContext, row.title);
}

QString helpOf(const CommandRow& row)
{
    return QCoreApplication::translate(kContext, row.help);
}

QString titleOf(MainMenu menu)
{
    return QCoreApplication::translate(kContext, kMenuTitles[static_cast<std::size_t>(menu)]);
}

QString titleForFolder(const CommandRow& row)
{
    return titleInItemMenu(row, row.folderTitle);
}

QString titleForDocument(const CommandRow& row)
{
    return titleInItemMenu(row, row.documentTitle);
}

} // namespace tessera
