// SPDX-License-Identifier: MIT
#include "TreeScreen/Trash/BasketTrasher.h"

#include "Base/DisplayText.h"
#include "Basket/BasketKeeper.h"
#include "Basket/LastBackups.h"
#include "Desktop/Alert.h"
#include "Freeing/ChosenItems.h"
#include "Model/Allocation.h"
#include "Model/NodeLookup.h"
#include "Model/RootModel.h"
#include "Model/TopFolder.h"
#include "TreeScreen/Trash/LinkedInItems.h"
#include "TreeScreen/Trash/MoveAllReport.h"
#include "TreeScreen/Trash/NamesText.h"
#include "TreeScreen/Trash/TrashRisks.h"

#include <QPointer>

#include <algorithm>
#include <cstddef>
#include <optional>
#include <utility>

namespace tessera {

BasketTrasher::BasketTrasher(
    RootModel& model,
    const TrashRisks& risks,
    MovesToTrash& moves,
    BasketKeeper& basket,
    Alert& alert,
    std::uint32_t user)
    : m_model(model)
    , m_risks(risks)
    , m_moves(moves)
    , m_basket(basket)
    , m_alert(alert)
    , m_user(user)
{
    connect(&m_basket, &BasketKeeper::changed, this, &BasketTrasher::basketChanged);
    connect(&m_basket, &BasketKeeper::lookedAt, this, &BasketTrasher::lookedAt);
}

void BasketTrasher::begin(const FreedSpace& freed)
{
    if (isMoving() || m_basket.basket().isEmpty()) {
        return;
    }
    m_freed = freed;
    m_state = State::Waiting;
    lookedAt();
}

/// The user wants what was in the basket then.
void BasketTrasher::basketChanged()
{
    if (m_state == State::Waiting) {
        end();
    }
}

void BasketTrasher::lookedAt()
{
    if (m_state == State::Waiting && m_basket.isLookedAt()) {
        m_state = State::Moving;
        ask();
    }
}

void BasketTrasher::end()
{
    m_state = State::Idle;
    emit ended();
}

void BasketTrasher::ask()
{
    Request asked = request();
    if (!asked.items.empty()) {
        // Nodes may die while the question is open, and the whole screen may go.
        const QPointer<BasketTrasher> self(this);
        const bool isWanted = m_alert.runModal(moveAllQuestion(asked.facts)) == Alert::kFirstButton;
        if (self == nullptr) {
            return;
        }
        if (!isWanted) {
            end();
            return;
        }
    }
    move(std::move(asked));
}

BasketTrasher::Request BasketTrasher::request() const
{
    Request request;
    std::vector<const File*> items;
    for (const File* const item : m_basket.basket().outermost()) {
        if (!m_moves.isOnItsWay(placeOnDisk(*item).path()) && add(*item, request)) {
            items.push_back(item);
        }
    }
    const LinkedInItems linked(items);
    request.together = {items.size(), 0, linked.otherNames()};
    for (std::size_t i = 0; i < items.size(); ++i) {
        ItemToMove& move = request.items[i].move;
        move.onDisk.bytes = linked.bytesOf(*items[i]);
        move.otherNames = linked.otherNamesOf(*items[i]);
        request.together.bytes
            = saturatingSum(*request.together.bytes, move.onDisk.bytes.value_or(0));
    }
    request.facts.lastBackups = lastBackupsAmong(items);
    const auto heldOpen
        = std::ranges::find(m_freed.kept, KeptFiles::Reason::HeldOpen, &KeptFiles::reason);
    if (heldOpen != m_freed.kept.end()) {
        request.facts.heldOpen = *heldOpen;
    }
    return request;
}

/// Whether it can be asked about.
bool BasketTrasher::add(const File& item, Request& request) const
{
    std::string name(item.name());
    const std::optional<ExpectedItem> expected = m_basket.expectedOf(item);
    if (!expected) {
        request.stayed.append(
            tr("'%1' was not moved, because it could not be looked at when it was chosen.")
                .arg(shortName(name)));
        return false;
    }
    ItemToRecycle onDisk(placeOnDisk(item));
    onDisk.expected = expected;
    request.facts.items.push_back({name, item.totalAllocation()});
    request.facts.haveFolders = request.facts.haveFolders || item.isFolder();
    if (expected->state.owner != m_user) {
        request.facts.ofOthers.push_back(name);
    }
    addWarnings(item, request);
    request.items.push_back({{item.absolutePath(), std::move(onDisk), {}}, std::move(name)});
    return true;
}

void BasketTrasher::addWarnings(const File& item, Request& request) const
{
    if (m_risks.isHidden(item)) {
        request.facts.hidden.emplace_back(item.name());
    }
    if (m_risks.isInSystemFolder(item)) {
        request.facts.inSystemFolders.emplace_back(item.name());
    }
}

void BasketTrasher::move(Request request)
{
    std::vector<ItemToMove> items;
    for (Chosen& item : request.items) {
        if (isThereStill(item, request.stayed)) {
            items.push_back(std::move(item.move));
        }
    }
    if (items.empty()) {
        report(std::move(request.stayed), {});
        end();
        return;
    }
    m_moves.begin(
        std::move(items),
        request.together,
        MovesToTrash::Selection::Kept,
        [self = QPointer<BasketTrasher>(this),
         stayed = std::move(request.stayed)](const RecycleResult& result) {
            if (self != nullptr) {
                self->report(stayed, result);
                self->end();
            }
        });
}

/// A scan may have ended while the question was open, and have found that something is gone.
bool BasketTrasher::isThereStill(const Chosen& item, QStringList& stayed) const
{
    TopFolder* const top = m_model.topFolder();
    const File* const node = top == nullptr ? nullptr : nodeAtPath(*top, item.move.path);
    if (node == nullptr) {
        stayed.append(
            tr("'%1' was not moved, because it is not there any more.").arg(shortName(item.name)));
        return false;
    }
    if (!m_basket.basket().isMarked(*node)) {
        stayed.append(tr("'%1' was not moved, because it has left the basket meanwhile.")
                          .arg(shortName(item.name)));
        return false;
    }
    return !m_moves.isOnItsWay(item.move.onDisk.url.path());
}

void BasketTrasher::report(QStringList stayed, const RecycleResult& result)
{
    MoveAllOutcome outcome{std::move(stayed), {}};
    for (const NotRecycled& item : result.notMoved) {
        outcome.stayed.append(withShortName(item.reason, item.place.lastPathComponent()));
        outcome.isAnyInDoubt = outcome.isAnyInDoubt || item.mayBeAt;
    }
    if (result.notMoved.empty() && !result.error.empty()) {
        outcome.stayed.append(displayText(result.error));
    }
    for (const Url& folder : result.grownFolders) {
        outcome.grownFolders.emplace_back(folder.lastPathComponent());
    }
    if (!outcome.stayed.isEmpty() || !outcome.grownFolders.empty()) {
        m_alert.beginSheet(moveAllReport(outcome));
    }
}

} // namespace tessera
