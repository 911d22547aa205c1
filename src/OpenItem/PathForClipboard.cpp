// SPDX-License-Identifier: MIT
#include "OpenItem/PathForClipboard.h"

#include "Base/Url.h"

#include <QByteArray>
#include <QMimeData>
#include <QString>

namespace tessera {

std::unique_ptr<QMimeData> pathForClipboard(const Url& item)
{
    auto data = std::make_unique<QMimeData>();
    // As text it would have to be UTF-8, which names need not be.
    data->setData(QStringLiteral("text/plain"), QByteArray::fromStdString(item.path()));
    data->setData(
        QStringLiteral("text/uri-list"), QByteArray::fromStdString(item.absoluteString() + "\r\n"));
    return data;
}

} // namespace tessera
