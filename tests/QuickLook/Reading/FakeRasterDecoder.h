// SPDX-License-Identifier: MIT
#pragma once

#include "QuickLook/Reading/RasterDecoder.h"

#include <condition_variable>
#include <functional>
#include <mutex>
#include <utility>
#include <vector>

namespace tessera::test {

/// Answers without looking at the file. Callable from any thread.
class FakeRasterDecoder final : public RasterDecoder {
public:
    /// What all requests from now on are answered; nothing that could be shown until then.
    void setAnswer(const RasterAnswer& answer)
    {
        setAnswers([answer](const RasterRequest& /*request*/) { return answer; });
    }
    void setAnswers(std::function<RasterAnswer(const RasterRequest&)> answers)
    {
        const std::lock_guard lock(m_mutex);
        m_answers = std::move(answers);
    }

    /// From now on a decoding goes on until it is told to end, as with a hostile file.
    void neverEnd()
    {
        const std::lock_guard lock(m_mutex);
        m_isEndless = true;
    }

    std::vector<RasterRequest> requests() const
    {
        const std::lock_guard lock(m_mutex);
        return m_requests;
    }

    /// Waits until so many decodings have begun.
    void waitUntilAsked(std::size_t times) const
    {
        std::unique_lock lock(m_mutex);
        m_changed.wait(lock, [&] { return m_requests.size() >= times; });
    }

    [[nodiscard]] RasterAnswer decode(
        const ReadableFile& /*file*/,
        const RasterRequest& request,
        const std::stop_token& stop) const override
    {
        std::unique_lock lock(m_mutex);
        m_requests.push_back(request);
        m_changed.notify_all();
        m_changed.wait(lock, stop, [this] { return !m_isEndless; });
        return m_isEndless ? RasterAnswer{RasterOutcome::CutShort, std::nullopt, 0, {}}
                           : m_answers(request);
    }

private:
    mutable std::mutex m_mutex;
    mutable std::condition_variable_any m_changed;
    mutable std::vector<RasterRequest> m_requests;
    std::function<RasterAnswer(const RasterRequest&)> m_answers
        = [](const RasterRequest& /*request*/) { return RasterAnswer(); };
    bool m_isEndless = false;
};

} // namespace tessera::test
