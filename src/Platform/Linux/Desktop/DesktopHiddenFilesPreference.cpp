// SPDX-License-Identifier: MIT
#include "Platform/Linux/Desktop/DesktopHiddenFilesPreference.h"

#include <QSettings>

#include <utility>

namespace tessera {

namespace {

constexpr const char* kShowHidden = "show-hidden"; ///< GTK's

const QString kShowHiddenInKde = QStringLiteral("KFileDialog Settings/Show hidden files");

} // namespace

DesktopHiddenFilesPreference::DesktopHiddenFilesPreference(Sources sources)
    : m_gtk4(std::move(sources.gtk4))
    , m_gtk3(std::move(sources.gtk3))
    , m_kdeFile(std::move(sources.kdeFile))
    , m_isKde(sources.isKde)
{
}

DesktopHiddenFilesPreference::~DesktopHiddenFilesPreference() = default;

std::optional<bool> DesktopHiddenFilesPreference::showsHiddenFiles() const
{
    const std::optional<bool> first = m_isKde ? inKde() : inGtk();
    return first ? first : m_isKde ? inGtk() : inKde();
}

std::optional<bool> DesktopHiddenFilesPreference::inKde() const
{
    const QVariant value = QSettings(m_kdeFile, QSettings::IniFormat).value(kShowHiddenInKde);
    return value.isValid() ? std::optional(value.toBool()) : std::nullopt;
}

/// Both may be installed; whoever asked either to show them wants to see them.
std::optional<bool> DesktopHiddenFilesPreference::inGtk() const
{
    const std::optional<bool> gtk4 = m_gtk4.boolean(kShowHidden);
    const std::optional<bool> gtk3 = m_gtk3.boolean(kShowHidden);
    if (!gtk4 || !gtk3) {
        return gtk4 ? gtk4 : gtk3;
    }
    return *gtk4 || *gtk3;
}

} // namespace tessera
