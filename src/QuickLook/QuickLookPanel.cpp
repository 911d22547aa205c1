// SPDX-License-Identifier: MIT
#include "QuickLook/QuickLookPanel.h"

#include "QuickLook/PreviewItem.h"
#include "QuickLook/PreviewLoader.h"
#include "QuickLook/PreviewView.h"
#include "QuickLook/QuickLookPanelDataSource.h"
#include "QuickLook/QuickLookPanelDelegate.h"
#include "QuickLook/Summary.h"
#include "QuickLook/SummaryView.h"
#include "TreeView/IconProvider.h"

#include <QCloseEvent>
#include <QCoreApplication>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QPainter>
#include <QPainterPath>
#include <QScreen>
#include <QStyle>
#include <QToolButton>
#include <QVBoxLayout>
#include <QWindow>

#include <algorithm>
#include <chrono>
#include <utility>

namespace tessera {

namespace {

constexpr double kMostOfScreen = 0.7;
constexpr int kHeaderHeight = 36;
constexpr int kCaptionHeight = 28;
constexpr int kButtonPoints = 22;
constexpr int kSideMargin = 8;
constexpr int kTitlePixels = 13;
constexpr int kCaptionPixels = 11;
constexpr double kCornerRadius = 10;
constexpr int kBorderAlpha = 70;
constexpr int kPageWidth = 640;
/// Most files are read sooner, and the item before stays in sight so long.
constexpr int kPatienceMs = 150;
/// A decoder that is told to end does so at its next read.
constexpr std::chrono::milliseconds kEndOfProgramPatience{500};

constexpr Qt::WindowFlags kPanelFlags = Qt::Tool | Qt::FramelessWindowHint;

QFont fontOf(const QWidget& widget, int pixels, QFont::Weight weight)
{
    QFont font = widget.font();
    font.setPixelSize(pixels);
    font.setWeight(weight);
    return font;
}

QPainterPath roundedPath(const QRectF& place)
{
    QPainterPath path;
    path.addRoundedRect(place, kCornerRadius, kCornerRadius);
    return path;
}

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

// NOLINTBEGIN(cppcoreguidelines-owning-memory): their parents own them
QuickLookPanel::QuickLookPanel()
    : QWidget(nullptr, kPanelFlags)
    , m_animation([this](const QRectF& frame) { moveOn(frame); })
    , m_body(new QWidget(this))
    , m_caption(new QLabel(m_body))
    , m_view(new PreviewView(m_body))
{
    setObjectName(QStringLiteral("quickLookPanel"));
    setAttribute(Qt::WA_TranslucentBackground);
    setFocusPolicy(Qt::StrongFocus);
    m_caption->setObjectName(QStringLiteral("caption"));
    m_caption->setTextFormat(Qt::PlainText);
    m_caption->setAlignment(Qt::AlignCenter);
    m_caption->setFixedHeight(kCaptionHeight);
    m_caption->setFont(fontOf(*this, kCaptionPixels, QFont::Normal));
    m_caption->setForegroundRole(QPalette::PlaceholderText);
    auto* const layout = new QVBoxLayout(m_body);
    layout->setContentsMargins(1, 0, 1, 0);
    layout->setSpacing(0);
    layout->addWidget(makeHeader());
    layout->addWidget(m_view, 1);
    layout->addWidget(m_caption);

    m_patience.setSingleShot(true);
    m_patience.setInterval(kPatienceMs);
    m_patience.callOnTimeout(this, &QuickLookPanel::showSummary);
    connect(qApp, &QCoreApplication::aboutToQuit, this, [this] {
        closeAtOnce();
        if (m_loader != nullptr) {
            (void)m_loader->cancelAndWait(kEndOfProgramPatience);
        }
    });
}

QWidget* QuickLookPanel::makeHeader()
{
    auto* const header = new QWidget(m_body);
    header->setFixedHeight(kHeaderHeight);
    auto* const close = new QToolButton(header);
    close->setObjectName(QStringLiteral("closeButton"));
    close->setIcon(style()->standardIcon(QStyle::SP_TitleBarCloseButton));
    close->setAutoRaise(true);
    close->setFocusPolicy(Qt::NoFocus);
    close->setFixedSize(kButtonPoints, kButtonPoints);
    close->setAccessibleName(tr("Close"));
    close->setToolTip(tr("Close"));
    connect(close, &QToolButton::clicked, this, &QuickLookPanel::orderOut);
    m_title = new QLabel(header);
    m_title->setObjectName(QStringLiteral("title"));
    m_title->setTextFormat(Qt::PlainText);
    m_title->setAlignment(Qt::AlignCenter);
    m_title->setFont(fontOf(*this, kTitlePixels, QFont::DemiBold));
    auto* const layout = new QHBoxLayout(header);
    layout->setContentsMargins(kSideMargin, 0, kSideMargin + kButtonPoints, 0);
    layout->addWidget(close);
    layout->addWidget(m_title, 1);
    return header;
}
// NOLINTEND(cppcoreguidelines-owning-memory)

QuickLookPanel::~QuickLookPanel() = default;

void QuickLookPanel::setFileReader(const std::shared_ptr<const FileReader>& files)
{
    m_loader.reset();
    if (files != nullptr) {
        m_loader = std::make_unique<PreviewLoader>(
            files, [this](const Preview& preview) { showPreview(preview); });
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
    m_loader->load(
        {m_facts->path, mostContentSize() * scale, static_cast<int>(kPageWidth * scale)});
}

void QuickLookPanel::showPreview(const Preview& preview)
{
    m_patience.stop();
    m_view->showPreview(*m_facts, preview, m_icon);
    m_caption->setText(m_view->hasContent() ? captionOf(*m_facts, preview) : QString());
    contentChanged();
}

void QuickLookPanel::showSummary()
{
    m_patience.stop();
    if (m_facts) {
        m_view->showSummary(*m_facts, m_icon);
    } else {
        m_view->showNothing();
    }
    m_caption->clear();
    contentChanged();
}

void QuickLookPanel::contentChanged()
{
    const QString name = m_facts ? m_facts->name : QString();
    setWindowTitle(name.isEmpty() ? tr("Quick Look") : name);
    setAccessibleName(tr("Quick Look: %1").arg(name));
    m_caption->setVisible(m_view->hasContent());
    m_frame = frameForContent();
    m_title->setText(m_title->fontMetrics().elidedText(
        name, Qt::ElideMiddle, m_frame.width() - 2 * (kSideMargin + kButtonPoints)));
    if (m_animation.isRunning()) {
        m_moving = picture();
        m_animation.retarget(m_frame);
    } else if (m_state == State::Open) {
        settle();
    }
}

QSize QuickLookPanel::mostContentSize() const
{
    const QScreen* const screen
        = m_mainWindow != nullptr ? m_mainWindow->screen() : QGuiApplication::primaryScreen();
    const QSize most = screen->availableSize() * kMostOfScreen;
    return most - QSize(2, kHeaderHeight + kCaptionHeight);
}

QRect QuickLookPanel::frameForContent() const
{
    const QWidget* const window = m_mainWindow;
    const QScreen* const screen
        = window != nullptr ? window->screen() : QGuiApplication::primaryScreen();
    const QRect available = screen->availableGeometry();
    const int captionHeight = m_view->hasContent() ? kCaptionHeight : 0;
    const QSize size
        = m_view->preferredSize(mostContentSize()) + QSize(2, kHeaderHeight + captionHeight);
    QRect frame(QPoint(0, 0), size.boundedTo(available.size()));
    frame.moveCenter(m_centre.value_or(
        window != nullptr ? window->frameGeometry().center() : available.center()));
    frame.moveLeft(
        std::clamp(frame.left(), available.left(), available.right() + 1 - frame.width()));
    frame.moveTop(
        std::clamp(frame.top(), available.top(), available.bottom() + 1 - frame.height()));
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

bool QuickLookPanel::isMoving(const QRectF& source) const
{
    return !source.isEmpty() && canPlaceWindows() && !(m_isMotionReduced && m_isMotionReduced());
}

void QuickLookPanel::startMoving(const QRectF& from, const QRectF& to)
{
    if (!isMoving(from) || !isMoving(to)) {
        m_animation.stop();
        moveOn(to);
        return;
    }
    m_moving = picture();
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
    m_view->showNothing();
    // The window must not take the panel with it when it goes away.
    setParent(nullptr, kPanelFlags);
    if (hadKeyboard && m_mainWindow != nullptr && m_mainWindow->isVisible()) {
        m_mainWindow->activateWindow();
    }
}

QPixmap QuickLookPanel::picture()
{
    m_body->resize(m_frame.size());
    const double scale = devicePixelRatioF();
    QPixmap picture(m_frame.size() * scale);
    picture.setDevicePixelRatio(scale);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    paintGround(painter, QRectF(QPointF(0, 0), m_frame.size()));
    m_body->render(&painter, {}, {}, QWidget::DrawChildren);
    return picture;
}

void QuickLookPanel::paintGround(QPainter& painter, const QRectF& place) const
{
    QColor border = palette().color(QPalette::WindowText);
    border.setAlpha(kBorderAlpha);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.fillPath(roundedPath(place), palette().color(QPalette::Window));
    painter.setPen(border);
    painter.drawPath(roundedPath(place.adjusted(0.5, 0.5, -0.5, -0.5)));
}

void QuickLookPanel::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    if (m_moving.isNull()) {
        paintGround(painter, rect());
    } else {
        painter.setRenderHint(QPainter::SmoothPixmapTransform);
        painter.drawPixmap(rect(), m_moving);
    }
}

void QuickLookPanel::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    // Where nobody blends windows together, the corners outside the curve would be black.
    setMask(QRegion(roundedPath(rect()).toFillPolygon().toPolygon()));
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
    event->setAccepted(m_view->handleKey(*event) || isHandledByDelegate(*event));
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
    if (m_state == State::Open && event->pos() != m_frame.topLeft()) {
        m_centre = geometry().center();
    }
}

} // namespace tessera
