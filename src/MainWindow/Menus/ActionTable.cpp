// SPDX-License-Identifier: MIT
#include "MainWindow/Menus/ActionTable.h"

#include "MainWindow/Menus/MenuValidation.h"

#include <QCoreApplication>

#include <array>

namespace tessera {

namespace {

constexpr const char* kContext = "MainMenu";

constexpr std::array kRows{
    ActionRow{
        MainCommand::OpenFolder,
        MainMenu::File,
        menu_tag::kOpenFolder,
        QT_TRANSLATE_NOOP("MainMenu", "&Open Folder…"),
        "Ctrl+O"},
    ActionRow{
        MainCommand::Home,
        MainMenu::File,
        menu_tag::kHome,
        QT_TRANSLATE_NOOP("MainMenu", "Choose &Another Disk or Folder"),
        "Alt+Home"},
    ActionRow{
        MainCommand::Preferences,
        MainMenu::File,
        menu_tag::kNone,
        QT_TRANSLATE_NOOP("MainMenu", "&Preferences…"),
        "Ctrl+,",
        true},
    ActionRow{
        MainCommand::Quit,
        MainMenu::File,
        menu_tag::kNone,
        QT_TRANSLATE_NOOP("MainMenu", "&Quit"),
        "Ctrl+Q",
        true},
    ActionRow{
        MainCommand::QuickLook,
        MainMenu::Item,
        menu_tag::kQuickLook,
        QT_TRANSLATE_NOOP("MainMenu", "&Quick Look"),
        "Ctrl+Y"},
    ActionRow{
        MainCommand::ShowInFinder,
        MainMenu::Item,
        menu_tag::kShowInFinder,
        QT_TRANSLATE_NOOP("MainMenu", "&Show in Finder"),
        "Ctrl+Shift+R"},
    ActionRow{
        MainCommand::Rescan,
        MainMenu::Item,
        menu_tag::kRescan,
        QT_TRANSLATE_NOOP("MainMenu", "&Rescan"),
        "Ctrl+R; F5",
        true},
    ActionRow{
        MainCommand::Ignore,
        MainMenu::Item,
        menu_tag::kIgnore,
        QT_TRANSLATE_NOOP("MainMenu", "&Ignore"),
        "Ctrl+I"},
    ActionRow{
        MainCommand::Compress,
        MainMenu::Item,
        menu_tag::kCompress,
        QT_TRANSLATE_NOOP("MainMenu", "&Compress"),
        "Ctrl+Shift+C",
        true},
    ActionRow{
        MainCommand::MoveToTrash,
        MainMenu::Item,
        menu_tag::kMoveToTrash,
        QT_TRANSLATE_NOOP("MainMenu", "Move to &Trash"),
        "Ctrl+Del"},
    ActionRow{
        MainCommand::ZoomIn,
        MainMenu::View,
        menu_tag::kZoomIn,
        QT_TRANSLATE_NOOP("MainMenu", "Zoom &In"),
        "Ctrl++; Ctrl+=; Alt+Down"},
    ActionRow{
        MainCommand::ZoomOut,
        MainMenu::View,
        menu_tag::kZoomOut,
        QT_TRANSLATE_NOOP("MainMenu", "Zoom &Out"),
        "Ctrl+-; Alt+Up"},
    ActionRow{
        MainCommand::FullScreen,
        MainMenu::View,
        menu_tag::kNone,
        QT_TRANSLATE_NOOP("MainMenu", "&Full Screen"),
        "F11",
        true},
    ActionRow{
        MainCommand::Features,
        MainMenu::Help,
        menu_tag::kFeatures,
        QT_TRANSLATE_NOOP("MainMenu", "What Tessera &Does"),
        "F1"},
    ActionRow{
        MainCommand::Questions,
        MainMenu::Help,
        menu_tag::kQuestions,
        QT_TRANSLATE_NOOP("MainMenu", "Frequently Asked &Questions"),
        "Ctrl+F1"},
};

constexpr std::array kMenuTitles{
    QT_TRANSLATE_NOOP("MainMenu", "&File"),
    QT_TRANSLATE_NOOP("MainMenu", "&Item"),
    QT_TRANSLATE_NOOP("MainMenu", "&View"),
    QT_TRANSLATE_NOOP("MainMenu", "&Help"),
};

} // namespace

std::span<const ActionRow> actionTable()
{
    return kRows;
}

QString titleOf(const ActionRow& row)
{
    return QCoreApplication::translate(kContext, row.title);
}

QString titleOf(MainMenu menu)
{
    return QCoreApplication::translate(kContext, kMenuTitles[static_cast<std::size_t>(menu)]);
}

} // namespace tessera
