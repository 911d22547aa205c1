// SPDX-License-Identifier: MIT
#include "HistoryWindow/HistoryWindowController.h"

#include "Desktop/Alert.h"
#include "Desktop/Workspace.h"
#include "History/TrashHistory.h"
#include "HistoryWindow/TrashHistoryModel.h"
#include "Model/UserDefaults.h"
#include "Widgets/NoFileManager.h"
#include "ui_HistoryWindow.h"

#include <QAction>
#include <QEvent>
#include <QHeaderView>
#include <QMenu>
#include <QPointer>
#include <QScrollBar>

#include <array>
#include <string>
#include <utility>

namespace tessera {

namespace {

constexpr QSize kFirstSize{860, 440};

// Qt's own records, in base 64.
constexpr std::string_view kFrameKey = "HistoryWindowFrame";
constexpr std::string_view kColumnsKey = "HistoryWindowColumns";

/// Of all columns but the last one, which takes the rest; in characters of middle width.
constexpr std::array kColumnCharacters{25, 21, 21, 17, 13};

int column(TrashHistoryModel::Column column)
{
    return static_cast<int>(column);
}

QByteArray storedRecord(const UserDefaults& defaults, std::string_view key)
{
    return QByteArray::fromBase64(QByteArray::fromStdString(defaults.string(key)));
}

} // namespace

HistoryWindowController::HistoryWindowController(const HistoryWindowServices& services)
    : m_services(services)
    , m_window(std::make_unique<QWidget>())
    , m_ui(std::make_unique<Ui::HistoryWindow>())
    // NOLINTNEXTLINE(cppcoreguidelines-owning-memory): the parent owns it
    , m_model(new TrashHistoryModel(services.homeDirectory, this))
{
    m_ui->setupUi(m_window.get());
    setUpTable();
    setUpActions();
    restore();
    validate();
    tellStatus();
    m_window->installEventFilter(this);
}

HistoryWindowController::~HistoryWindowController()
{
    m_window->removeEventFilter(this);
    if (m_window->isVisible()) {
        save();
    }
}

void HistoryWindowController::setUpTable()
{
    HistoryTableView& table = *m_ui->table;
    m_sorted.setSourceModel(m_model);
    m_sorted.setSortRole(TrashHistoryModel::kSortRole);
    m_sorted.setSortLocaleAware(true);
    m_sorted.setSortCaseSensitivity(Qt::CaseInsensitive);
    table.setModel(&m_sorted);
    table.horizontalHeader()->setSectionsMovable(true);
    table.verticalHeader()->setDefaultSectionSize(table.verticalHeader()->minimumSectionSize());
    connect(
        table.selectionModel(),
        &QItemSelectionModel::selectionChanged,
        this,
        &HistoryWindowController::validate);
    connect(&table, &HistoryTableView::chosen, this, [this] { m_show->trigger(); });
    connect(&table, &QWidget::customContextMenuRequested, this, &HistoryWindowController::showMenu);
}

void HistoryWindowController::setUpActions()
{
    m_show = makeAction(tr("&Show"), QStringLiteral("Ctrl+Shift+R"), *m_ui->showButton);
    m_putBack = makeAction(tr("&Put Back"), QStringLiteral("Ctrl+B"), *m_ui->putBackButton);
    connect(m_show, &QAction::triggered, this, &HistoryWindowController::reveal);
    connect(m_putBack, &QAction::triggered, this, &HistoryWindowController::putBack);
    // NOLINTNEXTLINE(cppcoreguidelines-owning-memory): the window owns it
    auto* const close = new QAction(m_window.get());
    close->setShortcuts({QKeySequence(Qt::Key_Escape), QKeySequence(Qt::CTRL | Qt::Key_W)});
    connect(close, &QAction::triggered, m_window.get(), &QWidget::close);
    m_window->addAction(close);
}

QAction* HistoryWindowController::makeAction(
    const QString& title, const QString& keys, QPushButton& button)
{
    // NOLINTNEXTLINE(cppcoreguidelines-owning-memory): the window owns it
    auto* const action = new QAction(title, m_window.get());
    action->setShortcut(QKeySequence(keys));
    m_window->addAction(action);
    button.setText(title);
    connect(&button, &QPushButton::clicked, action, &QAction::trigger);
    connect(action, &QAction::changed, &button, [action, &button] {
        button.setEnabled(action->isEnabled());
        button.setToolTip(action->toolTip());
    });
    return action;
}

void HistoryWindowController::restore()
{
    m_window->resize(kFirstSize);
    // Qt checks its records and leaves the window alone when they are broken or there are none.
    (void)m_window->restoreGeometry(storedRecord(m_services.defaults, kFrameKey));
    HistoryTableView& table = *m_ui->table;
    const int character = table.fontMetrics().averageCharWidth();
    for (std::size_t i = 0; i < kColumnCharacters.size(); ++i) {
        table.setColumnWidth(static_cast<int>(i), kColumnCharacters.at(i) * character);
    }
    QHeaderView& header = *table.horizontalHeader();
    header.setSortIndicator(column(TrashHistoryModel::Column::Time), Qt::DescendingOrder);
    (void)header.restoreState(storedRecord(m_services.defaults, kColumnsKey));
    table.sortByColumn(header.sortIndicatorSection(), header.sortIndicatorOrder());
}

void HistoryWindowController::save() const
{
    UserDefaults& defaults = m_services.defaults;
    const QByteArray columns = m_ui->table->horizontalHeader()->saveState();
    defaults.setString(kFrameKey, m_window->saveGeometry().toBase64().toStdString());
    defaults.setString(kColumnsKey, columns.toBase64().toStdString());
    // Without them the window opens as it was the time before.
    (void)defaults.synchronize();
}

void HistoryWindowController::showWindow()
{
    m_window->setWindowState(m_window->windowState() & ~Qt::WindowMinimized);
    m_window->show();
    m_window->raise();
    m_window->activateWindow();
    m_ui->table->setFocus();
}

void HistoryWindowController::showMenu(const QPoint& inTable) const
{
    if (selected() == nullptr) {
        return;
    }
    // NOLINTNEXTLINE(cppcoreguidelines-owning-memory): the window owns it until it is closed
    auto* const menu = new QMenu(m_window.get());
    menu->setAttribute(Qt::WA_DeleteOnClose);
    menu->setToolTipsVisible(true);
    menu->addActions({m_show, m_putBack});
    menu->popup(m_ui->table->viewport()->mapToGlobal(inTable));
}

void HistoryWindowController::refresh()
{
    if (m_isReading) {
        m_mustReadAgain = true;
    } else if (m_window->isVisible()) {
        read();
    }
}

void HistoryWindowController::read()
{
    m_isReading = true;
    m_mustReadAgain = false;
    tellStatus();
    m_services.history.entries(
        [self = QPointer<HistoryWindowController>(this)](const std::vector<TrashRecord>& records) {
            if (self != nullptr) {
                self->take(records);
            }
        });
}

void HistoryWindowController::setComingBack(std::vector<TrashedItem> items)
{
    m_model->setComingBack(std::move(items));
    validate();
}

void HistoryWindowController::take(const std::vector<TrashRecord>& records)
{
    m_isReading = false;
    const bool wasEmpty = m_sorted.rowCount() == 0;
    setRecordsKeepingView(records);
    if (wasEmpty && m_sorted.rowCount() > 0) {
        beginAtTheNewest();
    }
    m_hasRead = true;
    validate();
    if (m_mustReadAgain) {
        m_mustReadAgain = false;
        refresh();
    }
    tellStatus();
}

/// The first answer selects the newest move. The keys begin there too when the list was empty
/// before, but nobody has chosen what has just come.
void HistoryWindowController::beginAtTheNewest()
{
    if (m_hasRead) {
        m_ui->table->selectionModel()->setCurrentIndex(
            m_sorted.index(0, 0), QItemSelectionModel::NoUpdate);
    } else {
        m_ui->table->selectRow(0);
    }
}

/// Whoever looks at the newest sees those that come; else the rows stay where they are.
void HistoryWindowController::setRecordsKeepingView(const std::vector<TrashRecord>& records)
{
    HistoryTableView& table = *m_ui->table;
    const int sideways = table.horizontalScrollBar()->value();
    const bool isAtTop = table.verticalScrollBar()->value() == 0;
    const QPersistentModelIndex first = table.indexAt({0, 0});
    const bool hadSelection = selected() != nullptr;
    const QPersistentModelIndex current = table.currentIndex();
    m_model->setRecords(records);
    // Where a row goes away Qt selects another one, which the user has not chosen.
    if (hadSelection && !current.isValid()) {
        table.setCurrentIndex({});
    }
    if (isAtTop) {
        table.scrollToTop();
    } else if (first.isValid()) {
        table.scrollTo(first, QAbstractItemView::PositionAtTop);
    }
    table.horizontalScrollBar()->setValue(sideways);
}

void HistoryWindowController::tellStatus()
{
    const int count = m_sorted.rowCount();
    const QString looking = tr("Looking where the items are…");
    const QString none = m_hasRead
        ? tr("What you move to the trash is listed here, and can be put back.")
        : looking;
    const QString moves = count == 1 ? tr("One move") : tr("%n moves", nullptr, count);
    const QString found = count == 0 ? QString() : moves;
    m_ui->status->setText(m_isReading ? looking : found);
    m_ui->table->setPlaceholder(none);
    m_ui->table->setAccessibleDescription(count == 0 ? none : QString());
}

void HistoryWindowController::validate()
{
    const TrashRecord* const record = selected();
    const bool isComingBack = record != nullptr && m_model->isComingBack(*record);
    const bool isInTrash = record != nullptr && record->state == TrashState::Moved;
    const QString nothing = tr("Select an item first.");
    const QString whyNotInTrash
        = record == nullptr ? nothing : tr("Only what is in the trash can be put back.");
    const QString whyNot = isComingBack ? whyItWaits() : whyNotInTrash;
    const bool canPutBack = isInTrash && !isComingBack;
    m_putBack->setEnabled(canPutBack);
    m_putBack->setToolTip(canPutBack ? tr("Puts the item back where it was.") : whyNot);
    const bool canShow = record != nullptr && placeNow(*record).has_value();
    m_show->setEnabled(canShow);
    m_show->setToolTip(
        canShow ? tr("Shows the item in your file manager, where it is now.")
            : record == nullptr
            ? nothing
            : tr("Nobody knows where the item is now, or whether it still exists."));
}

const TrashRecord* HistoryWindowController::selected() const
{
    const QModelIndexList rows = m_ui->table->selectionModel()->selectedRows();
    return rows.isEmpty() ? nullptr : &m_model->record(m_sorted.mapToSource(rows.front()).row());
}

void HistoryWindowController::putBack()
{
    if (const TrashRecord* const record = selected()) {
        // The list may change meanwhile.
        emit putBackRequested(TrashRecord(*record));
    }
}

void HistoryWindowController::reveal()
{
    const TrashRecord* const record = selected();
    const std::optional<Url> place = record == nullptr ? std::nullopt : placeNow(*record);
    if (!place) {
        return;
    }
    const std::string name(record->item.from.lastPathComponent());
    m_services.workspace.reveal(
        *place, [self = QPointer<HistoryWindowController>(this), name](bool isShown) {
            if (self != nullptr && !isShown) {
                self->m_services.alert.beginSheet(noFileManager(name));
            }
        });
}

bool HistoryWindowController::eventFilter(QObject* watched, QEvent* event)
{
    switch (event->type()) {
    case QEvent::Show:
    case QEvent::WindowActivate:
        if (!m_isReading) {
            read();
        }
        break;
    case QEvent::Close:
        save();
        break;
    default:
        break;
    }
    return QObject::eventFilter(watched, event);
}

} // namespace tessera
