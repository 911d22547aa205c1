// SPDX-License-Identifier: MIT
#pragma once

#include "LedgerPanel/LedgerAccount.h"
#include "LedgerPanel/LedgerServices.h"
#include "Widgets/BackgroundQuestions.h"

#include <QObject>
#include <QTimer>

#include <chrono>
#include <stop_token>
#include <string>

namespace tessera {

/// Asks the system about a disk on another thread. Main thread only.
class LedgerQuestions final : public QObject {
    Q_OBJECT

public:
    /// Each service has a limit of its own; this is for a system that does not keep to it.
    static constexpr std::chrono::milliseconds kPatience{10'000};

    explicit LedgerQuestions(
        LedgerServices services, std::chrono::milliseconds patience = kPatience);
    ~LedgerQuestions() override;

    /// Asks for a disk by the path at which it was scanned and by the same one without links, as
    /// bytes. The answer to what was asked before is not heard any more.
    void ask(const std::string& path, const std::string& pathWithoutLinks);
    /// Nothing is heard of what was asked.
    void cancel();
    bool isAsking() const { return m_giveUp.isActive(); }

signals:
    /// Once for each time that was asked and not cancelled: later, and without sizes when the
    /// answer does not come.
    void answered(const tessera::DiskAnswer& answer);

private:
    void answer(const DiskAnswer& answer);

    const LedgerServices m_services;
    BackgroundQuestions m_questions;
    std::stop_source m_stop; ///< of the question that is waited for
    int m_asked = 0; ///< how often; tells the question that is waited for from those before
    QTimer m_giveUp;
};

} // namespace tessera
