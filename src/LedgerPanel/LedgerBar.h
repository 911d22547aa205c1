// SPDX-License-Identifier: MIT
#pragma once

#include "Ledger/SpaceLedger.h"

#include <QColor>
#include <QWidget>

#include <vector>

namespace tessera {

/// A line's colour in the bar and beside its name: those of the picture's boxes for what is in no
/// folder. Invalid for a line without bytes.
[[nodiscard]] QColor ledgerColor(LedgerLine::Kind kind);

/// Of the bar and of the colours beside the names, which would be lost on a window like them.
[[nodiscard]] QColor ledgerOutline();

/// A thin bar that shows the lines' shares of a disk, from the left to the right. A line below
/// nothing has none; then the others are shares of their own sum.
class LedgerBar final : public QWidget {
    Q_OBJECT

public:
    explicit LedgerBar(QWidget* parent = nullptr);

    void setLines(std::vector<LedgerLine> lines);

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    std::vector<LedgerLine> m_lines;
};

} // namespace tessera
