// SPDX-License-Identifier: MIT
#pragma once

#include <QPixmap>
#include <QWidget>

class QGridLayout;
class QLabel;

namespace tessera {

struct Summary;

/// An item's icon with what there is to say of it at its right.
class SummaryView final : public QWidget {
    Q_OBJECT

public:
    static constexpr int kIconPoints = 96;

    explicit SummaryView(QWidget* parent = nullptr);

    void setSummary(const Summary& summary, const QPixmap& icon);

private:
    QLabel* addLabel(const QString& name);
    void setRows(const Summary& summary);

    QLabel* m_icon;
    QLabel* m_name;
    QLabel* m_note;
    QGridLayout* m_rows;
};

} // namespace tessera
