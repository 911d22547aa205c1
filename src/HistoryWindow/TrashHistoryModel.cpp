// SPDX-License-Identifier: MIT
#include "HistoryWindow/TrashHistoryModel.h"

#include "Base/DisplayText.h"
#include "Base/FolderAround.h"
#include "HomeScreen/Places/PlaceNames.h"
#include "Language/SizeText.h"
#include "Widgets/MediumDate.h"

#include <QDateTime>
#include <QLocale>

#include <algorithm>
#include <cstddef>
#include <iterator>
#include <set>
#include <span>
#include <utility>

namespace tessera {

namespace {

using Column = TrashHistoryModel::Column;
using Key = std::pair<std::uint64_t, std::int64_t>;

/// Numbers alone are random, and two programs need not agree on them.
Key keyOf(const TrashRecord& record)
{
    return {record.item.number, record.time};
}

QString timeText(std::int64_t seconds)
{
    const QLocale locale;
    const QTime time = QDateTime::fromSecsSinceEpoch(seconds).time();
    return TrashHistoryModel::tr("%1, %2", "date, time")
        .arg(mediumDate(seconds, locale), locale.toString(time, QLocale::ShortFormat));
}

QString wholeTimeText(std::int64_t seconds)
{
    return QLocale().toString(QDateTime::fromSecsSinceEpoch(seconds), QLocale::LongFormat);
}

QString columnTitle(Column column)
{
    switch (column) {
    case Column::Time:
        return TrashHistoryModel::tr("Time");
    case Column::Item:
        return TrashHistoryModel::tr("Item");
    case Column::From:
        return TrashHistoryModel::tr("From");
    case Column::To:
        return TrashHistoryModel::tr("To");
    case Column::Size:
        return TrashHistoryModel::tr("Size");
    case Column::State:
        return TrashHistoryModel::tr("State");
    }
    return {};
}

} // namespace

QString stateText(TrashState state)
{
    switch (state) {
    case TrashState::Begun:
        return TrashHistoryModel::tr("Unknown");
    case TrashState::Moved:
        return TrashHistoryModel::tr("In the trash");
    case TrashState::NotMoved:
        return TrashHistoryModel::tr("Not moved");
    case TrashState::PutBack:
        return TrashHistoryModel::tr("Put back");
    case TrashState::Gone:
        return TrashHistoryModel::tr("Not there any more");
    }
    return {};
}

QString whyItWaits()
{
    return TrashHistoryModel::tr(
        "The item waits to be put back, until its disk answers and what was begun before is done.");
}

std::optional<Url> placeNow(const TrashRecord& record)
{
    switch (record.state) {
    case TrashState::Moved:
        return record.item.to;
    case TrashState::NotMoved:
        return record.item.from;
    case TrashState::PutBack:
        return record.place;
    case TrashState::Begun:
    case TrashState::Gone:
        break;
    }
    return std::nullopt;
}

TrashHistoryModel::TrashHistoryModel(std::string homeDirectory, QObject* parent)
    : QAbstractTableModel(parent)
    , m_homeDirectory(std::move(homeDirectory))
{
}

void TrashHistoryModel::setRecords(std::vector<TrashRecord> records)
{
    removeRowsBut(records);
    std::set<Key> known;
    std::ranges::transform(m_records, std::inserter(known, known.end()), keyOf);
    const auto isKnown
        = [&known](const TrashRecord& record) { return known.contains(keyOf(record)); };
    const TrashRecord* const end = records.data() + records.size();
    for (const TrashRecord* next = records.data(); next != end;) {
        const int row = static_cast<int>(next - records.data());
        if (row < rowCount() && keyOf(m_records[static_cast<std::size_t>(row)]) == keyOf(*next)) {
            change(row, *next);
            ++next;
        } else {
            // A known one here is one in another order than before, and comes a second time.
            const TrashRecord* const first = next;
            next = std::find_if(next + 1, end, isKnown);
            insert(row, first, next);
        }
    }
    if (rowCount() > static_cast<int>(records.size())) {
        beginRemoveRows({}, static_cast<int>(records.size()), rowCount() - 1);
        m_records.resize(records.size());
        endRemoveRows();
    }
}

void TrashHistoryModel::removeRowsBut(const std::vector<TrashRecord>& records)
{
    std::set<Key> kept;
    std::ranges::transform(records, std::inserter(kept, kept.end()), keyOf);
    for (int row = rowCount() - 1; row >= 0; --row) {
        if (!kept.contains(keyOf(record(row)))) {
            beginRemoveRows({}, row, row);
            m_records.erase(m_records.begin() + row);
            endRemoveRows();
        }
    }
}

void TrashHistoryModel::change(int row, const TrashRecord& record)
{
    TrashRecord& own = m_records[static_cast<std::size_t>(row)];
    if (own != record) {
        own = record;
        emit dataChanged(index(row, 0), index(row, kColumnCount - 1));
    }
}

void TrashHistoryModel::insert(int row, const TrashRecord* begin, const TrashRecord* end)
{
    beginInsertRows({}, row, row + static_cast<int>(end - begin) - 1);
    m_records.insert(m_records.begin() + row, begin, end);
    endInsertRows();
}

void TrashHistoryModel::setComingBack(std::vector<TrashedItem> items)
{
    if (items == m_comingBack) {
        return;
    }
    m_comingBack = std::move(items);
    if (rowCount() > 0) {
        const int column = static_cast<int>(Column::State);
        emit dataChanged(index(0, column), index(rowCount() - 1, column));
    }
}

bool TrashHistoryModel::isComingBack(const TrashRecord& record) const
{
    return record.state == TrashState::Moved
        && std::ranges::any_of(m_comingBack, [&record](const TrashedItem& item) {
               return isSameMove(item, record.item);
           });
}

const TrashRecord& TrashHistoryModel::record(int row) const
{
    return m_records.at(static_cast<std::size_t>(row));
}

int TrashHistoryModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_records.size());
}

int TrashHistoryModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : kColumnCount;
}

QVariant TrashHistoryModel::data(const QModelIndex& index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid)) {
        return {};
    }
    const TrashRecord& shown = record(index.row());
    const auto column = static_cast<Column>(index.column());
    switch (role) {
    case Qt::DisplayRole:
        return text(shown, column);
    case Qt::ToolTipRole:
        return plainTooltip(wholeText(shown, column));
    case Qt::TextAlignmentRole:
        return QVariant::fromValue(
            Qt::AlignVCenter | (column == Column::Size ? Qt::AlignRight : Qt::AlignLeft));
    case kSortRole:
        return sortValue(shown, column);
    default:
        return {};
    }
}

QVariant TrashHistoryModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || section < 0 || section >= kColumnCount) {
        return {};
    }
    const auto column = static_cast<Column>(section);
    if (role == Qt::TextAlignmentRole) {
        return QVariant::fromValue(
            Qt::AlignVCenter | (column == Column::Size ? Qt::AlignRight : Qt::AlignLeft));
    }
    return role == Qt::DisplayRole ? columnTitle(column) : QVariant();
}

QVariant TrashHistoryModel::sortValue(const TrashRecord& record, Column column) const
{
    if (column == Column::Time) {
        return QVariant::fromValue<qlonglong>(record.time);
    }
    if (column == Column::Size) {
        // Below all others when nobody knows it.
        return QVariant::fromValue<double>(
            record.bytes ? static_cast<double>(*record.bytes) : -1.0);
    }
    return text(record, column);
}

QString TrashHistoryModel::text(const TrashRecord& record, Column column) const
{
    switch (column) {
    case Column::Time:
        return timeText(record.time);
    case Column::Item:
        return displayText(record.item.from.lastPathComponent());
    case Column::From:
        return shownPath(std::string(folderAround(record.item.from.path())));
    case Column::To:
        return shownPath(record.item.to.path());
    case Column::Size:
        return record.bytes ? sizeText(*record.bytes) : tr("Not known");
    case Column::State:
        return isComingBack(record) ? tr("Waiting to be put back") : stateText(record.state);
    }
    return {};
}

/// What the column has no room for.
QString TrashHistoryModel::wholeText(const TrashRecord& record, Column column) const
{
    if (column == Column::Time) {
        return wholeTimeText(record.time);
    }
    if (column == Column::State && record.state == TrashState::PutBack) {
        return tr("Put back to %1").arg(shownPath(record.place.path()));
    }
    if (column == Column::State && isComingBack(record)) {
        return whyItWaits();
    }
    return text(record, column);
}

QString TrashHistoryModel::shownPath(const std::string& path) const
{
    return pathWithTilde(path, m_homeDirectory);
}

} // namespace tessera
