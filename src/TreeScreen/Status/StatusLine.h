// SPDX-License-Identifier: MIT
#pragma once

#include "TreeScreen/Status/ItemStatus.h"

#include <QWidget>

namespace tessera {

/// One line that says what an item is called, and its figures behind that. Where there is no room
/// for all of it the name loses its middle, and where that is not enough the figures their end. It
/// may change with every move of the pointer without moving anything around it. Main thread only.
///
/// Screen readers find all that it says as a text, by its name and as its value.
class StatusLine final : public QWidget {
    Q_OBJECT

public:
    explicit StatusLine(QWidget* parent = nullptr);

    void setStatus(const ItemStatus& status);
    const ItemStatus& status() const { return m_status; }

    /// The whole, as a sentence is read.
    QString text() const;

    /// What there is room for.
    struct Parts {
        QString name;
        QString figures; ///< begins with what stands between it and the name
    };
    Parts shownParts() const;

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    ItemStatus m_status;
};

} // namespace tessera
