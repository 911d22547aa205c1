// SPDX-License-Identifier: MIT
#include "BasketPanel/BasketPanel.h"

#include "Base/DisplayText.h"
#include "Basket/BasketKeeper.h"
#include "BasketPanel/BasketList.h"
#include "BasketPanel/NameLabel.h"
#include "BasketPanel/WillFreeView.h"
#include "Language/NodeName.h"
#include "Language/PluralNumber.h"
#include "Language/SizeText.h"
#include "Model/Folder.h"
#include "Model/NodeLookup.h"
#include "TreeScreen/NoteAccessible.h"
#include "Widgets/ItemDrag.h"

#include <QDragEnterEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QLocale>
#include <QPainter>
#include <QPushButton>
#include <QScrollArea>
#include <QVBoxLayout>

#include <utility>

namespace tessera {

namespace {

constexpr int kBasketMargin = 8;
constexpr int kDropLineWidth = 2;

bool mayBeChosen(const File* subject)
{
    return subject != nullptr && subject->parent() != nullptr && isItem(*subject);
}

std::vector<const File*> outermostOf(const Basket& basket)
{
    const std::vector<File*> items = basket.outermost();
    return {items.begin(), items.end()};
}

} // namespace

// NOLINTBEGIN(cppcoreguidelines-owning-memory): the panel owns them
BasketPanel::BasketPanel(
    BasketKeeper& keeper,
    const FreeingServices& freeing,
    MainThread& mainThread,
    std::chrono::milliseconds patience)
    : m_keeper(keeper)
    , m_model(keeper.basket())
    , m_scroll(new QScrollArea(this))
    , m_head(new QWidget)
    , m_name(new NameLabel(m_head))
    , m_size(new QLabel(m_head))
    , m_subjectFreed(new WillFreeView(freeing, mainThread, patience, m_head))
    , m_toggle(makeButton("basketToggle"))
    , m_list(new BasketList(m_model, this))
    , m_total(new QLabel(this))
    , m_empty(makeButton("basketEmpty"))
    , m_allFreed(new WillFreeView(freeing, mainThread, patience, this))
    , m_moveAll(makeButton("basketMoveAll"))
{
    auto* const content = new QWidget;
    auto* const contentLayout = new QVBoxLayout(content);
    contentLayout->setContentsMargins({});
    makeHead(*contentLayout);
    makeList(*contentLayout);
    makeFoot(*contentLayout);
    makeScroll(content);
    setAcceptDrops(true);
    setAccessibleName(tr("Basket"));
    m_later.setSingleShot(true);
    m_later.setInterval(kTogetherMilliseconds);
    connectParts();
    showButtons();
}

BasketPanel::~BasketPanel() = default;

void BasketPanel::makeScroll(QWidget* content)
{
    m_scroll->setWidget(content);
    m_scroll->setWidgetResizable(true);
    m_scroll->setFrameStyle(QFrame::NoFrame);
    m_scroll->setFocusPolicy(Qt::NoFocus);
    m_scroll->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins(kBasketMargin, kBasketMargin, kBasketMargin, kBasketMargin);
    layout->addWidget(m_scroll);
}

QPushButton* BasketPanel::makeButton(const char* objectName)
{
    auto* const button = new QPushButton(this);
    button->setObjectName(QString::fromLatin1(objectName));
    button->setAutoDefault(false);
    button->installEventFilter(this);
    return button;
}

void BasketPanel::makeHead(QVBoxLayout& layout)
{
    QFont bold = m_name->font();
    bold.setBold(true);
    m_name->setFont(bold);
    m_name->setObjectName(QStringLiteral("basketSubject"));
    m_size->setObjectName(QStringLiteral("basketSubjectSize"));
    m_subjectFreed->setObjectName(QStringLiteral("basketSubjectFreed"));
    m_size->setTextFormat(Qt::PlainText);
    auto* const line = new QHBoxLayout;
    line->addWidget(m_name, 1);
    line->addWidget(m_size);
    auto* const head = new QVBoxLayout(m_head);
    head->setContentsMargins({});
    head->addLayout(line);
    head->addWidget(m_subjectFreed);
    head->addWidget(m_toggle, 0, Qt::AlignLeft);
    layout.addWidget(m_head);
}

void BasketPanel::makeList(QVBoxLayout& layout)
{
    const QString howToFill
        = tr("Press B, or drag boxes here, to collect what you want to move to the trash. "
             "Nothing moves until you say so.");
    m_list->setObjectName(QStringLiteral("basketList"));
    m_list->setPlaceholder(howToFill);
    m_list->setAccessibleName(tr("Items in the basket"));
    m_list->setAccessibleDescription(
        tr("%1 Delete takes the selected items out of the basket; nothing moves to the trash.")
            .arg(howToFill));
    m_list->installEventFilter(this);
    layout.addWidget(m_list, 1);
}

void BasketPanel::makeFoot(QVBoxLayout& layout)
{
    m_total->setObjectName(QStringLiteral("basketTotal"));
    m_total->setTextFormat(Qt::PlainText);
    m_total->setWordWrap(true);
    readOutWhenShown(*m_total);
    m_allFreed->setObjectName(QStringLiteral("basketFreed"));
    m_empty->setText(tr("Empty Basket"));
    auto* const line = new QHBoxLayout;
    line->addWidget(m_total, 1);
    line->addWidget(m_empty, 0, Qt::AlignTop);
    layout.addLayout(line);
    layout.addWidget(m_allFreed);
    layout.addWidget(m_moveAll);
}
// NOLINTEND(cppcoreguidelines-owning-memory)

void BasketPanel::connectParts()
{
    m_later.callOnTimeout(this, &BasketPanel::refresh);
    connect(&m_keeper, &BasketKeeper::changed, this, &BasketPanel::basketChanged);
    connect(&m_model, &QAbstractItemModel::modelReset, this, &BasketPanel::showBasket);
    connect(m_toggle, &QPushButton::clicked, this, &BasketPanel::toggleRequested);
    connect(m_list, &BasketList::showRequested, this, &BasketPanel::showRequested);
    connect(m_list, &BasketList::removeRequested, this, &BasketPanel::remove);
    connect(m_empty, &QPushButton::clicked, &m_keeper, &BasketKeeper::clear);
    connect(m_moveAll, &QPushButton::clicked, this, &BasketPanel::startMoveAll);
    connect(m_allFreed, &WillFreeView::answered, this, &BasketPanel::heardOfAll);
}

void BasketPanel::setSubject(const File* subject)
{
    m_subject = subject;
    m_subjectFreed->forget();
    m_isSubjectStale = true;
    refreshSoon();
}

void BasketPanel::treeChanged()
{
    setSubject(m_subject);
    basketChanged();
}

void BasketPanel::basketChanged()
{
    m_model.setStale();
    m_allFreed->forget();
    refreshSoon();
}

void BasketPanel::setInFront(bool isInFront)
{
    if (isInFront == m_isInFront) {
        return;
    }
    m_isInFront = isInFront;
    if (isInSight()) {
        refresh();
    } else {
        rest();
    }
}

void BasketPanel::setMoving(bool isMoving)
{
    m_isMoving = isMoving;
    m_isMoveWanted = false;
    basketChanged();
    showButtons();
}

bool BasketPanel::isInSight() const
{
    return isVisible() && m_isInFront;
}

void BasketPanel::refreshSoon()
{
    if (isInSight() && !m_later.isActive()) {
        m_later.start();
    }
}

void BasketPanel::refresh()
{
    m_later.stop();
    if (std::exchange(m_isSubjectStale, false)) {
        showSubject();
    }
    m_model.bringUpToDate();
    showButtons();
}

/// Nothing is asked, and nothing awaited, of what is out of sight.
void BasketPanel::rest()
{
    m_later.stop();
    m_list->setAtWork(false);
    m_subjectFreed->forget();
    m_allFreed->forget();
    m_model.setStale();
    m_isSubjectStale = true;
    m_isMoveWanted = false;
    showButtons();
}

void BasketPanel::showSubject()
{
    m_head->setVisible(m_subject != nullptr);
    if (m_subject == nullptr) {
        return;
    }
    m_name->setText(shownName(*m_subject));
    m_size->setText(sizeText(m_subject->totalAllocation()));
    m_subjectFreed->setItems(
        isItem(*m_subject) ? std::vector<const File*>{m_subject} : std::vector<const File*>());
}

/// What removing many frees is not counted anew for each one that is on its way.
void BasketPanel::showBasket()
{
    m_list->setAtWork(isInSight() && !m_isMoving);
    m_allFreed->setItems(m_isMoving ? std::vector<const File*>() : outermostOf(m_keeper.basket()));
    m_isMoveWanted = m_isMoveWanted && !m_keeper.basket().isEmpty();
    if (m_isMoveWanted) {
        m_allFreed->askNow();
    }
    showTotal();
    showButtons();
}

void BasketPanel::showTotal()
{
    const Basket& basket = m_keeper.basket();
    const QString size = sizeText(basket.totalAllocation());
    QString total = tr("No items");
    if (basket.size() == 1) {
        total = tr("1 item, %1").arg(size);
    } else if (!basket.isEmpty()) {
        const QString count = QLocale().toString(static_cast<qulonglong>(basket.size()));
        total = tr("%1 items, %2", nullptr, pluralNumber(basket.size())).arg(count, size);
    }
    if (total != m_total->text()) {
        // Screen readers read it out when it comes into sight.
        m_total->hide();
        m_total->setText(total);
        m_total->setAccessibleName(total);
        m_total->show();
    }
}

void BasketPanel::showButtons()
{
    const Basket& basket = m_keeper.basket();
    // While the head is about to be another, its node may be gone.
    const bool isInside = !m_isSubjectStale && m_subject != nullptr && basket.isMarked(*m_subject);
    m_toggle->setText(isInside ? tr("Take Out of Basket") : tr("Add to Basket"));
    m_toggle->setAccessibleDescription({});
    disable(*m_toggle, whyNoToggle());
    m_empty->setAccessibleDescription(
        tr("Takes all items out of the basket. Nothing moves to the trash."));
    disable(*m_empty, whyNoMove());
    m_list->setObstacle(m_isMoving ? whyNoMove() : QString());
    m_moveAll->setText(
        m_isMoving           ? tr("Moving to Trash…")
            : m_isMoveWanted ? tr("Looking at the Items…")
                             : tr("Move All to Trash…"));
    m_moveAll->setAccessibleDescription(
        tr("Asks before anything moves. %1").arg(m_allFreed->accessibleName()));
    disable(*m_moveAll, m_isMoveWanted ? tr("The items are being looked at.") : whyNoMove());
}

/// Empty when the selected item can go into the basket, or come out again.
QString BasketPanel::whyNoToggle() const
{
    if (m_isSubjectStale) {
        return tr("Another item has just been selected.");
    }
    return mayBeChosen(m_subject) ? QString() : tr("This cannot be moved to the trash.");
}

/// Empty when all that is in the basket can go.
QString BasketPanel::whyNoMove() const
{
    if (m_isMoving) {
        return tr("Items are on their way to the trash. Wait until they have arrived.");
    }
    return m_keeper.basket().isEmpty() ? tr("The basket is empty.") : QString();
}

/// Nothing for an empty reason. Qt hands the keyboard of a disabled button to whatever comes next,
/// which may be anywhere.
void BasketPanel::disable(QPushButton& button, const QString& reason)
{
    if (!reason.isEmpty() && button.hasFocus()) {
        m_list->setFocus(Qt::OtherFocusReason);
    }
    button.setEnabled(reason.isEmpty());
    button.setToolTip(reason);
    if (!reason.isEmpty()) {
        button.setAccessibleDescription(reason);
    }
}

void BasketPanel::startMoveAll()
{
    m_model.bringUpToDate();
    m_isMoveWanted = !m_keeper.basket().isEmpty();
    if (m_isMoveWanted) {
        m_allFreed->askNow();
    }
    showButtons();
}

void BasketPanel::heardOfAll(const FreedSpace& freed)
{
    const bool isWanted = std::exchange(m_isMoveWanted, false);
    showButtons();
    if (isWanted) {
        emit moveAllRequested(freed);
    }
}

void BasketPanel::remove(const std::vector<File*>& items)
{
    for (const File* const item : items) {
        m_keeper.remove(*item);
    }
}

void BasketPanel::showEvent(QShowEvent* event)
{
    QWidget::showEvent(event);
    if (!event->spontaneous() && m_isInFront) {
        refresh();
    }
}

void BasketPanel::hideEvent(QHideEvent* event)
{
    QWidget::hideEvent(event);
    if (!event->spontaneous()) {
        rest();
    }
}

void BasketPanel::focusInEvent(QFocusEvent* event)
{
    m_list->setFocus(event->reason());
}

void BasketPanel::paintEvent(QPaintEvent* event)
{
    QWidget::paintEvent(event);
    if (m_isDragOver) {
        QPainter painter(this);
        painter.setPen(QPen(palette().color(QPalette::Highlight), kDropLineWidth));
        painter.drawRect(rect().adjusted(1, 1, -1, -1));
    }
}

void BasketPanel::dragEnterEvent(QDragEnterEvent* event)
{
    if (draggedItem(*event->mimeData())) {
        event->setDropAction(Qt::LinkAction); // nothing moves
        event->accept();
        setDragOver(true);
    }
}

void BasketPanel::dragMoveEvent(QDragMoveEvent* event)
{
    event->setDropAction(Qt::LinkAction);
    event->accept();
}

void BasketPanel::dragLeaveEvent(QDragLeaveEvent* /*event*/)
{
    setDragOver(false);
}

void BasketPanel::dropEvent(QDropEvent* event)
{
    setDragOver(false);
    if (const auto path = draggedItem(*event->mimeData())) {
        event->setDropAction(Qt::LinkAction);
        event->accept();
        emit dropped(*path);
    }
}

void BasketPanel::setDragOver(bool isDragOver)
{
    m_isDragOver = isDragOver;
    update();
}

/// What takes the keyboard is to be in sight.
bool BasketPanel::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::FocusIn) {
        m_scroll->ensureWidgetVisible(static_cast<QWidget*>(watched), 0, 0);
    }
    return QWidget::eventFilter(watched, event);
}

} // namespace tessera
