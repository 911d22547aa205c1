// SPDX-License-Identifier: MIT
#include "HomeScreen/Parts/GreetingView.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace tessera {

namespace {

constexpr int kLineSpacing = 2;

} // namespace

// NOLINTBEGIN(cppcoreguidelines-owning-memory): the view owns them
GreetingView::GreetingView(QWidget* parent)
    : QWidget(parent)
    , m_sentence(new QLabel(tr("Welcome to Tessera, which shows you what fills your disk."), this))
    , m_nextStep(new QLabel(tr("Select a disk or a folder, then press Scan."), this))
    , m_button(new QPushButton(tr("&Got It"), this))
{
    setObjectName(QStringLiteral("greeting"));
    auto* const texts = new QVBoxLayout;
    texts->setSpacing(kLineSpacing);
    for (QLabel* const label : {m_sentence, m_nextStep}) {
        label->setTextFormat(Qt::PlainText);
        label->setWordWrap(true);
        texts->addWidget(label);
    }
    // Together in the middle, without a stretch that would let the bar around them grow.
    m_sentence->setAlignment(Qt::AlignLeading | Qt::AlignBottom);
    m_nextStep->setAlignment(Qt::AlignLeading | Qt::AlignTop);
    QFont bold = m_sentence->font();
    bold.setBold(true);
    m_sentence->setFont(bold);
    m_button->setAutoDefault(false);
    m_button->setToolTip(tr("Closes this greeting for good"));
    auto* const layout = new QHBoxLayout(this);
    layout->setContentsMargins({});
    layout->addLayout(texts, 1);
    layout->addWidget(m_button);
    connect(m_button, &QPushButton::clicked, this, &GreetingView::dismissed);
}
// NOLINTEND(cppcoreguidelines-owning-memory)

void GreetingView::showEvent(QShowEvent* event)
{
    QWidget::showEvent(event);
    emit seen();
}

} // namespace tessera
