// SPDX-License-Identifier: MIT
#pragma once

#include "Base/Rect.h"
#include "TreeScreen/PathBar/PathComponent.h"
#include "TreeScreen/PathBar/PathComponentWidths.h"

#include <QWidget>

#include <optional>
#include <vector>

namespace tessera {

class PathComponentButton;

/// The path bar: a row of folders to click. It is never wider than its content needs. When it has
/// to be narrower, names are shortened, and in the end left out. Components can be reached with
/// the tabulator key and the left and right arrow keys.
class ToolbarPathControl final : public QWidget {
    Q_OBJECT

public:
    explicit ToolbarPathControl(QWidget* parent = nullptr);
    ~ToolbarPathControl() override;

    /// Takes the place that the toolbar offers, but no more of its width than naturalSize().
    /// Points.
    void setFrame(const Rect& requested);
    /// The last frame that the toolbar asked for.
    const Rect& toolbarRequestedRect() const { return m_toolbarRequestedRect; }
    /// Takes its width anew; to be called after the components changed.
    void refreshWidth();

    /// May be called while a click is being handled.
    void setPathComponents(const std::vector<PathComponent>& components);
    std::vector<PathComponent> pathComponents() const;

    /// The natural size: with all names in full.
    QSizeF naturalSize() const;

    /// The component that was clicked last; null before.
    const PathComponent* clickedPathComponent() const;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

signals:
    /// A component was clicked, with the pointer or a key.
    void clicked();

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    PathComponentButton* addButton(const PathComponent& component);
    void removeLastButton();
    void placeButtons();
    void letTabReach(std::size_t index);
    std::optional<std::size_t> focusedIndex() const;
    std::optional<std::size_t> shownIndex(std::size_t from, int step) const;

    Rect m_toolbarRequestedRect;
    std::vector<PathComponentButton*> m_buttons; ///< children of this widget
    std::optional<PathComponent> m_clickedComponent;
    PathComponentWidths m_widths;
};

} // namespace tessera
