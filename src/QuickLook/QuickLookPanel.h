// SPDX-License-Identifier: MIT
#pragma once

#include "QuickLook/ItemFacts.h"
#include "QuickLook/PanelAnimation.h"

#include <QPixmap>
#include <QPointer>
#include <QTimer>
#include <QWidget>

#include <cstdint>
#include <memory>
#include <optional>

namespace tessera {

class FileReader;
class IconProvider;
class MotionPreference;
class PanelBody;
class PreviewLoader;
class PreviewThreads;
class QuickLookPanelDataSource;
class QuickLookPanelDelegate;
class RasterDecoder;
struct Preview;

/// The floating panel that shows what is in the selected item: a picture, a text, a document's
/// pages, or a summary. It floats above the main window, grows out of the item and shrinks back
/// into it. Main thread only; files are looked at by workers, so that no file can hold it up.
///
/// Escape and Space close it. Page Up and Page Down scroll what can be scrolled and Copy copies
/// text that is selected in it; every other key press goes to the delegate.
class QuickLookPanel final : public QWidget {
    Q_OBJECT

public:
    /// The panel of the program, made on first use and never released.
    static QuickLookPanel& sharedInstance();

    QuickLookPanel();
    ~QuickLookPanel() override;

    /// Reads the files on these threads and has pictures and documents decoded; without a reader,
    /// every item is shown by what the tree knows. Shared, because a look at a file that never
    /// answers may outlive the panel.
    void setFileReader(
        const std::shared_ptr<const FileReader>& files,
        const std::shared_ptr<const RasterDecoder>& decoder,
        const std::shared_ptr<PreviewThreads>& threads);

    /// Not owned, may be null.
    void setIconProvider(IconProvider* icons) { m_icons = icons; }

    /// The window that the panel floats above. When it is hidden, minimised or gone, so is the
    /// panel.
    void setMainWindow(QWidget* window);

    /// Not owned; without one it moves.
    void setMotionPreference(const MotionPreference* motion) { m_motion = motion; }
    PanelAnimation& animation() { return m_animation; }

    /// Neither is owned. Whoever is one of them takes himself back before he goes away; a panel
    /// without a data source is closed.
    void setDelegate(QuickLookPanelDelegate* delegate) { m_delegate = delegate; }
    QuickLookPanelDelegate* delegate() const { return m_delegate; }
    void setDataSource(QuickLookPanelDataSource* dataSource);
    QuickLookPanelDataSource* dataSource() const { return m_dataSource; }

    /// Opens the panel and gives it the keyboard.
    void makeKeyAndOrderFront();

    /// Closes the panel and gives the keyboard back to the main window.
    void orderOut();

    /// Whether it is on the screen to stay, not on its way out.
    bool isOpen() const { return m_state == State::Opening || m_state == State::Open; }

    /// Shows the item that the data source has now; nothing happens while that is the same item
    /// or while the panel is closed.
    void reloadData();

    bool eventFilter(QObject* watched, QEvent* event) override;

protected:
    void closeEvent(QCloseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void keyReleaseEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void moveEvent(QMoveEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    bool focusNextPrevChild(bool next) override;

private:
    enum class State : std::uint8_t { Closed, Opening, Open, Closing };

    void adoptItem();
    void load();
    void showPreview(const Preview& preview);
    void showSummary();
    void contentChanged(const QString& caption);
    QRect frameForContent() const;
    QRect availableGeometry() const;
    QRectF sourceFrame() const;
    bool canMove(const QRectF& source) const;
    void startMoving(const QRectF& from, const QRectF& to);
    void moveOn(const QRectF& frame);
    void settle();
    void closeAtOnce();
    bool isHandledByDelegate(QEvent& event);

    std::shared_ptr<PreviewThreads> m_threads;
    std::unique_ptr<PreviewLoader> m_loader;
    IconProvider* m_icons = nullptr;
    QuickLookPanelDelegate* m_delegate = nullptr;
    QuickLookPanelDataSource* m_dataSource = nullptr;
    QPointer<QWidget> m_mainWindow;
    const MotionPreference* m_motion = nullptr;
    PanelAnimation m_animation;
    QTimer m_patience;

    State m_state = State::Closed;
    std::optional<ItemFacts> m_facts;
    QPixmap m_icon;
    QRect m_frame; ///< where it stands or is on its way to, on the screen
    std::optional<QPoint> m_centre; ///< where the user wants its middle
    std::optional<QPoint> m_movedTo; ///< where its middle is, if not where it was placed
    QPixmap m_moving; ///< its picture, while it grows or shrinks

    PanelBody* m_body;
};

} // namespace tessera
