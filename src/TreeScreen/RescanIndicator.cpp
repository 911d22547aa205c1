// SPDX-License-Identifier: MIT
#include "TreeScreen/RescanIndicator.h"

#include "Base/ProgressSteps.h"

#include <QProgressBar>
#include <QVBoxLayout>

namespace tessera {

namespace {

constexpr double kInset = 10;
constexpr double kMinWidth = 20;
constexpr double kMinHeight = 35;
constexpr int kBarHeight = 12;

} // namespace

RescanIndicator::RescanIndicator(QWidget* parent)
    : QWidget(parent)
    , m_bar(new QProgressBar(this))
{
    setAttribute(Qt::WA_TransparentForMouseEvents);
    m_bar->setRange(0, kProgressSteps);
    m_bar->setTextVisible(false);
    m_bar->setFixedHeight(kBarHeight);
    m_bar->setAccessibleName(tr("Rescan progress"));
    auto* layout = new QVBoxLayout(this); // NOLINT(cppcoreguidelines-owning-memory): parented
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_bar, 0, Qt::AlignVCenter);
}

Rect RescanIndicator::frameFor(const Rect& box)
{
    return box.inset(kInset, kInset);
}

bool RescanIndicator::fits(const Rect& frame)
{
    return frame.width > kMinWidth && frame.height > kMinHeight;
}

void RescanIndicator::place(const Rect& frame)
{
    setGeometry(QRectF(frame.x, frame.y, frame.width, frame.height).toRect());
    show();
    raise();
}

void RescanIndicator::setValue(double value)
{
    m_value = shownProgress(value);
    m_bar->setValue(progressSteps(m_value));
}

} // namespace tessera
