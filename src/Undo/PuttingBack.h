// SPDX-License-Identifier: MIT
#pragma once

#include "Desktop/PutBack.h"
#include "Desktop/TrashedItem.h"

#include <QObject>
#include <QStringList>

#include <cstddef>
#include <cstdint>
#include <functional>
#include <vector>

namespace tessera {

class Alert;
class Workspace;

/// Puts items back out of the trash, one after the other. Where something stands in the way and
/// there is a way on, the user is asked; everything else is said at the end. Main thread only.
class PuttingBack final : public QObject {
    Q_OBJECT

public:
    /// Hears what has become of the item of that number, before the next one's turn.
    using ItemHandler = std::function<void(std::size_t item, const PutBackResult& result)>;
    /// Hears what has become of all, in their order. Where the user cancels the last ones may not
    /// have been tried, and are missing.
    using Completion = std::function<void(const std::vector<PutBackResult>& results)>;

    /// Both must outlive it.
    PuttingBack(Workspace& workspace, Alert& alert);

    /// The handlers are not called when this object is gone by then. Not to be called before the
    /// items of the call before are done.
    void begin(std::vector<TrashedItem> items, ItemHandler itemHandler, Completion completion);

private:
    /// What the user may choose where something stands in the way.
    enum class WayOn : std::uint8_t { None, OtherName, NewFolder };

    static WayOn wayOn(const PutBackResult& result);

    void next();
    void attempt(const PutBackRequest& request);
    void heard(PutBackRequest request, const PutBackResult& result);
    bool agrees(WayOn way, PutBackRequest& request, const PutBackResult& result) const;
    void finish();

    Workspace& m_workspace;
    Alert& m_alert;
    std::vector<TrashedItem> m_items;
    std::vector<PutBackResult> m_results; ///< of the first ones
    QStringList m_problems; ///< that nobody was asked about
    bool m_isCancelled = false;
    ItemHandler m_itemHandler;
    Completion m_completion;
};

} // namespace tessera
