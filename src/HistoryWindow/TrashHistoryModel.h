// SPDX-License-Identifier: MIT
#pragma once

#include "History/TrashRecord.h"

#include <QAbstractTableModel>
#include <QString>

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace tessera {

/// The moves to the trash as a table, in the order in which they are given. Main thread only.
class TrashHistoryModel final : public QAbstractTableModel {
    Q_OBJECT

public:
    enum class Column : std::uint8_t { Time, Item, From, To, Size, State };
    static constexpr int kColumnCount = 6;

    /// What to sort by: a number, or the text.
    static constexpr int kSortRole = Qt::UserRole;

    /// Paths below the home directory, which is bytes, are shown with "~".
    explicit TrashHistoryModel(std::string homeDirectory, QObject* parent = nullptr);

    /// Takes what the history gives now. Rows that are there already keep their indexes.
    void setRecords(std::vector<TrashRecord> records);

    /// These are said to wait for coming back, as long as they are in the trash.
    void setComingBack(std::vector<TrashedItem> items);

    const TrashRecord& record(int row) const;
    bool isComingBack(const TrashRecord& record) const;

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    QVariant sortValue(const TrashRecord& record, Column column) const;
    QString text(const TrashRecord& record, Column column) const;
    QString wholeText(const TrashRecord& record, Column column) const;
    QString shownPath(const std::string& path) const;
    void removeRowsBut(const std::vector<TrashRecord>& records);
    void change(int row, const TrashRecord& record);
    void insert(int row, const TrashRecord* begin, const TrashRecord* end);

    std::string m_homeDirectory;
    std::vector<TrashRecord> m_records;
    std::vector<TrashedItem> m_comingBack;
};

/// What became of the item, in words.
[[nodiscard]] QString stateText(TrashState state);

/// Why an item that is to come back is not back yet, as a sentence.
[[nodiscard]] QString whyItWaits();

/// Where the item is now; nothing when it is gone or nobody knows.
[[nodiscard]] std::optional<Url> placeNow(const TrashRecord& record);

} // namespace tessera
