// SPDX-License-Identifier: MIT
#include "BasketPanel/BasketList.h"

#include "BasketPanel/BasketModel.h"
#include "Language/SizeText.h"

#include <QContextMenuEvent>
#include <QHeaderView>
#include <QItemSelection>
#include <QKeyEvent>
#include <QMenu>
#include <QPainter>
#include <QStyledItemDelegate>

#include <algorithm>
#include <unordered_set>

namespace tessera {

namespace {

constexpr int kLeastLines = 6; ///< that are seen at once; the placeholder needs as many
constexpr int kIndent = 12; ///< of what lies inside another item
constexpr int kMostIndents = 4; ///< deeper ones stand in the same column: names need room
constexpr int kPlaceholderMargin = 8;
constexpr int kCellMargin = 6;
constexpr std::uint64_t kWidestSize = 888'800'000'000; ///< as a text

/// Indents what lies inside another item; figures end with "…" where there is no room.
class BasketCells final : public QStyledItemDelegate {
public:
    BasketCells(const BasketModel& model, QObject* parent)
        : QStyledItemDelegate(parent)
        , m_model(model)
    {
    }

    void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override
    {
        QStyledItemDelegate::initStyleOption(option, index);
        const int depth = m_model.depth(index.row());
        if (index.column() == BasketModel::Item && depth > 0) {
            // Room for a picture that is not there: what is selected is so from edge to edge.
            option->features |= QStyleOptionViewItem::HasDecoration;
            option->decorationSize = {kIndent * std::min(depth, kMostIndents), 1};
        } else if (index.column() != BasketModel::Item) {
            option->textElideMode = Qt::ElideRight;
        }
    }

private:
    const BasketModel& m_model;
};

bool isRemovalKey(const QKeyEvent& event)
{
    // With any other key held down as well: what the program does elsewhere at Ctrl+Delete is not
    // about these rows.
    return event.key() == Qt::Key_Delete
        || (event.key() == Qt::Key_B && event.modifiers() == Qt::NoModifier);
}

bool isReturn(const QKeyEvent& event)
{
    return event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter;
}

} // namespace

BasketList::BasketList(BasketModel& model, QWidget* parent)
    : QTreeView(parent)
    , m_model(model)
{
    setModel(&model);
    // NOLINTNEXTLINE(cppcoreguidelines-owning-memory): the list owns it
    setItemDelegate(new BasketCells(model, this));
    setRootIsDecorated(false);
    setUniformRowHeights(true);
    setAllColumnsShowFocus(true);
    setSelectionMode(ExtendedSelection);
    setTextElideMode(Qt::ElideMiddle);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    // Tab leaves the list and does not walk through a thousand rows.
    setTabKeyNavigation(false);
    header()->setStretchLastSection(false);
    header()->setSectionsMovable(false);
    header()->setSectionResizeMode(BasketModel::Item, QHeaderView::Stretch);
    header()->setSectionResizeMode(BasketModel::Size, QHeaderView::Fixed);
    header()->setSectionResizeMode(BasketModel::WillFree, QHeaderView::Stretch);
    header()->setMinimumSectionSize(1);
    header()->hide();
    connect(&model, &QAbstractItemModel::modelAboutToBeReset, this, &BasketList::keep);
    connect(&model, &QAbstractItemModel::modelReset, this, &BasketList::restore);
    m_work.setInterval(0);
    m_work.callOnTimeout(this, &BasketList::workOutNext);
}

BasketList::~BasketList() = default;

void BasketList::setAtWork(bool isAtWork)
{
    m_isAtWork = isAtWork;
    if (isAtWork) {
        m_work.start();
    } else {
        m_work.stop();
    }
}

void BasketList::setPlaceholder(const QString& text)
{
    m_placeholder = text;
    viewport()->update();
}

QSize BasketList::sizeHint() const
{
    return minimumSizeHint();
}

QSize BasketList::minimumSizeHint() const
{
    const int line = fontMetrics().lineSpacing() + 2;
    return {1, kLeastLines * line + header()->sizeHint().height()};
}

void BasketList::keep()
{
    m_kept = {};
    for (const QModelIndex& index : selectionModel()->selectedRows()) {
        m_kept.selected.push_back(m_model.path(index.row()));
    }
    if (currentIndex().isValid()) {
        m_kept.currentRow = currentIndex().row();
        m_kept.current = m_model.path(m_kept.currentRow);
    }
}

void BasketList::restore()
{
    header()->setVisible(m_model.rowCount() > 0);
    header()->resizeSection(
        BasketModel::Size,
        fontMetrics().horizontalAdvance(sizeText(kWidestSize)) + 2 * kCellMargin);
    const std::unordered_set<std::string> selected(m_kept.selected.begin(), m_kept.selected.end());
    QItemSelection selection;
    QModelIndex current;
    for (int row = 0; row < m_model.rowCount() && m_kept.currentRow >= 0; ++row) {
        if (selected.contains(m_model.path(row))) {
            selection.select(m_model.index(row, 0), m_model.index(row, 0));
        }
        if (m_model.path(row) == m_kept.current) {
            current = m_model.index(row, 0);
        }
    }
    const bool isAllGone = !selected.empty() && selection.isEmpty();
    if (!current.isValid() && m_kept.currentRow >= 0) {
        current = m_model.index(std::min(m_kept.currentRow, m_model.rowCount() - 1), 0);
    }
    // What stands in the place of rows that were taken out is next.
    selectionModel()->setCurrentIndex(
        current,
        isAllGone ? QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows
                  : QItemSelectionModel::NoUpdate);
    selectionModel()->select(selection, QItemSelectionModel::Select | QItemSelectionModel::Rows);
    setAtWork(m_isAtWork);
}

void BasketList::workOutNext()
{
    const int bottom = viewport()->height();
    QModelIndex index = indexAt(QPoint(0, 0));
    while (index.isValid() && visualRect(index).top() < bottom) {
        if (m_model.isToBeWorkedOut(index.row())) {
            m_model.workOut(index.row());
            return;
        }
        index = indexBelow(index);
    }
    m_work.stop();
}

bool BasketList::event(QEvent* event)
{
    if (event->type() == QEvent::ShortcutOverride) {
        const auto& key = *static_cast<QKeyEvent*>(event);
        if (isRemovalKey(key) || (isReturn(key) && key.modifiers() == Qt::NoModifier)) {
            event->accept();
            return true;
        }
    }
    return QTreeView::event(event);
}

void BasketList::paintEvent(QPaintEvent* event)
{
    QTreeView::paintEvent(event);
    if (m_model.rowCount() > 0) {
        return;
    }
    QPainter painter(viewport());
    painter.setPen(palette().color(QPalette::PlaceholderText));
    const QRect room = viewport()->rect().adjusted(
        kPlaceholderMargin, kPlaceholderMargin, -kPlaceholderMargin, -kPlaceholderMargin);
    painter.drawText(room, Qt::AlignCenter | Qt::TextWordWrap, m_placeholder);
}

void BasketList::resizeEvent(QResizeEvent* event)
{
    QTreeView::resizeEvent(event);
    setAtWork(m_isAtWork);
}

void BasketList::scrollContentsBy(int dx, int dy)
{
    QTreeView::scrollContentsBy(dx, dy);
    setAtWork(m_isAtWork);
}

void BasketList::keyPressEvent(QKeyEvent* event)
{
    if (isRemovalKey(*event)) {
        removeSelected();
    } else if (isReturn(*event)) {
        showCurrent();
    } else if (event->key() == Qt::Key_Escape) {
        // The list would look for a name that begins with it.
        event->ignore();
    } else {
        QTreeView::keyPressEvent(event);
    }
}

void BasketList::mouseDoubleClickEvent(QMouseEvent* event)
{
    QTreeView::mouseDoubleClickEvent(event);
    if (event->button() == Qt::LeftButton && indexAt(event->position().toPoint()).isValid()) {
        showCurrent();
    }
}

// NOLINTBEGIN(cppcoreguidelines-owning-memory): the menu ends when it closes
void BasketList::contextMenuEvent(QContextMenuEvent* event)
{
    if (!selectionModel()->hasSelection()) {
        return;
    }
    auto* const menu = new QMenu(this);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    menu->addAction(tr("Show in Picture"), this, &BasketList::showCurrent)
        ->setEnabled(currentIndex().isValid());
    menu->setToolTipsVisible(true);
    auto* const remove
        = menu->addAction(tr("Take Out of Basket"), this, &BasketList::removeSelected);
    remove->setEnabled(m_obstacle.isEmpty());
    remove->setToolTip(m_obstacle);
    const bool isByMouse = event->reason() == QContextMenuEvent::Mouse;
    menu->popup(
        isByMouse ? event->globalPos()
                  : viewport()->mapToGlobal(visualRect(currentIndex()).center()));
}
// NOLINTEND(cppcoreguidelines-owning-memory)

void BasketList::showCurrent()
{
    m_model.bringUpToDate();
    File* const item = currentIndex().isValid() ? m_model.item(currentIndex().row()) : nullptr;
    if (item != nullptr) {
        emit showRequested(item);
    }
}

void BasketList::removeSelected()
{
    if (!m_obstacle.isEmpty()) {
        return;
    }
    m_model.bringUpToDate();
    std::vector<File*> items;
    for (const QModelIndex& index : selectionModel()->selectedRows()) {
        items.push_back(m_model.item(index.row()));
    }
    if (!items.empty()) {
        emit removeRequested(items);
    }
}

} // namespace tessera
