// SPDX-License-Identifier: MIT
#pragma once

#include "Desktop/EndRequests.h"
#include "Platform/Linux/Files/FileDescriptor.h"

#include <memory>

class QSocketNotifier;

namespace tessera {

/// SIGTERM, SIGINT and SIGHUP, which the event loop hears of through a pipe. One that whoever
/// started the program has it ignore stays ignored. One that comes a second or more after the first
/// ends a program that has not got to that. There is one object in a process.
class SignalEndRequests final : public EndRequests {
public:
    SignalEndRequests();
    ~SignalEndRequests() override;

    void setHandler(std::function<void()> handler) override;

private:
    void handOver();

    FileDescriptor m_arrivals; ///< the reading end
    FileDescriptor m_sender;
    std::unique_ptr<QSocketNotifier> m_notifier;
    std::function<void()> m_handler;
};

} // namespace tessera
