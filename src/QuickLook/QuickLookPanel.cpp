// SPDX-License-Identifier: MIT
#include "QuickLook/QuickLookPanel.h"

#include "Desktop/MotionPreference.h"
#include "QuickLook/PanelBody.h"
#include "QuickLook/PreviewItem.h"
#include "QuickLook/PreviewView.h"
#include "QuickLook/QuickLookPanelDataSource.h"
#include "QuickLook/QuickLookPanelDelegate.h"
#include "QuickLook/Reading/PreviewLoader.h"
#include "QuickLook/Reading/PreviewThreads.h"
#include "QuickLook/Summary.h"
#include "QuickLook/SummaryView.h"
#include "Widgets/IconProvider.h"

#include <QCloseEvent>
#include <QCoreApplication>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QPainter>
#include <QScreen>
#include <QWindow>

#include <algorithm>
#include <chrono>
#include <utility>

namespace tessera {

namespace {

constexpr double kMostOfScreen = 0.7;
constexpr int kPageWidth = 640;
/// Most files are read sooner, and the item before stays in sight so long.
constexpr int kPatienceMs = 150;
/// A decoder is killed at once; a file system may take its time.
constexpr std::chrono::milliseconds kEndOfProgramPatience{500};

constexpr Qt::WindowFlags kPanelFlags = Qt::Tool | Qt::FramelessWindowHint;

/// A Wayland client neither knows nor sets where on the screen its windows are.
bool canPlaceWindows()
{
    return !QGuiApplication::platformName().startsWith(QLatin1String("wayland"));
}

bool closesPanel(const QKeyEvent& event)
{
    const bool isPlain = (event.modifiers() & ~Qt::KeypadModifier) == Qt::NoModifier;
    return isPlain && (event.key() == Qt::Key_Escape || event.key() == Qt::Key_Space);
}

} // namespace

QuickLookPanel& QuickLookPanel::sharedInstance()
{
    // Outlives the application object, whose end a static's destructor would come after.
    // NOLINTNEXTLINE(cppcoreguidelines-owning-memory): never released
    static auto* const instance = new QuickLookPanel;
    return *instance;
}

QuickLookPanel::QuickLookPanel()
    : QWidget(nullptr, kPanelFlags)
    , m_animation([this](const QRectF& frame) { moveOn(frame); })
    // NOLINTNEXTLINE(cppcoreguidelines-owning-memory): its parent owns it
    , m_body(new PanelBody(this))
{
    setObjectName(QStringLiteral("quickLookPanel"));
    setAttribute(Qt::WA_TranslucentBackground);
    setFocusPolicy(Qt::StrongFocus);
    connect(m_body, &PanelBody::closeRequested, this, &QuickLookPanel::orderOut);
    m_patience.setSingleShot(true);
    m_patience.setInterval(kPatienceMs);
    m_patience.callOnTimeout(this, &QuickLookPanel::showSummary);
    connect(qApp, &QCoreApplication::aboutToQuit, this, [this] {
        closeAtOnce();
        if (m_loader != nullptr) {
            m_loader->cancel();
            (void)m_threads->waitForEnd(kEndOfProgramPatience);
        }
    });
}

QuickLookPanel::~QuickLookPanel() = default;

void QuickLookPanel::setFileReader(
    const std::shared_ptr<const FileReader>& files,
    const std::shared_ptr<const RasterDecoder>& decoder,
    const std::shared_ptr<PreviewThreads>& threads)
{
    m_loader.reset();
    m_threads = threads;
    if (files != nullptr) {
        m_loader = std::make_unique<PreviewLoader>(
            files, decoder, threads, [this](const Preview& preview) { showPreview(preview); });
    }
}

void QuickLookPanel::setMainWindow(QWidget* window)
{
    if (window == m_mainWindow) {
        return;
    }
    closeAtOnce();
    if (m_mainWindow != nullptr) {
        m_mainWindow->removeEventFilter(this);
    }
    m_mainWindow = window;
    if (window != nullptr) {
        window->installEventFilter(this);
    }
}

void QuickLookPanel::setDataSource(QuickLookPanelDataSource* dataSource)
{
    m_dataSource = dataSource;
    if (dataSource == nullptr) {
        closeAtOnce();
    } else {
        reloadData();
    }
}

void QuickLookPanel::makeKeyAndOrderFront()
{
    if (isOpen()) {
        raise();
        activateWindow();
        return;
    }
    if (m_dataSource == nullptr) {
        return;
    }
    const QRectF from = m_state == State::Closing ? QRectF(geometry()) : sourceFrame();
    if (m_state == State::Closed && parentWidget() != m_mainWindow) {
        // As the window's child it stays above it and leaves its shortcuts at work.
        setParent(m_mainWindow, kPanelFlags);
    }
    m_state = State::Opening;
    adoptItem();
    showSummary();
    load();
    m_frame = frameForContent();
    startMoving(from, m_frame);
    show();
    raise();
    activateWindow();
    setFocus();
}

void QuickLookPanel::orderOut()
{
    if (!isOpen()) {
        return;
    }
    m_state = State::Closing;
    m_patience.stop();
    if (m_loader != nullptr) {
        m_loader->cancel();
    }
    startMoving(geometry(), sourceFrame());
}

void QuickLookPanel::reloadData()
{
    if (!isOpen() || m_dataSource == nullptr) {
        return;
    }
    const std::optional<ItemFacts> shown = m_facts;
    adoptItem();
    if (m_facts == shown) {
        return;
    }
    m_patience.start();
    load();
}

void QuickLookPanel::adoptItem()
{
    m_facts.reset();
    m_icon = {};
    if (m_dataSource->numberOfPreviewItemsInPreviewPanel() < 1) {
        return;
    }
    const PreviewItem& item = m_dataSource->previewItemAtIndex(0);
    m_facts = factsOf(item);
    if (m_facts && m_icons != nullptr) {
        m_icon
            = m_icons->icon(*item.previewItemNode(), SummaryView::kIconPoints, devicePixelRatioF());
    }
}

void QuickLookPanel::load()
{
    if (m_loader != nullptr) {
        m_loader->cancel();
    }
    if (!m_facts || m_facts->path.empty() || m_loader == nullptr) {
        showSummary();
        return;
    }
    const double scale = devicePixelRatioF();
    const QSize most = PanelBody::mostContentSize(availableGeometry().size() * kMostOfScreen);
    m_loader->load(
        {m_facts->path,
         m_facts->itemCount.has_value(),
         most * scale,
         static_cast<int>(kPageWidth * scale)});
}

void QuickLookPanel::showPreview(const Preview& preview)
{
    m_patience.stop();
    PreviewView& view = m_body->view();
    view.showPreview(*m_facts, preview, m_icon);
    contentChanged(view.hasContent() ? captionOf(*m_facts, preview) : QString());
}

void QuickLookPanel::showSummary()
{
    m_patience.stop();
    if (m_facts) {
        m_body->view().showSummary(*m_facts, m_icon);
    } else {
        m_body->view().showNothing();
    }
    contentChanged({});
}

void QuickLookPanel::contentChanged(const QString& caption)
{
    const QString name = m_facts ? m_facts->name : QString();
    setWindowTitle(name.isEmpty() ? tr("Quick Look") : name);
    setAccessibleName(tr("Quick Look: %1").arg(name));
    m_body->setTexts(name, caption);
    if (m_movedTo) {
        m_centre = std::exchange(m_movedTo, std::nullopt);
    }
    m_frame = frameForContent();
    if (m_animation.isRunning()) {
        m_moving = m_body->picture(m_frame.size(), devicePixelRatioF());
        m_animation.retarget(m_frame);
    } else if (m_state == State::Open) {
        settle();
    }
}

QRect QuickLookPanel::availableGeometry() const
{
    const QScreen* const screen
        = m_mainWindow != nullptr ? m_mainWindow->screen() : QGuiApplication::primaryScreen();
    return screen->availableGeometry();
}

QRect QuickLookPanel::frameForContent() const
{
    const QRect available = availableGeometry();
    const QSize size = m_body->preferredSize(available.size() * kMostOfScreen);
    const QPoint middle
        = m_mainWindow != nullptr ? m_mainWindow->frameGeometry().center() : available.center();
    QRect frame(QPoint(0, 0), size.boundedTo(available.size()));
    frame.moveCenter(m_centre.value_or(middle));
    frame.moveRight(std::min(frame.right(), available.right()));
    frame.moveBottom(std::min(frame.bottom(), available.bottom()));
    frame.moveLeft(std::max(frame.left(), available.left()));
    frame.moveTop(std::max(frame.top(), available.top()));
    return frame;
}

QRectF QuickLookPanel::sourceFrame() const
{
    if (m_delegate == nullptr || m_dataSource == nullptr
        || m_dataSource->numberOfPreviewItemsInPreviewPanel() < 1) {
        return {};
    }
    return m_delegate->sourceFrameOnScreenForPreviewItem(m_dataSource->previewItemAtIndex(0));
}

bool QuickLookPanel::canMove(const QRectF& source) const
{
    return !source.isEmpty() && canPlaceWindows()
        && (m_motion == nullptr || !m_motion->reducesMotion());
}

void QuickLookPanel::startMoving(const QRectF& from, const QRectF& to)
{
    if (!canMove(from) || !canMove(to)) {
        m_animation.stop();
        moveOn(to);
        return;
    }
    m_moving = m_body->picture(m_frame.size(), devicePixelRatioF());
    m_body->hide();
    m_animation.start(from, to);
}

void QuickLookPanel::moveOn(const QRectF& frame)
{
    if (m_animation.isRunning()) {
        setGeometry(frame.toAlignedRect());
        update();
    } else if (m_state == State::Closing) {
        closeAtOnce();
    } else {
        m_state = State::Open;
        settle();
    }
}

void QuickLookPanel::settle()
{
    m_moving = {};
    setGeometry(m_frame);
    m_body->setGeometry(rect());
    m_body->show();
    update();
}

void QuickLookPanel::closeAtOnce()
{
    if (m_state == State::Closed) {
        return;
    }
    const bool hadKeyboard = isActiveWindow();
    m_state = State::Closed;
    m_animation.stop();
    m_patience.stop();
    if (m_loader != nullptr) {
        m_loader->cancel();
    }
    hide();
    m_facts.reset();
    m_icon = {};
    m_moving = {};
    m_centre.reset();
    m_movedTo.reset();
    m_body->view().showNothing();
    // The window must not take the panel with it when it goes away.
    setParent(nullptr, kPanelFlags);
    if (hadKeyboard && m_mainWindow != nullptr && m_mainWindow->isVisible()) {
        m_mainWindow->activateWindow();
    }
}

void QuickLookPanel::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    if (m_moving.isNull()) {
        PanelBody::paintGround(painter, rect(), palette());
    } else {
        painter.setRenderHint(QPainter::SmoothPixmapTransform);
        painter.drawPixmap(rect(), m_moving);
    }
}

void QuickLookPanel::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    // Where nobody blends windows together, the corners outside the curve would be black.
    setMask(PanelBody::groundRegion(rect()));
}

bool QuickLookPanel::eventFilter(QObject* watched, QEvent* event)
{
    const auto* const window = qobject_cast<const QWidget*>(watched);
    const bool isMinimized = event->type() == QEvent::WindowStateChange && window->isMinimized();
    if (event->type() == QEvent::Hide || isMinimized) {
        closeAtOnce();
    }
    return QWidget::eventFilter(watched, event);
}

void QuickLookPanel::closeEvent(QCloseEvent* event)
{
    event->ignore();
    orderOut();
}

void QuickLookPanel::keyPressEvent(QKeyEvent* event)
{
    if (closesPanel(*event)) {
        // A key that is held down opened it a moment ago.
        if (event->isAutoRepeat()) {
            return;
        }
        if (m_state == State::Closing && event->key() == Qt::Key_Space) {
            makeKeyAndOrderFront();
        } else {
            orderOut();
        }
        return;
    }
    event->setAccepted(m_body->view().handleKey(*event) || isHandledByDelegate(*event));
}

void QuickLookPanel::keyReleaseEvent(QKeyEvent* event)
{
    event->setAccepted(isHandledByDelegate(*event));
}

bool QuickLookPanel::isHandledByDelegate(QEvent& event)
{
    return m_delegate != nullptr && m_delegate->handleEvent(event);
}

bool QuickLookPanel::focusNextPrevChild(bool /*next*/)
{
    // Nothing in the panel takes the focus: the tabulator is a key like others.
    return false;
}

void QuickLookPanel::mousePressEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton && m_state == State::Open) {
        windowHandle()->startSystemMove();
    }
}

void QuickLookPanel::moveEvent(QMoveEvent* event)
{
    QWidget::moveEvent(event);
    if (m_state != State::Open) {
        return;
    }
    // The window system reports the steps of the way here late: only the last one tells whether
    // somebody has moved the panel.
    m_movedTo
        = event->pos() == m_frame.topLeft() ? std::nullopt : std::optional(geometry().center());
}

} // namespace tessera
