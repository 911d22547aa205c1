// SPDX-License-Identifier: MIT
#include "QuickLook/QuickLookPanel.h"

#include "QuickLook/PanelBody.h"
#include "QuickLook/PreviewView.h"
#include "QuickLook/QuickLookServices.h"
#include "QuickLook/Summary.h"
#include "QuickLook/SummaryView.h"
#include "Widgets/IconProvider.h"

#include <QCloseEvent>
#include <QCoreApplication>
#include <QKeyEvent>
#include <QPainter>
#include <QWindow>

#include <memory>
#include <utility>

namespace tessera {

namespace {

constexpr Qt::WindowFlags kPanelFlags = Qt::Tool | Qt::FramelessWindowHint;

/// Outlives the application object, whose end a static's destructor would come after.
std::unique_ptr<QuickLookPanel>& sharedPanel()
{
    // NOLINTNEXTLINE(cppcoreguidelines-owning-memory): never released
    static auto* const panel = new std::unique_ptr<QuickLookPanel>;
    return *panel;
}

bool closesPanel(const QKeyEvent& event)
{
    const bool isPlain = (event.modifiers() & ~Qt::KeypadModifier) == Qt::NoModifier;
    return isPlain && (event.key() == Qt::Key_Escape || event.key() == Qt::Key_Space);
}

} // namespace

QuickLookPanel& QuickLookPanel::sharedInstance()
{
    const std::unique_ptr<QuickLookPanel>& panel = sharedPanel();
    return panel != nullptr ? *panel : makeSharedInstance({});
}

QuickLookPanel& QuickLookPanel::makeSharedInstance(const QuickLookServices& services)
{
    sharedPanel() = std::make_unique<QuickLookPanel>(services);
    return *sharedPanel();
}

void QuickLookPanel::releaseSharedInstance()
{
    sharedPanel().reset();
}

QuickLookPanel::QuickLookPanel(const QuickLookServices& services)
    : QWidget(nullptr, kPanelFlags)
    , m_icons(services.icons)
    , m_mainWindow(services.mainWindow)
    , m_place(services.mainWindow)
    , m_motion(services.motion)
    , m_loading(services)
    // NOLINTNEXTLINE(cppcoreguidelines-owning-memory): its parent owns it
    , m_body(new PanelBody(this))
{
    setObjectName(QStringLiteral("quickLookPanel"));
    setAttribute(Qt::WA_TranslucentBackground);
    setFocusPolicy(Qt::StrongFocus);
    connectParts();
    if (m_mainWindow != nullptr) {
        m_mainWindow->installEventFilter(this);
    }
}

QuickLookPanel::~QuickLookPanel() = default;

void QuickLookPanel::connectParts()
{
    connect(m_body, &PanelBody::closeRequested, this, &QuickLookPanel::dismiss);
    connect(&m_loading, &PanelLoading::loaded, this, &QuickLookPanel::showPreview);
    connect(&m_loading, &PanelLoading::summaryDue, this, &QuickLookPanel::showSummary);
    connect(&m_motion, &PanelMotion::started, this, &QuickLookPanel::takePicture);
    connect(&m_motion, &PanelMotion::moved, this, &QuickLookPanel::moveTo);
    connect(&m_motion, &PanelMotion::arrived, this, &QuickLookPanel::arrive);
    connect(qApp, &QCoreApplication::aboutToQuit, this, [this] {
        closeAtOnce();
        m_loading.stopForGood();
    });
}

void QuickLookPanel::open(const File* item, SourceFrame sourceFrame)
{
    if (isOpen()) {
        raise();
        activateWindow();
        return;
    }
    m_sourceFrame = std::move(sourceFrame);
    const QRectF from = m_state == State::Closing ? QRectF(geometry()) : frameOfSource();
    if (m_state == State::Closed && parentWidget() != m_mainWindow) {
        // As the window's child it stays above it and leaves its shortcuts at work.
        setParent(m_mainWindow, kPanelFlags);
    }
    m_state = State::Opening;
    adopt(item);
    load(PanelLoading::Meanwhile::Summary);
    m_motion.start(from, m_place.frame());
    show();
    raise();
    activateWindow();
    setFocus();
}

void QuickLookPanel::setItem(const File* item)
{
    if (!isOpen()) {
        return;
    }
    const std::optional<ItemFacts> shown = m_facts;
    adopt(item);
    if (m_facts != shown) {
        load(PanelLoading::Meanwhile::ItemBefore);
    }
}

void QuickLookPanel::dismiss()
{
    if (!isOpen()) {
        return;
    }
    m_state = State::Closing;
    m_loading.stop();
    m_motion.start(geometry(), frameOfSource());
}

void QuickLookPanel::adopt(const File* item)
{
    m_facts = factsOf(item);
    m_icon = {};
    if (item != nullptr && m_icons != nullptr) {
        m_icon = m_icons->icon(*item, SummaryView::kIconPoints, devicePixelRatioF());
    }
}

void QuickLookPanel::load(PanelLoading::Meanwhile meanwhile)
{
    const QSize most = PanelBody::mostContentSize(m_place.mostSize());
    m_loading.load(m_facts, most, devicePixelRatioF(), meanwhile);
}

void QuickLookPanel::showPreview(const Preview& preview)
{
    PreviewView& view = m_body->view();
    view.showPreview(*m_facts, preview, m_icon);
    contentChanged(view.hasContent() ? captionOf(*m_facts, preview) : QString());
}

void QuickLookPanel::showSummary()
{
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
    m_place.setSize(m_body->preferredSize(m_place.mostSize()));
    if (m_motion.isRunning()) {
        m_moving = m_body->picture(m_place.frame().size(), devicePixelRatioF());
        m_motion.retarget(m_place.frame());
    } else if (m_state == State::Open) {
        settle();
    }
}

QRectF QuickLookPanel::frameOfSource() const
{
    return m_sourceFrame ? m_sourceFrame() : QRectF();
}

void QuickLookPanel::takePicture()
{
    m_moving = m_body->picture(m_place.frame().size(), devicePixelRatioF());
    m_body->hide();
}

void QuickLookPanel::moveTo(const QRect& frame)
{
    setGeometry(frame);
    update();
}

void QuickLookPanel::arrive()
{
    if (m_state == State::Closing) {
        closeAtOnce();
    } else {
        m_state = State::Open;
        settle();
    }
}

void QuickLookPanel::settle()
{
    m_moving = {};
    setGeometry(m_place.frame());
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
    m_motion.stop();
    m_loading.stop();
    hide();
    m_sourceFrame = nullptr;
    m_facts.reset();
    m_icon = {};
    m_moving = {};
    m_place.forgetMoves();
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
    dismiss();
}

void QuickLookPanel::keyPressEvent(QKeyEvent* event)
{
    if (closesPanel(*event)) {
        // A key that is held down opened it a moment ago.
        if (event->isAutoRepeat()) {
            return;
        }
        if (m_state == State::Closing && event->key() == Qt::Key_Space) {
            emit reopenRequested();
        } else {
            dismiss();
        }
        return;
    }
    if (!m_body->view().handleKey(*event)) {
        emit keyPressed(*event);
    }
    event->accept();
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
    if (m_state == State::Open) {
        m_place.windowMoved(event->pos(), geometry().center());
    }
}

} // namespace tessera
