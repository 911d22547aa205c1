// SPDX-License-Identifier: MIT
#include "BasketPanel/WillFreeView.h"

#include "Freeing/FreedByScan.h"
#include "Freeing/FreedSpaceText.h"

#include <QFontInfo>
#include <QLabel>
#include <QTextBoundaryFinder>
#include <QVBoxLayout>

#include <utility>

namespace tessera {

namespace {

constexpr int kReasonSpacing = 2;
constexpr double kReasonScale = 0.9; ///< of the usual letters
constexpr int kMostLetters = 16; ///< of a word that fits into the least width in one piece

/// With places to break where a long name has none.
QString breakable(const QString& text)
{
    constexpr QChar kZeroWidthSpace(0x200B);
    QString broken;
    QTextBoundaryFinder letters(QTextBoundaryFinder::Grapheme, text);
    int length = 0;
    qsizetype begin = 0;
    for (qsizetype end = letters.toNextBoundary(); end > 0; end = letters.toNextBoundary()) {
        const QString letter = text.mid(begin, end - begin);
        length = letter.at(0).isSpace() ? 0 : length + 1;
        if (length > kMostLetters) {
            broken += kZeroWidthSpace;
            length = 1;
        }
        broken += letter;
        begin = end;
    }
    return broken;
}

} // namespace

// NOLINTBEGIN(cppcoreguidelines-owning-memory): the view owns them
WillFreeView::WillFreeView(
    const FreeingServices& freeing,
    MainThread& mainThread,
    std::chrono::milliseconds patience,
    QWidget* parent)
    : QWidget(parent)
    , m_question(freeing, mainThread, patience)
    , m_figure(new QLabel(this))
    , m_reasons(new QLabel(this))
{
    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins({});
    layout->setSpacing(kReasonSpacing);
    for (QLabel* const label : {m_figure, m_reasons}) {
        label->setTextFormat(Qt::PlainText);
        label->setWordWrap(true);
        layout->addWidget(label);
    }
    QFont small = m_reasons->font();
    small.setPixelSize(qRound(QFontInfo(small).pixelSize() * kReasonScale));
    m_reasons->setFont(small);
    m_reasons->setForegroundRole(QPalette::PlaceholderText);
    m_reasons->hide();
    m_still.setSingleShot(true);
    m_still.setInterval(kStillMilliseconds);
    m_still.callOnTimeout(this, &WillFreeView::askNow);
    hide();
}
// NOLINTEND(cppcoreguidelines-owning-memory)

WillFreeView::~WillFreeView() = default;

void WillFreeView::setItems(std::vector<const File*> items)
{
    forget();
    m_items = std::move(items);
    setVisible(!m_items.empty());
    if (m_items.empty()) {
        setAccessibleName({});
        setAccessibleDescription({});
    } else {
        tell(FreedByScan(m_items).space());
        m_still.start();
    }
}

void WillFreeView::forget()
{
    m_items.clear();
    m_still.stop();
    m_question.drop();
}

void WillFreeView::askNow()
{
    m_still.stop();
    if (m_items.empty()) {
        return;
    }
    m_question.ask(
        FreedByScan(m_items).questionAbout(kMostFilesToLookAt), [this](const FreedSpace& freed) {
            tell(freed);
            emit answered(freed);
        });
}

void WillFreeView::tell(const FreedSpace& freed)
{
    const QString figure
        = tr("Will free: %1, once the trash is emptied").arg(freedSpaceText(freed));
    const QString reasons = freedSpaceReasons(freed).join(QLatin1Char('\n'));
    m_figure->setText(figure);
    m_reasons->setText(breakable(reasons));
    m_reasons->setAccessibleName(reasons);
    m_reasons->setVisible(!reasons.isEmpty());
    setAccessibleName(figure);
    setAccessibleDescription(reasons);
}

} // namespace tessera
