// SPDX-License-Identifier: MIT
#pragma once

#include "Freeing/FreedSpace.h"
#include "TreeScreen/Trash/MoveAllQuestion.h"
#include "TreeScreen/Trash/MovesToTrash.h"

#include <QObject>
#include <QStringList>

#include <cstdint>
#include <string>
#include <vector>

namespace tessera {

class Alert;
class BasketKeeper;
class File;
class RootModel;
class TrashRisks;

/// Moves all that is in the basket to the trash, after one question, as one step to be undone. An
/// item goes only as it was chosen: one that has changed since, or that nobody could look at then,
/// stays in the basket, and the user is told why. Main thread only.
class BasketTrasher final : public QObject {
    Q_OBJECT

public:
    /// All must outlive it. `user` is UserAccount::userNumber().
    BasketTrasher(
        RootModel& model,
        const TrashRisks& risks,
        MovesToTrash& moves,
        BasketKeeper& basket,
        Alert& alert,
        std::uint32_t user);

    /// Asks, and has the items moved; `freed` is what is known of who has files in them open. Where
    /// items are being looked at still, that is waited for, unless the basket changes first: then
    /// nothing happens. Neither does it while the last call is under way, nor without items. What
    /// is on its way to the trash already is passed over.
    void begin(const FreedSpace& freed);

    /// From begin() until the items have moved or nothing is to happen any more.
    bool isMoving() const { return m_state != State::Idle; }

signals:
    /// Nothing is under way any more.
    void ended();

private:
    enum class State : std::uint8_t { Idle, Waiting, Moving };

    /// An item of the question.
    struct Chosen {
        ItemToMove move;
        std::string name; ///< as bytes
    };

    /// All that is asked about, as it was when it was asked.
    struct Request {
        std::vector<Chosen> items;
        QStringList stayed; ///< why others are not asked about
        AskedTogether together;
        MoveAllFacts facts;
    };

    void basketChanged();
    void lookedAt();
    void ask();
    void move(Request request);
    void end();
    Request request() const;
    bool add(const File& item, Request& request) const;
    void addWarnings(const File& item, Request& request) const;
    bool isThereStill(const Chosen& item, QStringList& stayed) const;
    void report(QStringList stayed, const RecycleResult& result);

    RootModel& m_model;
    const TrashRisks& m_risks;
    MovesToTrash& m_moves;
    BasketKeeper& m_basket;
    Alert& m_alert;
    const std::uint32_t m_user;
    State m_state = State::Idle;
    FreedSpace m_freed; ///< of the call under way
};

} // namespace tessera
