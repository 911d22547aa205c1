// SPDX-License-Identifier: MIT
#include "Language/NodeName.h"

#include "Base/DisplayText.h"
#include "Model/File.h"

#include <QCoreApplication>

namespace tessera {

namespace {

/// A null string for what has its name from a disk, or from another system.
QString ownName(NodeType type)
{
    switch (type) {
    case NodeType::FreeSpace:
        return QCoreApplication::translate("NodeNames", "Free Space");
    case NodeType::Unknown:
        return QCoreApplication::translate("NodeNames", "Restricted Files");
    default:
        return {};
    }
}

} // namespace

QString shownName(const File& node)
{
    const QString own = ownName(node.type());
    return own.isNull() ? displayText(node.name()) : own;
}

std::string shownNameBytes(const File& node)
{
    const QString own = ownName(node.type());
    return own.isNull() ? std::string(node.name()) : own.toStdString();
}

} // namespace tessera
