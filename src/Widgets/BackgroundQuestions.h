// SPDX-License-Identifier: MIT
#pragma once

#include "DeadMounts/QuestionThreads.h"

#include <QObject>

#include <chrono>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <utility>

namespace tessera {

/// Questions to the system that a dead file system may leave without an answer for long, each asked
/// on a thread of its own. Answers that come after this object is gone are dropped, so that what a
/// question uses must be its own. Main thread only.
class BackgroundQuestions final : public QObject {
    Q_OBJECT

public:
    BackgroundQuestions();
    ~BackgroundQuestions() override;

    /// Asks, and hands the answer to `answered` later, on the main thread. Where no thread is
    /// to be had it is like a file system that never answers, only that nobody waits for it.
    template <typename Answer>
    void ask(std::function<Answer()> question, std::function<void(const Answer&)> answered)
    {
        auto answer = std::make_shared<std::optional<Answer>>();
        start(
            [question = std::move(question), answer] { answer->emplace(question()); },
            [answer, answered = std::move(answered)] { answered(answer->value()); });
    }

    /// Waits until all questions are answered, at most for that time, and hands on what is answered
    /// by then. The usual answer takes no longer than a system call. To be called when all
    /// questions have been asked: nobody waits for one that is asked later.
    void waitBriefly(std::chrono::milliseconds patience);

protected:
    void customEvent(QEvent* event) override;

private:
    class Arrivals;

    void start(std::function<void()> question, std::function<void()> answered);
    void handOnAnswers();

    const std::shared_ptr<QuestionThreads> m_threads = QuestionThreads::make();
    const std::shared_ptr<Arrivals> m_arrivals;
    std::map<int, std::function<void()>> m_answered;
    int m_lastNumber = 0;
};

} // namespace tessera
