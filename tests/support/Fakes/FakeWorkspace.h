// SPDX-License-Identifier: MIT
#pragma once

#include "Base/Url.h"
#include "Desktop/Workspace.h"

#include <deque>
#include <string>
#include <utility>
#include <vector>

namespace tessera::test {

/// A desktop that writes down what it is asked for.
class FakeWorkspace final : public Workspace {
public:
    void openUrl(const std::string& absoluteUrl, OpenCompletion completionHandler) override
    {
        opened.push_back(absoluteUrl);
        complete(std::move(completionHandler));
    }

    void reveal(const Url& item, OpenCompletion completionHandler) override
    {
        revealed.push_back(item.path());
        complete(std::move(completionHandler));
    }

    void recycleURLs(std::vector<Url> urls, RecycleCompletion completionHandler) override
    {
        recycled.push_back(std::move(urls));
        m_completions.push_back(std::move(completionHandler));
    }

    void recycleFile(
        const FileIdentity& file,
        std::vector<Url> places,
        RecycleCompletion completionHandler) override
    {
        recycledFile = file;
        recycleURLs(std::move(places), std::move(completionHandler));
    }

    /// Ends the oldest move to the trash that has not ended yet; false when there is none.
    [[nodiscard]] bool finishRecycling(const RecycleResult& result)
    {
        if (m_completions.empty()) {
            return false;
        }
        const RecycleCompletion completion = std::move(m_completions.front());
        m_completions.pop_front();
        completion(result);
        return true;
    }

    bool answer = true;
    bool answersLater = false; ///< by lateAnswer, when something is to be opened or shown
    OpenCompletion lateAnswer;
    std::vector<std::string> opened;
    std::vector<std::string> revealed;
    std::vector<std::vector<Url>> recycled; ///< the items, or a file's places, of each call
    FileIdentity recycledFile; ///< the last one that was recycled by its identity

private:
    void complete(OpenCompletion completionHandler)
    {
        if (answersLater) {
            lateAnswer = std::move(completionHandler);
        } else {
            completionHandler(answer);
        }
    }

    std::deque<RecycleCompletion> m_completions;
};

} // namespace tessera::test
