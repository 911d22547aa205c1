// SPDX-License-Identifier: MIT
#pragma once

#include "Undo/TrashStep.h"

#include <QFrame>
#include <QLabel>
#include <QPushButton>
#include <QRect>
#include <QTimer>

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>

namespace tessera {

/// A line over the lower edge of the picture, that says what has gone to the trash and offers to
/// undo it. It goes away after a while, but not under the pointer, nor while the keyboard is on one
/// of its buttons, where Tab alone takes it. It never covers the selected box: then it stands at
/// the upper edge, and out of sight when it would be in the way there too. Screen readers take it
/// for an alert and read it out. Main thread only.
class TrashNote final : public QFrame {
    Q_OBJECT

public:
    static constexpr int kMilliseconds = 10000;

    /// Out of sight until there is something to say. It follows the picture's size.
    explicit TrashNote(QWidget* picture);

    /// Says that the item is in the trash, in the place of what was said before. The name is bytes;
    /// the size is missing when nobody knows it.
    void sayItem(std::string_view name, std::optional<std::uint64_t> bytes);
    /// The same of several items and all their sizes.
    void sayItems(std::size_t count, std::optional<std::uint64_t> bytes);

    /// The same of what leaves space in use when the trash is emptied. No size is said: nobody
    /// knows how much becomes free.
    void sayItem(std::string_view name, OtherNames otherNames);
    void sayItemsWithOtherNames(std::size_t count);

    /// What was said is said no longer: it is not true any more, or was read.
    void end();

    /// Where the selected box lies in the picture; empty when none does.
    void keepClearOf(const QRect& selected);

signals:
    void undoRequested();
    void openTrashRequested();
    /// The pointer has left the picture's boxes for the note.
    void pointerCame();

protected:
    void enterEvent(QEnterEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    bool eventFilter(QObject* watched, QEvent* event) override;

    void setUp(QPushButton& button);
    void begin(const QString& text, const QString& name);
    void elide();
    void place();
    void fit();
    std::optional<QPoint> freePlace() const;
    void vanish();
    bool hasKeyboard() const;
    void restartTime();

    QLabel* m_label;
    QPushButton* m_undo;
    QPushButton* m_openTrash;
    QTimer m_end{this};
    QString m_text; ///< with %1 for the name; empty while nothing is said
    QString m_name;
    QRect m_selected;
    bool m_isPointerOver = false;
};

} // namespace tessera
