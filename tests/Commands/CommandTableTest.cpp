// SPDX-License-Identifier: MIT
#include "Commands/CommandTable.h"

#include <gtest/gtest.h>

#include <map>

namespace tessera {
namespace {

TEST(CommandTable, EachCommandHasItsTag)
{
    const std::map<Command, int> tags{
        {Command::OpenFolder, 21},  {Command::Home, 41},        {Command::Preferences, 0},
        {Command::Quit, 0},         {Command::Undo, 0},         {Command::Redo, 0},
        {Command::OpenItem, 0},     {Command::OpenWith, 0},     {Command::CopyPath, 0},
        {Command::OpenTerminal, 0}, {Command::Properties, 0},   {Command::Reload, 0},
        {Command::About, 0},        {Command::QuickLook, 33},   {Command::ShowInFinder, 34},
        {Command::Rescan, 35},      {Command::Ignore, 36},      {Command::Compress, 37},
        {Command::AddToBasket, 0},  {Command::MoveToTrash, 38}, {Command::ZoomIn, 32},
        {Command::ZoomOut, 31},     {Command::Basket, 0},       {Command::SpaceLedger, 0},
        {Command::TrashHistory, 0}, {Command::FullScreen, 0},   {Command::StatusLine, 0},
        {Command::Features, 62},    {Command::Questions, 64}};
    ASSERT_EQ(tags.size(), commandTable().size());
    for (const auto& [command, tag] : tags) {
        EXPECT_EQ(rowOf(command).tag, tag);
    }
}

TEST(CommandTable, EachCommandSaysInASentenceWhatItDoes)
{
    for (const CommandRow& row : commandTable()) {
        const QString help = helpOf(row);
        EXPECT_GT(help.count(QLatin1Char(' ')), 2) << row.title;
        EXPECT_TRUE(help.endsWith(QLatin1Char('.'))) << row.title;
        EXPECT_FALSE(help.contains(QLatin1Char('&'))) << row.title;
    }
}

TEST(CommandTable, TheMenuOfAnItemSaysWhatIsCompressed)
{
    const CommandRow& row = rowOf(Command::Compress);
    EXPECT_EQ(titleOf(row), QStringLiteral("&Compress"));
    EXPECT_EQ(titleForFolder(row), QStringLiteral("Compress Folder"));
    EXPECT_EQ(titleForDocument(row), QStringLiteral("Compress File"));
}

TEST(CommandTable, TheMenuOfAnItemHasNoMnemonics)
{
    EXPECT_EQ(titleForFolder(rowOf(Command::ZoomIn)), QStringLiteral("Zoom In"));
    EXPECT_EQ(titleForDocument(rowOf(Command::MoveToTrash)), QStringLiteral("Move to Trash"));
}

} // namespace
} // namespace tessera
