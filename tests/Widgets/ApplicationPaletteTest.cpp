// SPDX-License-Identifier: MIT
#include "Widgets/ApplicationPalette.h"

#include "Widgets/ProgramColors.h"

#include <QApplication>
#include <QCheckBox>
#include <QEvent>
#include <QImage>
#include <QStyle>
#include <QToolTip>
#include <QWidget>

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <optional>
#include <utility>

namespace tessera {
namespace {

/// A desktop whose user changes the setting as the test says.
class FakeColorSchemePreference final : public ColorSchemePreference {
public:
    ColorScheme colorScheme() const override { return m_scheme; }
    void setHandler(Handler handler) override { m_handler = std::move(handler); }

    void change(ColorScheme scheme)
    {
        m_scheme = scheme;
        if (m_handler) {
            m_handler();
        }
    }

    std::optional<AccentColor> accentColor() const override { return m_accent; }

    void changeAccent(std::optional<AccentColor> accent)
    {
        m_accent = accent;
        m_handler();
    }

    bool isFollowed() const { return static_cast<bool>(m_handler); }

private:
    ColorScheme m_scheme = ColorScheme::NoPreference;
    std::optional<AccentColor> m_accent;
    Handler m_handler;
};

/// How often a window was told that its colours are others now.
class Window final : public QWidget {
public:
    int changes = 0;

protected:
    void changeEvent(QEvent* event) override
    {
        changes += event->type() == QEvent::PaletteChange ? 1 : 0;
        QWidget::changeEvent(event);
    }
};

/// Of any pixel from the one in the corner, in lightness of 0 to 255.
int strongestDifference(const QImage& image)
{
    const int ground = image.pixelColor(0, 0).lightness();
    int strongest = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            strongest = std::max(strongest, std::abs(image.pixelColor(x, y).lightness() - ground));
        }
    }
    return strongest;
}

class ApplicationPaletteTest : public testing::Test {
protected:
    void SetUp() override { useStyle("fusion"); }

    void TearDown() override
    {
        useStyle("fusion");
        QApplication::setPalette(QPalette());
        QToolTip::setPalette(m_tooltips);
        for (const char* const widgetClass : {"QCheckBox", "QMenu"}) {
            QApplication::setPalette(QPalette(), widgetClass);
        }
    }

    static void useStyle(const char* name)
    {
        ASSERT_NE(QApplication::setStyle(QString::fromLatin1(name)), nullptr);
    }

    FakeColorSchemePreference desktop;

private:
    const QPalette m_tooltips = QToolTip::palette();
};

TEST_F(ApplicationPaletteTest, WindowsAreDarkOnADarkDesktop)
{
    desktop.change(ColorScheme::Dark);
    const ApplicationPalette palette(desktop);
    EXPECT_EQ(QApplication::palette(), darkProgramColors());
    EXPECT_EQ(QWidget().palette().color(QPalette::Window), QColor(0x30, 0x30, 0x34));
}

TEST_F(ApplicationPaletteTest, WindowsAreLightOnALightDesktop)
{
    desktop.change(ColorScheme::Light);
    const ApplicationPalette palette(desktop);
    EXPECT_EQ(QApplication::palette(), lightProgramColors());
}

TEST_F(ApplicationPaletteTest, WindowsAreAsTheStyleHasThemWhereThereIsNoPreference)
{
    const ApplicationPalette palette(desktop);
    EXPECT_EQ(QApplication::palette(), lightProgramColors());
}

TEST_F(ApplicationPaletteTest, FollowsTheDesktopWhileItChanges)
{
    const ApplicationPalette palette(desktop);
    desktop.change(ColorScheme::Dark);
    EXPECT_EQ(QApplication::palette(), darkProgramColors());
    desktop.change(ColorScheme::NoPreference);
    EXPECT_EQ(QApplication::palette(), lightProgramColors());
    desktop.change(ColorScheme::Dark);
    desktop.change(ColorScheme::Light);
    EXPECT_EQ(QApplication::palette(), lightProgramColors());
}

TEST_F(ApplicationPaletteTest, WhatIsSelectedHasTheDesktopsAccentWhileItChanges)
{
    const ApplicationPalette palette(desktop);
    desktop.changeAccent(AccentColor{1, 0, 0});
    EXPECT_EQ(QApplication::palette().color(QPalette::Highlight), QColor(255, 0, 0));
    desktop.changeAccent(AccentColor{0, 0, 1});
    EXPECT_EQ(QApplication::palette().color(QPalette::Highlight), QColor(0, 0, 255));
    desktop.changeAccent(std::nullopt);
    EXPECT_EQ(QApplication::palette(), lightProgramColors());
}

TEST_F(ApplicationPaletteTest, TheAccentStaysWhenWindowsBecomeDark)
{
    const ApplicationPalette palette(desktop);
    desktop.changeAccent(AccentColor{1, 0, 0});
    desktop.change(ColorScheme::Dark);
    EXPECT_EQ(QApplication::palette().color(QPalette::Highlight), QColor(255, 0, 0));
    EXPECT_EQ(QApplication::palette().color(QPalette::Window), QColor(0x30, 0x30, 0x34));
}

TEST_F(ApplicationPaletteTest, TheBoxToTickCanBeSeenInDarkMenusAndWindows)
{
    const ApplicationPalette palette(desktop);
    QCheckBox box;
    box.resize(box.sizeHint());
    for (const ColorScheme scheme : {ColorScheme::Dark, ColorScheme::Light, ColorScheme::Dark}) {
        desktop.change(scheme);
        box.ensurePolished();
        QImage image(box.size(), QImage::Format_RGB32);
        image.fill(QApplication::palette().color(QPalette::Base));
        box.render(&image, QPoint(), QRegion(), {});
        EXPECT_GT(strongestDifference(image), 50) << static_cast<int>(scheme);
    }
}

TEST_F(ApplicationPaletteTest, TooltipsFollowToo)
{
    const ApplicationPalette palette(desktop);
    const QColor light = QToolTip::palette().color(QPalette::ToolTipBase);
    desktop.change(ColorScheme::Dark);
    EXPECT_EQ(
        QToolTip::palette().color(QPalette::ToolTipBase),
        darkProgramColors().color(QPalette::ToolTipBase));
    desktop.change(ColorScheme::Light);
    EXPECT_EQ(QToolTip::palette().color(QPalette::ToolTipBase), light);
}

TEST_F(ApplicationPaletteTest, OpenWindowsAreToldOnceForEachChange)
{
    const ApplicationPalette palette(desktop);
    Window window;
    window.show();
    window.changes = 0;
    desktop.change(ColorScheme::Dark);
    QCoreApplication::processEvents();
    EXPECT_EQ(window.changes, 1);
    EXPECT_EQ(window.palette().color(QPalette::Window), QColor(0x30, 0x30, 0x34));
    desktop.change(ColorScheme::Dark);
    QCoreApplication::processEvents();
    EXPECT_EQ(window.changes, 1);
}

TEST_F(ApplicationPaletteTest, ColoursThatSomebodyElseGaveStay)
{
    const QPalette given(Qt::darkGreen);
    QApplication::setPalette(given);
    desktop.change(ColorScheme::Dark);
    const ApplicationPalette palette(desktop);
    EXPECT_EQ(QApplication::palette().color(QPalette::Button), QColor(Qt::darkGreen));
    EXPECT_FALSE(desktop.isFollowed());
}

TEST_F(ApplicationPaletteTest, ColoursOfAnotherStyleStay)
{
    useStyle("windows");
    const QPalette before = QApplication::palette();
    desktop.change(ColorScheme::Dark);
    const ApplicationPalette palette(desktop);
    EXPECT_EQ(QApplication::palette(), before);
    EXPECT_FALSE(desktop.isFollowed());
}

TEST_F(ApplicationPaletteTest, NothingChangesAnyMoreAfterItsEnd)
{
    {
        const ApplicationPalette palette(desktop);
    }
    desktop.change(ColorScheme::Dark);
    EXPECT_EQ(QApplication::palette(), lightProgramColors());
}

} // namespace
} // namespace tessera
