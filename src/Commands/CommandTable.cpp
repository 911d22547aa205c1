// SPDX-License-Identifier: MIT
#include "Commands/CommandTable.h"

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
        "Ctrl+O"},
    CommandRow{
        Command::Home,
        MainMenu::File,
        41,
        QT_TRANSLATE_NOOP("MainMenu", "Choose &Another Disk or Folder"),
        "Alt+Home"},
    CommandRow{
        Command::Preferences,
        MainMenu::File,
        kNoTag,
        QT_TRANSLATE_NOOP("MainMenu", "&Preferences…"),
        "Ctrl+,",
        true},
    CommandRow{
        Command::Quit,
        MainMenu::File,
        kNoTag,
        QT_TRANSLATE_NOOP("MainMenu", "&Quit"),
        "Ctrl+Q",
        true},
    CommandRow{
        Command::QuickLook,
        MainMenu::Item,
        33,
        QT_TRANSLATE_NOOP("MainMenu", "&Quick Look"),
        "Ctrl+Y"},
    CommandRow{
        Command::ShowInFinder,
        MainMenu::Item,
        34,
        QT_TRANSLATE_NOOP("MainMenu", "&Show in Finder"),
        "Ctrl+Shift+R"},
    CommandRow{
        Command::Rescan,
        MainMenu::Item,
        35,
        QT_TRANSLATE_NOOP("MainMenu", "&Rescan"),
        "Ctrl+R; F5",
        true},
    CommandRow{
        Command::Ignore, MainMenu::Item, 36, QT_TRANSLATE_NOOP("MainMenu", "&Ignore"), "Ctrl+I"},
    CommandRow{
        Command::Compress,
        MainMenu::Item,
        37,
        QT_TRANSLATE_NOOP("MainMenu", "&Compress"),
        "Ctrl+Shift+C",
        true,
        QT_TRANSLATE_NOOP("MainMenu", "Compress Folder"),
        QT_TRANSLATE_NOOP("MainMenu", "Compress File")},
    CommandRow{
        Command::MoveToTrash,
        MainMenu::Item,
        38,
        QT_TRANSLATE_NOOP("MainMenu", "Move to &Trash"),
        "Ctrl+Del"},
    CommandRow{
        Command::ZoomIn,
        MainMenu::View,
        32,
        QT_TRANSLATE_NOOP("MainMenu", "Zoom &In"),
        "Ctrl++; Ctrl+=; Alt+Down"},
    CommandRow{
        Command::ZoomOut,
        MainMenu::View,
        31,
        QT_TRANSLATE_NOOP("MainMenu", "Zoom &Out"),
        "Ctrl+-; Alt+Up"},
    CommandRow{
        Command::FullScreen,
        MainMenu::View,
        kNoTag,
        QT_TRANSLATE_NOOP("MainMenu", "&Full Screen"),
        "F11",
        true},
    CommandRow{
        Command::Features,
        MainMenu::Help,
        62,
        QT_TRANSLATE_NOOP("MainMenu", "What Tessera &Does"),
        "F1"},
    CommandRow{
        Command::Questions,
        MainMenu::Help,
        64,
        QT_TRANSLATE_NOOP("MainMenu", "Frequently Asked &Questions"),
        "Ctrl+F1"},
};

constexpr std::array kMenuTitles{
    QT_TRANSLATE_NOOP("MainMenu", "&File"),
    QT_TRANSLATE_NOOP("MainMenu", "&Item"),
    QT_TRANSLATE_NOOP("MainMenu", "&View"),
    QT_TRANSLATE_NOOP("MainMenu", "&Help"),
};

QString titleInItemMenu(const CommandRow& row, const char* ownTitle)
{
    return ownTitle == nullptr ? titleOf(row).remove(QLatin1Char('&'))
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
