// SPDX-License-Identifier: MIT
#pragma once

#include "Freeing/WillFreeQuestion.h"

#include <QTimer>
#include <QWidget>

#include <chrono>
#include <vector>

class QLabel;

namespace tessera {

class File;
class MainThread;
struct FreedSpace;

/// A line that says what removing items will free, and below it why that may be less than they
/// take: at once what the scan knows, and what the disk says once they have been the same for a
/// while. Main thread only.
class WillFreeView final : public QWidget {
    Q_OBJECT

public:
    /// How long nothing may change before the disk is asked.
    static constexpr int kStillMilliseconds = 300;

    /// `mainThread` must outlive it.
    WillFreeView(
        const FreeingServices& freeing,
        MainThread& mainThread,
        std::chrono::milliseconds patience,
        QWidget* parent = nullptr);
    ~WillFreeView() override;

    /// What it is about, until it is told otherwise, items of one tree: without any it is hidden.
    /// Looks at each node below them.
    void setItems(std::vector<const File*> items);
    /// The items may be gone. What is shown stays so until others are set; no answer is awaited.
    void forget();
    /// Asks the disk now, even if it was asked before.
    void askNow();

signals:
    /// What the disk has said of the items.
    void answered(const tessera::FreedSpace& freed);

private:
    void tell(const FreedSpace& freed);

    WillFreeQuestion m_question;
    std::vector<const File*> m_items;
    QTimer m_still;
    QLabel* m_figure;
    QLabel* m_reasons;
};

} // namespace tessera
