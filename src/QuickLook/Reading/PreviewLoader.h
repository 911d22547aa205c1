// SPDX-License-Identifier: MIT
#pragma once

#include "QuickLook/Reading/Preview.h"

#include <QObject>

#include <functional>
#include <memory>

namespace tessera {

class FileReader;
class QuestionThreads;
class RasterDecoder;

/// Looks at files on the threads it is given, so that none of them can hold up the caller, and
/// brings what it found to the thread it lives in. Only what was asked for last is brought; an
/// earlier look that is still under way is told to end, and what it brings is dropped.
///
/// A look that is stuck in the system cannot be ended. It is left alone with what it uses, which
/// is why reader and decoder are shared; when too many are stuck, the next one waits for one of
/// them. A decoding can always be ended, and leaves its place to the next one.
class PreviewLoader final : public QObject {
public:
    /// `show` is called by the event loop of this object's thread.
    PreviewLoader(
        std::shared_ptr<const FileReader> files,
        std::shared_ptr<const RasterDecoder> decoder,
        std::shared_ptr<QuestionThreads> threads,
        std::function<void(Preview)> show);
    PreviewLoader(const PreviewLoader&) = delete;
    PreviewLoader& operator=(const PreviewLoader&) = delete;
    /// Does not wait for looks that are under way.
    ~PreviewLoader() override;

    void load(const PreviewRequest& request);

    /// Drops what is under way.
    void cancel();

    bool isLoading() const { return m_current != nullptr; }

    bool event(QEvent* event) override;

private:
    struct Look;
    class Crew;

    std::shared_ptr<Crew> m_crew;
    std::function<void(Preview)> m_show;
    std::shared_ptr<Look> m_current;
};

} // namespace tessera
