// SPDX-License-Identifier: MIT
#include "HomeScreen/Places/PlaceNames.h"

#include "Base/DisplayText.h"
#include "Base/Url.h"
#include "HomeScreen/Places/Locations.h"

#include <QCoreApplication>

namespace tessera {

QString localizedVolumeName(const Url& volume)
{
    return volume.path() == "/" ? QCoreApplication::translate("PlaceNames", "File System")
                                : displayText(volume.lastPathComponent());
}

QString localizedLocationName(const Location& location)
{
    switch (location.kind) {
    case LocationKind::Applications:
        return QCoreApplication::translate("PlaceNames", "Applications");
    case LocationKind::Library:
        return QCoreApplication::translate("PlaceNames", "App Data");
    case LocationKind::Trash:
        return QCoreApplication::translate("PlaceNames", "Trash");
    default:
        return displayText(location.url.lastPathComponent());
    }
}

QString pathWithTilde(const std::string& path, const std::string& homeDirectory)
{
    std::string text = path;
    std::size_t place = homeDirectory.empty() ? std::string::npos : text.find(homeDirectory);
    while (place != std::string::npos) {
        text.replace(place, homeDirectory.size(), 1, '~');
        place = text.find(homeDirectory, place + 1);
    }
    return displayText(text);
}

} // namespace tessera
