// SPDX-License-Identifier: MIT
#include "ScanScreen/ApplicationDockTile.h"

#include "Base/ProgressSteps.h"
#include "Desktop/LauncherProgress.h"
#include "ScanScreen/DockImage.h"

#include <QApplication>
#include <QPixmap>

namespace tessera {

namespace {

constexpr QRect kTileFrame{0, 0, 128, 128};

/// The icon shows hundredths: a finer bar looks the same, and each new icon is sent to the window
/// manager as a whole.
int iconSteps(double fraction)
{
    constexpr int kStepsInHundredth = kProgressSteps / 100;
    return progressSteps(fraction) / kStepsInHundredth;
}

QPixmap paintedPicture(DockImage& view)
{
    QPixmap picture(view.size());
    picture.fill(Qt::transparent);
    view.render(&picture, {}, {}, QWidget::DrawChildren);
    return picture;
}

} // namespace

ApplicationDockTile::ApplicationDockTile(LauncherProgress& launcher)
    : m_launcher(launcher)
    , m_standardIcon(QApplication::windowIcon())
{
}

void ApplicationDockTile::setContentView(DockImage& view)
{
    m_contentView = &view;
    m_shownSteps = -1;
    view.setFrame(kTileFrame);
}

void ApplicationDockTile::removeContentView(const DockImage& view)
{
    if (m_contentView != &view) {
        return;
    }
    m_contentView = nullptr;
    QApplication::setWindowIcon(m_standardIcon);
    m_launcher.hide();
}

void ApplicationDockTile::display()
{
    if (m_contentView == nullptr || iconSteps(m_contentView->percent()) == m_shownSteps) {
        return;
    }
    m_shownSteps = iconSteps(m_contentView->percent());
    QApplication::setWindowIcon(paintedPicture(*m_contentView));
    m_launcher.show(m_contentView->percent());
}

void ApplicationDockTile::requestAttention()
{
    QApplication::alert(nullptr);
}

} // namespace tessera
