// SPDX-License-Identifier: MIT
#pragma once

#include <QAbstractTableModel>
#include <QString>

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

namespace tessera {

class Basket;
class File;

/// The basket as a table: the largest first, and what lies inside another chosen item right below
/// that. What a row alone will free is worked out only when somebody asks for it. Main thread only.
class BasketModel final : public QAbstractTableModel {
    Q_OBJECT

public:
    enum Column : std::uint8_t { Item, Size, WillFree };
    static constexpr int kColumnCount = 3;

    /// The basket must outlive it. Without rows until it is brought up to date.
    explicit BasketModel(const Basket& basket, QObject* parent = nullptr);

    /// The basket or sizes in the tree are others than before: the rows say what was, and nodes are
    /// not touched, until the model is brought up to date. Takes no time.
    void setStale() { m_isStale = true; }
    bool isStale() const { return m_isStale; }
    /// Resets the model if it is stale.
    void bringUpToDate();

    /// Null while the model is stale, when it may be gone.
    File* item(int row) const;
    /// Of the item in its tree, as bytes; good also while the model is stale.
    const std::string& path(int row) const { return rowAt(row).path; }
    /// In how many other chosen items it lies.
    int depth(int row) const { return rowAt(row).depth; }

    /// Whether it has no figure yet that it is to have.
    bool isToBeWorkedOut(int row) const;
    /// Looks at each node below the item.
    void workOut(int row);

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    struct Row {
        File* item = nullptr;
        std::string path;
        QString name;
        QString size;
        QString inside; ///< where it lies; empty for one that counts for itself
        int depth = 0;
        std::optional<QString> willFree; ///< of one that counts for itself, once it is worked out
        QString reasons; ///< why it may free less, a line for each
    };

    static std::vector<Row> rowsOf(const Basket& basket);
    static QString text(const Row& row, int column);
    static QString spokenText(const Row& row, int column);
    static QString tooltip(const Row& row, int column);
    const Row& rowAt(int row) const { return m_rows[static_cast<std::size_t>(row)]; }

    const Basket& m_basket;
    std::vector<Row> m_rows;
    bool m_isStale = true;
};

} // namespace tessera
