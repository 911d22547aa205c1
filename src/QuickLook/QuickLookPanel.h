// SPDX-License-Identifier: MIT
#pragma once

#include "QuickLook/ItemFacts.h"
#include "QuickLook/PanelLoading.h"
#include "QuickLook/PanelMotion.h"
#include "QuickLook/PanelPlace.h"

#include <QPixmap>
#include <QPointer>
#include <QWidget>

#include <cstdint>
#include <functional>
#include <optional>

namespace tessera {

class File;
class IconProvider;
class PanelBody;
struct Preview;
struct QuickLookServices;

/// The floating panel that shows what is in the selected item: a picture, a text, a document's
/// pages, or a summary. It floats above the main window, grows out of the item and shrinks back
/// into it. Main thread only; files are looked at by workers, so that no file can hold it up.
///
/// Escape and Space close it. Page Up and Page Down scroll what can be scrolled and Copy copies
/// text that is selected in it; every other key press is told to whoever opened it.
class QuickLookPanel final : public QWidget {
    Q_OBJECT

public:
    /// Where the item is drawn, in points of the screen; empty when it is nowhere to be seen.
    using SourceFrame = std::function<QRectF()>;

    /// The panel of the program. Before that is made, and after it is released, one without
    /// services.
    static QuickLookPanel& sharedInstance();

    /// Makes the panel of the program anew. Nobody may hold on to the one before.
    static QuickLookPanel& makeSharedInstance(const QuickLookServices& services);

    /// To be called before what the panel of the program works with goes away. Without that it is
    /// never released.
    static void releaseSharedInstance();

    explicit QuickLookPanel(const QuickLookServices& services);
    ~QuickLookPanel() override;

    /// Opens on the item, or on none for null, and takes the keyboard. The node is read on the spot
    /// and not kept; the frame is asked for whenever the panel opens or closes. A panel that is
    /// open already only comes to the front.
    void open(const File* item, SourceFrame sourceFrame);

    /// Shows another item, or none for null; nothing happens while what is known of it is the same
    /// as before, or while the panel is closed.
    void setItem(const File* item);

    /// Shrinks back into the item and gives the keyboard back to the main window.
    void dismiss();

    /// The same without the way there. To be called before what tells the frame goes away.
    void closeAtOnce();

    /// Whether it is on the screen to stay, not on its way out.
    bool isOpen() const { return m_state == State::Opening || m_state == State::Open; }

    PanelAnimation& animation() { return m_motion.animation(); }

    bool eventFilter(QObject* watched, QEvent* event) override;

signals:
    /// A key was pressed that the panel has no use for.
    void keyPressed(const QKeyEvent& event);

    /// On its way out it was asked to open on the selected item again.
    void reopenRequested();

protected:
    void closeEvent(QCloseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void moveEvent(QMoveEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    bool focusNextPrevChild(bool next) override;

private:
    enum class State : std::uint8_t { Closed, Opening, Open, Closing };

    void connectParts();
    void adopt(const File* item);
    void load(PanelLoading::Meanwhile meanwhile);
    void showPreview(const Preview& preview);
    void showSummary();
    void contentChanged(const QString& caption);
    QRectF frameOfSource() const;
    void takePicture();
    void moveTo(const QRect& frame);
    void arrive();
    void settle();

    IconProvider* const m_icons;
    const QPointer<QWidget> m_mainWindow;
    PanelPlace m_place;
    PanelMotion m_motion;
    PanelLoading m_loading;

    State m_state = State::Closed;
    SourceFrame m_sourceFrame; ///< while it is not closed
    std::optional<ItemFacts> m_facts;
    QPixmap m_icon;
    QPixmap m_moving; ///< its picture, while it grows or shrinks

    PanelBody* m_body;
};

} // namespace tessera
