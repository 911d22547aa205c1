// SPDX-License-Identifier: MIT
#include "Widgets/ItemDrag.h"

#include <QByteArray>
#include <QCoreApplication>
#include <QMimeData>

namespace tessera {

namespace {

QString itemMimeType()
{
    return QStringLiteral("application/x-tessera-item");
}

/// The number of this process and a byte that no path has.
QByteArray markOfThisProcess()
{
    return QByteArray::number(QCoreApplication::applicationPid()) + '\0';
}

} // namespace

QMimeData* mimeDataOfItem(const std::string& pathInTree)
{
    // NOLINTNEXTLINE(cppcoreguidelines-owning-memory): Qt's drags own theirs
    auto* const data = new QMimeData;
    data->setData(itemMimeType(), markOfThisProcess() + QByteArray::fromStdString(pathInTree));
    return data;
}

std::optional<std::string> draggedItem(const QMimeData& data)
{
    const QByteArray bytes = data.data(itemMimeType());
    const QByteArray mark = markOfThisProcess();
    if (bytes.size() <= mark.size() || !bytes.startsWith(mark)) {
        return std::nullopt;
    }
    return bytes.mid(mark.size()).toStdString();
}

} // namespace tessera
