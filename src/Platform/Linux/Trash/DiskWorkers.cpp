// SPDX-License-Identifier: MIT
#include "Platform/Linux/Trash/DiskWorkers.h"

#include "Base/StartThread.h"
#include "Scanning/WayBack.h"

#include <system_error>

namespace tessera {

DiskWorkers::DiskWorkers(MainThread& mainThread, std::chrono::milliseconds patience)
    : m_patience(patience)
    , m_wayBack(WayBack::make(mainThread))
{
}

DiskWorkers::~DiskWorkers()
{
    m_wayBack->close();
    const auto deadline = std::chrono::steady_clock::now() + m_patience;
    for (const std::future<void>& work : m_underWay) {
        (void)work.wait_until(deadline);
    }
}

void DiskWorkers::start(std::function<void()> work, std::function<void()> tell)
{
    forgetWhatEnded();
    const auto ended = std::make_shared<std::promise<void>>();
    std::future<void> end = ended->get_future();
    const std::error_code error
        = startThread([work = std::move(work), wayBack = m_wayBack, tell, ended]() mutable {
              work();
              wayBack->perform(std::move(tell));
              ended->set_value();
          });
    if (error) {
        m_wayBack->perform(std::move(tell));
    } else {
        m_underWay.push_back(std::move(end));
    }
}

void DiskWorkers::forgetWhatEnded()
{
    std::erase_if(m_underWay, [](const std::future<void>& work) {
        return work.wait_for(std::chrono::seconds(0)) == std::future_status::ready;
    });
}

} // namespace tessera
