// SPDX-License-Identifier: MIT
#include "Widgets/ItemDrag.h"

#include <QCoreApplication>
#include <QMimeData>
#include <QUrl>

#include <gtest/gtest.h>

#include <memory>

namespace tessera {
namespace {

std::unique_ptr<QMimeData> dragOf(const std::string& path)
{
    return std::unique_ptr<QMimeData>(mimeDataOfItem(path));
}

TEST(ItemDrag, CarriesThePathAsBytes)
{
    for (const std::string path : {"/home/me/a b", "/x\xFF\n%41", "/"}) {
        EXPECT_EQ(draggedItem(*dragOf(path)), path);
    }
}

TEST(ItemDrag, GivesOtherProgramsNothingToMove)
{
    const auto drag = dragOf("/home/me/letter");
    EXPECT_FALSE(drag->hasUrls());
    EXPECT_FALSE(drag->hasText());
    EXPECT_EQ(drag->formats().size(), 1);
}

TEST(ItemDrag, OneOfAnotherProcessIsNone)
{
    const auto own = dragOf("/a");
    const QString type = own->formats().at(0);
    for (const qint64 other :
         {QCoreApplication::applicationPid() + 1, QCoreApplication::applicationPid() * 10}) {
        QMimeData drag;
        drag.setData(type, QByteArray::number(other) + QByteArray("\0/a", 3));
        EXPECT_FALSE(draggedItem(drag));
    }
}

TEST(ItemDrag, WhatElseIsDraggedIsNone)
{
    QMimeData drag;
    EXPECT_FALSE(draggedItem(drag));
    drag.setText(QStringLiteral("/home/me"));
    drag.setUrls({QUrl::fromLocalFile(QStringLiteral("/home/me"))});
    EXPECT_FALSE(draggedItem(drag));
}

TEST(ItemDrag, WithoutAPathThereIsNone)
{
    EXPECT_FALSE(draggedItem(*dragOf({})));
}

} // namespace
} // namespace tessera
