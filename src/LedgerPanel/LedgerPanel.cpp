// SPDX-License-Identifier: MIT
#include "LedgerPanel/LedgerPanel.h"

#include "LedgerPanel/LedgerBar.h"
#include "LedgerPanel/LedgerRow.h"
#include "LedgerPanel/LedgerTexts.h"
#include "Model/RootModel.h"
#include "Model/Volume.h"
#include "TreeScreen/NoteAccessible.h"
#include "Widgets/SeparatorLine.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QScrollArea>
#include <QVBoxLayout>

#include <algorithm>
#include <array>
#include <utility>

namespace tessera {

namespace {

using Kind = LedgerLine::Kind;

constexpr int kPanelMargin = 8;

/// About a millisecond's work.
constexpr std::size_t kNodesInAStep = 50'000;

/// The lines in their order, by the names that tests know them by.
constexpr std::array kRowNames{
    std::pair{Kind::Files, "ledgerFiles"},
    std::pair{Kind::Folders, "ledgerFolders"},
    std::pair{Kind::HeldOpen, "ledgerHeldOpen"},
    std::pair{Kind::UnreadableFolders, "ledgerUnreadable"},
    std::pair{Kind::CoveredFolders, "ledgerCovered"},
    std::pair{Kind::FoldersLeftOut, "ledgerLeftOut"},
    std::pair{Kind::Rest, "ledgerRest"},
    std::pair{Kind::Reserved, "ledgerReserved"},
    std::pair{Kind::Available, "ledgerAvailable"}};

const Volume* scannedDisk(const RootModel& model)
{
    return nodeCast<Volume>(static_cast<const File*>(model.topFolder()));
}

} // namespace

// NOLINTBEGIN(cppcoreguidelines-owning-memory): the panel owns them
LedgerPanel::LedgerPanel(
    const RootModel& model, const LedgerServices& services, std::chrono::milliseconds patience)
    : m_model(model)
    , m_questions(services, patience)
    , m_status(new QLabel(this))
    , m_again(new QPushButton(tr("Count &Again"), this))
    , m_bar(new LedgerBar(this))
    , m_scroll(new QScrollArea(this))
    , m_line(new SeparatorLine(this))
{
    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins(kPanelMargin, kPanelMargin, kPanelMargin, kPanelMargin);
    makeHead(*layout);
    layout->addWidget(m_bar);
    auto* const lines = new QWidget;
    auto* const lineLayout = new QVBoxLayout(lines);
    lineLayout->setContentsMargins({});
    lineLayout->setSpacing(0);
    makeRows(*lineLayout);
    lineLayout->addWidget(m_line);
    m_sum = makeRow("ledgerSum", *lineLayout);
    lineLayout->addStretch();
    m_scroll->setWidget(lines);
    m_scroll->setWidgetResizable(true);
    m_scroll->setFrameStyle(QFrame::NoFrame);
    m_scroll->setFocusPolicy(Qt::NoFocus);
    layout->addWidget(m_scroll, 1);
    // The head stays whole however low the panel is.
    m_scroll->setMinimumHeight(1);
    m_later.setSingleShot(true);
    m_later.setInterval(kStillMilliseconds);
    m_later.callOnTimeout(this, &LedgerPanel::count);
    m_nextStep.setSingleShot(true);
    m_nextStep.callOnTimeout(this, &LedgerPanel::countSome);
    connect(&m_questions, &LedgerQuestions::answered, this, &LedgerPanel::take);
    showAccount();
}

LedgerPanel::~LedgerPanel() = default;

void LedgerPanel::makeHead(QVBoxLayout& layout)
{
    auto* const head = new QHBoxLayout;
    m_status->setTextFormat(Qt::PlainText);
    m_status->setWordWrap(true);
    readOutWhenShown(*m_status);
    m_status->setObjectName(QStringLiteral("ledgerStatus"));
    m_again->setObjectName(QStringLiteral("ledgerAgain"));
    m_again->setAutoDefault(false);
    connect(m_again, &QPushButton::clicked, this, &LedgerPanel::count);
    head->addWidget(m_status, 1);
    head->addWidget(m_again, 0, Qt::AlignTop);
    layout.addLayout(head);
}

void LedgerPanel::makeRows(QVBoxLayout& layout)
{
    for (const auto& [kind, name] : kRowNames) {
        m_rows.emplace(kind, makeRow(name, layout));
    }
}

LedgerRow* LedgerPanel::makeRow(const char* objectName, QVBoxLayout& layout)
{
    auto* const row = new LedgerRow;
    row->setObjectName(QString::fromLatin1(objectName));
    row->installEventFilter(this);
    layout.addWidget(row);
    return row;
}

// NOLINTEND(cppcoreguidelines-owning-memory)

void LedgerPanel::treeReplaced()
{
    dropAnswer();
    m_account.reset();
    showAccount();
    if (isInSight()) {
        count();
    }
}

void LedgerPanel::treeChanged()
{
    dropAnswer();
    if (isInSight()) {
        m_later.start();
    }
}

void LedgerPanel::setInFront(bool isInFront)
{
    if (isInFront == m_isInFront) {
        return;
    }
    m_isInFront = isInFront;
    if (isInSight()) {
        count();
    } else {
        stopCounting();
    }
}

bool LedgerPanel::isInSight() const
{
    return isVisible() && m_isInFront;
}

void LedgerPanel::stopCounting()
{
    m_later.stop();
    m_questions.cancel();
    dropAnswer();
}

void LedgerPanel::count()
{
    m_later.stop();
    dropAnswer();
    const Volume* const disk = scannedDisk(m_model);
    if (disk == nullptr) {
        m_questions.cancel();
        m_account.reset();
        showAccount();
        readOut(tr("This is about whole disks. Scan a disk to see where its space is."));
        return;
    }
    say(tr("Counting…"));
    m_questions.ask(disk->origin(), disk->realOrigin());
}

void LedgerPanel::take(const DiskAnswer& answer)
{
    const Volume* const disk = scannedDisk(m_model);
    m_problem = problemOf(answer);
    if (m_problem.isEmpty() && disk != nullptr) {
        m_answered.emplace(Answered{answer, FoundSpaceCount(*disk)});
        m_nextStep.start();
    } else {
        m_account.reset();
        tellOutcome();
    }
}

/// The window answers between the steps. The count ends before the tree changes, or starts anew.
void LedgerPanel::countSome()
{
    if (m_answered->count.goOn(kNodesInAStep)) {
        m_nextStep.start();
        return;
    }
    const Answered answered = *std::exchange(m_answered, std::nullopt);
    m_account = ledgerAccount(*scannedDisk(m_model), answered.count.found(), answered.disk);
    if (!m_account) {
        m_problem = tr("The file system tells no sizes that could be added up.");
    }
    tellOutcome();
}

void LedgerPanel::dropAnswer()
{
    m_nextStep.stop();
    m_answered.reset();
}

void LedgerPanel::tellOutcome()
{
    showAccount();
    if (m_problem.isEmpty()) {
        say({});
    } else {
        readOut(m_problem);
    }
    handOnFocus();
}

/// Empty when there is none.
QString LedgerPanel::problemOf(const DiskAnswer& answer) const
{
    if (!answer.sizes) {
        return tr("The disk gives no answer. It may be gone, or very busy.");
    }
    const Volume* const disk = scannedDisk(m_model);
    if (disk != nullptr && !disk->mayBeSizesOfIt(*answer.sizes)) {
        return tr("The disk that was scanned is not there any more. Scan again what is.");
    }
    return {};
}

void LedgerPanel::showAccount()
{
    m_bar->setLines(m_account ? m_account->lines : std::vector<LedgerLine>());
    m_bar->setVisible(m_account.has_value());
    for (const auto& [kind, row] : m_rows) {
        const LedgerLine* line = nullptr;
        if (m_account) {
            const auto found = std::ranges::find(m_account->lines, kind, &LedgerLine::kind);
            line = found != m_account->lines.end() ? &*found : nullptr;
        }
        row->setVisible(line != nullptr);
        if (line != nullptr) {
            showLine(*row, *line);
        } else {
            row->setList({}, nullptr);
        }
    }
    showSum();
}

void LedgerPanel::showLine(LedgerRow& row, const LedgerLine& line)
{
    row.setTexts(
        {.name = ledger_texts::name(line, *m_account),
         .number = ledger_texts::number(line),
         .exactNumber = ledger_texts::exactNumber(line),
         .explanation = ledger_texts::explanation(line, *m_account),
         .color = ledgerColor(line.kind)});
    const bool hasList = ledgerListLength(line.kind, *m_account) != 0;
    row.setList(hasList ? tr("Show Which") : QString(), [this, kind = line.kind] {
        return m_account ? ledgerList(kind, *m_account) : LedgerList{};
    });
}

void LedgerPanel::showSum()
{
    m_line->setVisible(m_account.has_value());
    m_sum->setVisible(m_account.has_value());
    if (m_account) {
        const auto total = static_cast<std::int64_t>(m_account->sizes.totalBytes);
        const QString exact = ledger_texts::exactBytes(total);
        m_sum->setTexts(
            {.name = tr("Size of the disk"),
             .number = ledger_texts::roundedBytes(total),
             .exactNumber = exact,
             .explanation = tr("All lines together: %1, exactly.").arg(exact),
             .color = {}});
    }
}

void LedgerPanel::say(const QString& status)
{
    m_status->setText(status);
    m_status->setAccessibleName(status);
    m_again->setAccessibleDescription(status);
}

/// For what the user has to know. That it counts is not told at every change of the tree.
void LedgerPanel::readOut(const QString& status)
{
    m_status->hide();
    say(status);
    m_status->show();
}

void LedgerPanel::handOnFocus()
{
    const std::vector<LedgerRow*> rows = visibleRows();
    if (std::exchange(m_handsOnFocus, false) && m_again->hasFocus() && !rows.empty()) {
        rows.front()->setFocus(Qt::OtherFocusReason);
    }
}

void LedgerPanel::showEvent(QShowEvent* event)
{
    QWidget::showEvent(event);
    if (!event->spontaneous() && m_isInFront) {
        count();
    }
}

void LedgerPanel::hideEvent(QHideEvent* event)
{
    QWidget::hideEvent(event);
    if (!event->spontaneous()) {
        stopCounting();
    }
}

void LedgerPanel::focusInEvent(QFocusEvent* event)
{
    const std::vector<LedgerRow*> rows = visibleRows();
    m_handsOnFocus = rows.empty() && isCounting();
    if (rows.empty()) {
        m_again->setFocus(event->reason());
    } else {
        rows.front()->setFocus(event->reason());
    }
}

std::vector<LedgerRow*> LedgerPanel::visibleRows() const
{
    std::vector<LedgerRow*> rows;
    for (const auto& [kind, row] : m_rows) {
        if (row->isVisible()) {
            rows.push_back(row);
        }
    }
    if (m_sum->isVisible()) {
        rows.push_back(m_sum);
    }
    return rows;
}

bool LedgerPanel::moveFocus(const LedgerRow& from, int steps)
{
    const std::vector<LedgerRow*> rows = visibleRows();
    const auto here = std::ranges::find(rows, &from) - rows.begin();
    const auto there = here + steps;
    if (there < 0 || there >= static_cast<std::ptrdiff_t>(rows.size())) {
        return false;
    }
    rows[static_cast<std::size_t>(there)]->setFocus(Qt::TabFocusReason);
    return true;
}

/// What a line hears.
bool LedgerPanel::eventFilter(QObject* watched, QEvent* event)
{
    auto* const row = static_cast<LedgerRow*>(watched);
    if (event->type() == QEvent::FocusIn) {
        m_scroll->ensureWidgetVisible(row, 0, 0);
    } else if (event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent*>(event)->key();
        if (key == Qt::Key_Up || key == Qt::Key_Down) {
            return moveFocus(*row, key == Qt::Key_Up ? -1 : 1);
        }
    }
    return QWidget::eventFilter(watched, event);
}

} // namespace tessera
