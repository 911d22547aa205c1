// SPDX-License-Identifier: MIT
#include "Platform/Linux/gonePaths.h"

#include <sys/stat.h>

#include <algorithm>
#include <cerrno>
#include <condition_variable>
#include <memory>
#include <mutex>
#include <thread>

namespace tessera {

namespace {

/// Shared by the caller and the thread that asks, since a thread stuck in the kernel outlives the
/// call.
struct Answers {
    std::mutex mutex;
    std::condition_variable changed;
    std::vector<bool> isGone;
    bool isComplete = false;
};

bool isGone(const std::string& path)
{
    struct stat status { };
    int result = 0;
    do {
        result = ::lstat(path.c_str(), &status);
    } while (result != 0 && errno == EINTR);
    return result != 0 && (errno == ENOENT || errno == ENOTDIR);
}

void askAll(const std::vector<std::string>& paths, Answers& answers)
{
    for (std::size_t i = 0; i < paths.size(); ++i) {
        const bool answer = isGone(paths[i]);
        const std::lock_guard lock(answers.mutex);
        answers.isGone[i] = answer;
    }
    const std::lock_guard lock(answers.mutex);
    answers.isComplete = true;
    answers.changed.notify_all();
}

} // namespace

std::vector<bool> gonePaths(
    const std::vector<std::string>& paths, std::chrono::milliseconds timeLimit)
{
    const auto answers = std::make_shared<Answers>();
    answers->isGone.resize(paths.size());
    std::thread([paths, answers] { askAll(paths, *answers); }).detach();
    std::unique_lock lock(answers->mutex);
    (void)answers->changed.wait_for(lock, timeLimit, [&answers] { return answers->isComplete; });
    return answers->isGone;
}

} // namespace tessera
