// SPDX-License-Identifier: MIT
#include "MainWindow/SidePanels.h"

#include "Model/UserDefaults.h"

#include <QApplication>
#include <QCryptographicHash>
#include <QKeyEvent>
#include <QLayout>
#include <QMainWindow>
#include <QShortcut>
#include <QToolBar>

#include <algorithm>
#include <cassert>
#include <string>
#include <string_view>

namespace tessera {

namespace {

/// A checksum and Qt's record of the toolbars and panels of a main window, in base 64.
constexpr std::string_view kPanelsKey = "MainWindowPanels";

/// Another number makes Qt refuse the records of before.
constexpr int kPanelsVersion = 1;

constexpr auto kChecksum = QCryptographicHash::Sha256;

/// Qt may crash when it reads a record of which a part is wrong.
std::string sealed(const QByteArray& record)
{
    return (QCryptographicHash::hash(record, kChecksum) + record).toBase64().toStdString();
}

/// Empty where the text is not as it was written.
QByteArray unsealed(const std::string& text)
{
    const QByteArray whole = QByteArray::fromBase64(QByteArray::fromStdString(text));
    const QByteArray record = whole.mid(QCryptographicHash::hashLength(kChecksum));
    return whole == QCryptographicHash::hash(record, kChecksum) + record ? record : QByteArray();
}

bool hasKeyboard(const QWidget& panel)
{
    const QWidget* const focus = QApplication::focusWidget();
    return focus != nullptr && panel.isAncestorOf(focus);
}

} // namespace

SidePanels::SidePanels(QMainWindow& window, UserDefaults& defaults)
    : m_window(window)
    , m_defaults(defaults)
{
    m_window.setDockOptions(QMainWindow::AllowTabbedDocks);
    m_window.setTabPosition(Qt::AllDockWidgetAreas, QTabWidget::North);
    // Qt's own menu would close the toolbar as well, and open panels without a tree.
    m_window.setContextMenuPolicy(Qt::NoContextMenu);
    m_window.centralWidget()->setMinimumWidth(kLeastPictureWidth);
    // NOLINTNEXTLINE(cppcoreguidelines-owning-memory): this owns it
    auto* const next = new QShortcut(QKeySequence(Qt::Key_F6), &m_window);
    connect(next, &QShortcut::activated, this, &SidePanels::focusNext);
}

SidePanels::~SidePanels() = default;

QDockWidget& SidePanels::add(const char* objectName, const QString& title, QWidget* content)
{
    // NOLINTNEXTLINE(cppcoreguidelines-owning-memory): the window owns it
    auto* const panel = new QDockWidget(title, &m_window);
    panel->setObjectName(QString::fromLatin1(objectName));
    panel->setAllowedAreas(Qt::LeftDockWidgetArea | Qt::RightDockWidgetArea);
    panel->setFeatures(QDockWidget::DockWidgetClosable | QDockWidget::DockWidgetMovable);
    // What the content would like must not make the window grow.
    content->setMinimumSize(kLeastWidth, kLeastHeight);
    panel->setWidget(content);
    panel->hide();
    m_window.addDockWidget(Qt::RightDockWidgetArea, panel);
    if (!m_entries.empty()) {
        m_window.tabifyDockWidget(m_entries.back().panel, panel);
    }
    panel->installEventFilter(this);
    m_entries.push_back({panel});
    return *panel;
}

SidePanels::Entry& SidePanels::entryOf(const QObject& panel)
{
    const auto found = std::ranges::find(m_entries, &panel, &Entry::panel);
    assert(found != m_entries.end());
    return *found;
}

const SidePanels::Entry& SidePanels::entryOf(const QObject& panel) const
{
    const auto found = std::ranges::find(m_entries, &panel, &Entry::panel);
    assert(found != m_entries.end());
    return *found;
}

void SidePanels::restore()
{
    m_layout = unsealed(m_defaults.string(kPanelsKey));
    if (readLayout()) {
        for (Entry& entry : m_entries) {
            entry.isOpen = !entry.panel->isHidden();
            entry.hadWidth = entry.isOpen;
        }
    }
    showOpenOnes();
}

void SidePanels::save()
{
    if (m_isTreeDisplayed) {
        m_layout = m_window.saveState(kPanelsVersion);
    }
    m_defaults.setString(kPanelsKey, sealed(m_layout));
}

/// Qt checks the record, and changes nothing where it cannot be read.
bool SidePanels::readLayout()
{
    const bool isRead = m_window.restoreState(m_layout, kPanelsVersion);
    if (!isRead) {
        m_layout.clear();
    }
    return isRead;
}

/// As if no record had said otherwise: the toolbars are there and on top, no panel is a window.
void SidePanels::putInOrder()
{
    for (QToolBar* const bar : m_window.findChildren<QToolBar*>(Qt::FindDirectChildrenOnly)) {
        if (m_window.toolBarArea(bar) != Qt::TopToolBarArea) {
            m_window.addToolBar(Qt::TopToolBarArea, bar);
        }
        bar->show();
    }
    for (const Entry& entry : m_entries) {
        if (entry.panel->isFloating()) {
            entry.panel->setFloating(false);
        }
    }
}

void SidePanels::showOpenOnes()
{
    putInOrder();
    for (Entry& entry : m_entries) {
        entry.panel->setVisible(entry.isOpen && m_isTreeDisplayed);
        giveFirstWidth(entry);
    }
    // Who draws the picture now is to know how large it is.
    m_window.layout()->activate();
}

void SidePanels::setTreeDisplayed(bool displayed)
{
    if (displayed == m_isTreeDisplayed) {
        return;
    }
    if (!displayed) {
        m_layout = m_window.saveState(kPanelsVersion);
    }
    m_isTreeDisplayed = displayed;
    if (displayed && !m_layout.isEmpty()) {
        readLayout();
    }
    showOpenOnes();
}

void SidePanels::giveFirstWidth(Entry& entry)
{
    if (!entry.hadWidth && entry.isOpen && m_isTreeDisplayed) {
        entry.hadWidth = true;
        m_window.resizeDocks({entry.panel}, {kUsualWidth}, Qt::Horizontal);
    }
}

bool SidePanels::isOpen(const QDockWidget& panel) const
{
    return entryOf(panel).isOpen;
}

/// Qt keeps a panel behind another's tab shown, at a place where nothing of it is.
bool SidePanels::isInSight(const QDockWidget& panel)
{
    return panel.isVisible() && !panel.visibleRegion().isEmpty();
}

void SidePanels::open(QDockWidget& panel)
{
    Entry& entry = entryOf(panel);
    const bool wasOpen = entry.isOpen;
    entry.isOpen = true;
    if (m_isTreeDisplayed) {
        panel.show();
        giveFirstWidth(entry);
        panel.raise();
        m_window.layout()->activate();
    }
    if (!wasOpen) {
        emit opened(&panel);
    }
}

void SidePanels::close(QDockWidget& panel)
{
    Entry& entry = entryOf(panel);
    if (!entry.isOpen) {
        return;
    }
    entry.isOpen = false;
    leave(panel);
    panel.hide();
    m_window.layout()->activate();
    emit closed(&panel);
}

void SidePanels::toggle(QDockWidget& panel)
{
    if (isInSight(panel)) {
        close(panel);
        return;
    }
    open(panel);
    panel.widget()->setFocus(Qt::ShortcutFocusReason);
}

void SidePanels::leave(const QDockWidget& panel)
{
    if (hasKeyboard(panel)) {
        emit backToPicture();
    }
}

void SidePanels::focusNext()
{
    std::vector<QDockWidget*> inSight;
    for (const Entry& entry : m_entries) {
        if (isInSight(*entry.panel)) {
            inSight.push_back(entry.panel);
        }
    }
    const auto current = std::ranges::find_if(
        inSight, [](const QDockWidget* panel) { return hasKeyboard(*panel); });
    const auto next = current == inSight.end() ? inSight.begin() : current + 1;
    if (next != inSight.end()) {
        (*next)->widget()->setFocus(Qt::TabFocusReason);
    } else if (m_isTreeDisplayed) {
        emit backToPicture();
    }
}

bool SidePanels::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::Close) {
        // The panel's own button.
        event->ignore();
        close(*entryOf(*watched).panel);
        return true;
    }
    if (event->type() == QEvent::KeyPress
        && static_cast<QKeyEvent*>(event)->key() == Qt::Key_Escape) {
        // Nobody inside had a use for it.
        emit backToPicture();
        return true;
    }
    return QObject::eventFilter(watched, event);
}

} // namespace tessera
