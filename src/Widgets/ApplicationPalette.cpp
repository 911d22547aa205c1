// SPDX-License-Identifier: MIT
#include "Widgets/ApplicationPalette.h"

#include "Widgets/ColorHelper.h"
#include "Widgets/ProgramColors.h"

#include <QApplication>
#include <QStyle>
#include <QStyleHints>
#include <QToolTip>
#include <QVariant>

#include <optional>

namespace tessera {

namespace {

/// Qt has told its own colour scheme since 6.5, and chooses its colours by it unless that is
/// unknown, 0. Asked by name, since the Qt that runs may be newer than the one to build with.
bool doesQtFollowTheDesktop()
{
    return QGuiApplication::styleHints()->property("colorScheme").toInt() != 0;
}

QColor colorOf(const AccentColor& accent)
{
    return QColor::fromRgbF(
        static_cast<float>(accent.red),
        static_cast<float>(accent.green),
        static_cast<float>(accent.blue));
}

/// Whether the colours are those that the style has when nobody gives it any.
bool areColorsTheStylesOwn()
{
    QStyle* const style = QApplication::style();
    return style->name().compare(QStringLiteral("fusion"), Qt::CaseInsensitive) == 0
        && QApplication::palette() == style->standardPalette();
}

} // namespace

ApplicationPalette::ApplicationPalette(ColorSchemePreference& preference)
    : m_preference(preference)
{
    if (doesQtFollowTheDesktop() || !areColorsTheStylesOwn()) {
        return;
    }
    m_preference.setHandler([this] { apply(); });
    apply();
}

ApplicationPalette::~ApplicationPalette()
{
    m_preference.setHandler([] {});
}

void ApplicationPalette::apply() const
{
    const ColorScheme scheme = m_preference.colorScheme();
    // Some desktops' plugins have the style choose dark colours of its own.
    const bool isDarkWanted = scheme == ColorScheme::NoPreference
        ? isDark(QApplication::style()->standardPalette())
        : scheme == ColorScheme::Dark;
    const QPalette usual = isDarkWanted ? darkProgramColors() : lightProgramColors();
    const std::optional<AccentColor> accent = m_preference.accentColor();
    const QPalette colors = accent ? withAccent(usual, colorOf(*accent)) : usual;
    if (colors == QApplication::palette()) {
        return;
    }
    // Tooltips keep a copy of what was first; windows are told of the change by the other call.
    QToolTip::setPalette(colors);
    QApplication::setPalette(colors);
    for (const char* const widgetClass : {"QCheckBox", "QMenu"}) {
        QApplication::setPalette(withVisibleLines(colors), widgetClass);
    }
}

} // namespace tessera
