// SPDX-License-Identifier: MIT
#include "Freeing/WillFreeQuestion.h"

#include "Scanning/WayBack.h"

#include <utility>

namespace tessera {

WillFreeQuestion::WillFreeQuestion(
    FreeingServices services, MainThread& mainThread, std::chrono::milliseconds patience)
    : m_services(std::move(services))
    , m_patience(patience)
    , m_wayBack(WayBack::make(mainThread))
{
}

WillFreeQuestion::~WillFreeQuestion()
{
    drop();
    m_wayBack->close();
    (void)m_threads->waitForAll(kWorkerPatience);
}

void WillFreeQuestion::ask(FreeingQuestion question, Answered answered)
{
    drop();
    m_stop = std::stop_source();
    m_answered = std::move(answered);
    const auto asked = std::make_shared<const FreeingQuestion>(std::move(question));
    const auto tell = [this, number = m_number, wayBack = m_wayBack](FreedSpace space) {
        wayBack->perform([this, number, space = std::move(space)] { heard(number, space); });
    };
    const auto [thread, error] = m_threads->start(
        [asked, tell, services = m_services, patience = m_patience, stop = m_stop.get_token()] {
            tell(freedByDisk(*asked, askDisk(*asked, services, patience, stop)));
        });
    if (error) {
        tell(freedByDisk(*asked, {}));
    }
}

void WillFreeQuestion::drop()
{
    m_stop.request_stop();
    m_answered = {};
    ++m_number;
}

void WillFreeQuestion::heard(std::uint64_t number, const FreedSpace& space)
{
    if (number == m_number) {
        const Answered answered = std::exchange(m_answered, {});
        answered(space);
    }
}

} // namespace tessera
