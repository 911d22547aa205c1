// SPDX-License-Identifier: MIT
#include "Platform/Linux/Desktop/DesktopMotionPreference.h"

#include <QSettings>
#include <QStandardPaths>

#include <utility>

namespace tessera {

namespace {

constexpr const char* kEnableAnimations = "enable-animations";

const QString kAnimationDuration = QStringLiteral("KDE/AnimationDurationFactor");

} // namespace

DesktopMotionPreference::DesktopMotionPreference(std::string schema, QString kdeFile)
    : m_settings(std::move(schema))
    , m_kdeFile(std::move(kdeFile))
{
}

DesktopMotionPreference::~DesktopMotionPreference() = default;

QString DesktopMotionPreference::defaultKdeFile()
{
    return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation)
        + QStringLiteral("/kdeglobals");
}

bool DesktopMotionPreference::reducesMotion() const
{
    return isStillInSettings() || isStillInKde();
}

bool DesktopMotionPreference::isStillInSettings() const
{
    return !m_settings.boolean(kEnableAnimations).value_or(true);
}

bool DesktopMotionPreference::isStillInKde() const
{
    const QVariant factor = QSettings(m_kdeFile, QSettings::IniFormat).value(kAnimationDuration);
    bool isNumber = false;
    const double value = factor.toDouble(&isNumber);
    return isNumber && value <= 0;
}

} // namespace tessera
