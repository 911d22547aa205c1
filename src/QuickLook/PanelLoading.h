// SPDX-License-Identifier: MIT
#pragma once

#include "QuickLook/ItemFacts.h"

#include <QObject>
#include <QSize>
#include <QTimer>

#include <cstdint>
#include <memory>
#include <optional>

namespace tessera {

class PreviewLoader;
class QuestionThreads;
struct Preview;
struct QuickLookServices;

/// Has the content of the preview panel's item read, and says when a summary is to stand for it:
/// when there is nothing to read, and when what there is does not come soon. Of an item that was
/// asked for before nothing is heard any more. Main thread only.
class PanelLoading final : public QObject {
    Q_OBJECT

public:
    /// What is in sight until the content is there.
    enum class Meanwhile : std::uint8_t {
        Summary,
        ItemBefore, ///< but not for long: most files are read sooner
    };

    explicit PanelLoading(const QuickLookServices& services);
    ~PanelLoading() override;

    /// What is read can be shown in `most` points of `scale` pixels each. A summary that is due
    /// already is announced before the call returns.
    void load(
        const std::optional<ItemFacts>& item, const QSize& most, double scale, Meanwhile meanwhile);

    /// Nothing is wanted any more.
    void stop();

    /// The same, and waits for those who read, but not for long: the program ends.
    void stopForGood();

signals:
    void loaded(const Preview& preview);
    void summaryDue();

private:
    std::shared_ptr<QuestionThreads> m_threads;
    std::unique_ptr<PreviewLoader> m_loader; ///< null where nothing can be read
    QTimer m_patience;
};

} // namespace tessera
