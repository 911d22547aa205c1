// SPDX-License-Identifier: MIT
#pragma once

#include "Base/Url.h"
#include "Desktop/Workspace.h"

#include <cstdint>
#include <deque>
#include <optional>
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

    void recycleURLs(std::vector<ItemToRecycle> items, RecycleCompletion completionHandler) override
    {
        recycled.emplace_back();
        for (const ItemToRecycle& item : items) {
            recycled.back().push_back(item.url);
            recycledBytes = item.bytes;
        }
        recycledItems = std::move(items);
        m_completions.push_back(std::move(completionHandler));
    }

    void recycleFile(
        const FileIdentity& file,
        std::vector<Url> places,
        RecycleCompletion completionHandler) override
    {
        recycledFile = file;
        recycleURLs({places.begin(), places.end()}, std::move(completionHandler));
    }

    void putBack(PutBackRequest request, PutBackCompletion completionHandler) override
    {
        putBacks.push_back(std::move(request));
        m_putBackCompletions.push_back(std::move(completionHandler));
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

    /// The same for an item that is to be put back.
    [[nodiscard]] bool finishPuttingBack(const PutBackResult& result)
    {
        if (m_putBackCompletions.empty()) {
            return false;
        }
        const PutBackCompletion completion = std::move(m_putBackCompletions.front());
        m_putBackCompletions.pop_front();
        completion(result);
        return true;
    }

    bool answer = true;
    bool answersLater = false; ///< by lateAnswer, when something is to be opened or shown
    OpenCompletion lateAnswer;
    std::vector<std::string> opened;
    std::vector<std::string> revealed;
    std::vector<std::vector<Url>> recycled; ///< the items, or a file's places, of each call
    std::optional<std::uint64_t> recycledBytes; ///< of the last item, if the caller knew them
    std::vector<ItemToRecycle> recycledItems; ///< of the last call
    std::vector<PutBackRequest> putBacks;
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
    std::deque<PutBackCompletion> m_putBackCompletions;
};

} // namespace tessera::test
