// SPDX-License-Identifier: MIT
#include "Widgets/Images.h"

#include <QFile>
#include <QString>

/// The linker leaves out of a library what nobody names. Qt's macro declares a function, and so
/// works outside namespaces alone.
static void registerImages()
{
    Q_INIT_RESOURCE(images);
}

namespace tessera {

QIcon imageNamed(std::string_view name)
{
    static const bool areRegistered = (registerImages(), true);
    static_cast<void>(areRegistered);
    const QString path = QStringLiteral(":/images/")
        + QString::fromUtf8(name.data(), static_cast<qsizetype>(name.size()))
        + QStringLiteral(".svg");
    return QFile::exists(path) ? QIcon(path) : QIcon();
}

} // namespace tessera
