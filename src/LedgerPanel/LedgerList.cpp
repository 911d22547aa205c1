// SPDX-License-Identifier: MIT
#include "LedgerPanel/LedgerList.h"

#include "Base/DisplayText.h"
#include "Language/PluralNumber.h"
#include "LedgerPanel/LedgerTexts.h"

#include <QCoreApplication>
#include <QLocale>

#include <utility>

namespace tessera {

namespace {

struct LedgerListTexts {
    Q_DECLARE_TR_FUNCTIONS(LedgerListTexts)
};

LedgerList unreadableList(const UnseenFolders& unseen)
{
    LedgerList list{{LedgerListTexts::tr("Folder"), LedgerListTexts::tr("Why")}, {}, {}};
    list.rows.reserve(unseen.unreadable.size());
    for (const UnseenFolders::Unreadable& folder : unseen.unreadable) {
        list.rows.push_back({displayText(folder.path), ledger_texts::reason(folder.reason)});
    }
    const std::size_t more = unseen.unreadableCount - unseen.unreadable.size();
    if (more != 0) {
        list.more = LedgerListTexts::tr("and %1 more", nullptr, pluralNumber(more))
                        .arg(QLocale().toString(static_cast<qulonglong>(more)));
    }
    return list;
}

LedgerList coveredList(const std::vector<CoveredFolder>& covered)
{
    LedgerList list{{LedgerListTexts::tr("Place"), LedgerListTexts::tr("Covered by")}, {}, {}};
    for (const CoveredFolder& folder : covered) {
        list.rows.push_back({displayText(folder.path), displayText(folder.type)});
    }
    return list;
}

/// "mariadbd (1234), backup (99)"
QString holdersOf(const HeldFile& file)
{
    QStringList holders;
    for (const FileHolder& holder : file.holders) {
        holders.push_back(
            LedgerListTexts::tr("%2 (%1)").arg(holder.process).arg(displayText(holder.name)));
    }
    return holders.join(LedgerListTexts::tr(", "));
}

LedgerList heldOpenList(const OpenFilesAnswer& open)
{
    LedgerList list{
        {LedgerListTexts::tr("Program"),
         LedgerListTexts::tr("Size"),
         LedgerListTexts::tr("Deleted file")},
        {},
        {},
        2};
    for (const HeldFile& file : open.files) {
        list.rows.push_back(
            {holdersOf(file),
             file.allocatedBytes
                 ? ledger_texts::roundedBytes(static_cast<std::int64_t>(*file.allocatedBytes))
                 : LedgerListTexts::tr("not known"),
             file.path.empty() ? LedgerListTexts::tr("not known") : displayText(file.path)});
    }
    return list;
}

} // namespace

std::size_t ledgerListLength(LedgerLine::Kind kind, const LedgerAccount& account)
{
    switch (kind) {
    case LedgerLine::Kind::UnreadableFolders:
        return account.unseen.unreadable.size();
    case LedgerLine::Kind::CoveredFolders:
        return account.covered ? account.covered->size() : 0;
    case LedgerLine::Kind::HeldOpen:
        return account.open.files.size();
    default:
        return 0;
    }
}

LedgerList ledgerList(LedgerLine::Kind kind, const LedgerAccount& account)
{
    if (ledgerListLength(kind, account) == 0) {
        return {};
    }
    switch (kind) {
    case LedgerLine::Kind::UnreadableFolders:
        return unreadableList(account.unseen);
    case LedgerLine::Kind::CoveredFolders:
        return coveredList(*account.covered);
    default:
        return heldOpenList(account.open);
    }
}

void LedgerListModel::setList(LedgerList list)
{
    if (list == m_list) {
        return;
    }
    beginResetModel();
    m_list = std::move(list);
    endResetModel();
}

int LedgerListModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_list.rows.size());
}

int LedgerListModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_list.headings.size());
}

QVariant LedgerListModel::data(const QModelIndex& index, int role) const
{
    if (!index.isValid() || (role != Qt::DisplayRole && role != Qt::ToolTipRole)) {
        return {};
    }
    const QString& text = m_list.rows[static_cast<std::size_t>(index.row())].at(index.column());
    return role == Qt::DisplayRole ? text : plainTooltip(text);
}

QVariant LedgerListModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole) {
        return {};
    }
    return m_list.headings.value(section);
}

} // namespace tessera
