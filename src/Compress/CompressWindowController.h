// SPDX-License-Identifier: MIT
#pragma once

#include "Base/FileIdentity.h"
#include "Base/FileTime.h"
#include "Base/Url.h"
#include "Compress/OriginalCheck.h"
#include "DeadMounts/WithTimeLimit.h"
#include "Desktop/ExpectedItem.h"
#include "Desktop/Task.h"
#include "Widgets/BackgroundQuestions.h"

#include <QObject>
#include <QTimer>

#include <chrono>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <set>
#include <stop_token>
#include <string>
#include <vector>

class QDialog;
class QString;

namespace Ui {
class CompressWindow;
}

namespace tessera {

class Alert;
class EndNotices;
class IconProvider;
class ItemChanges;
class ItemStates;
class ResourceValues;
class Workspace;

/// What compressing needs from the system. Everything must outlive the program's run.
struct CompressServices {
    std::string archiver; ///< path of the archiving program, as bytes
    std::function<std::unique_ptr<Task>()> makeTask;
    Workspace& workspace;
    WithTimeLimit<ResourceValues> resourceValues;
    IconProvider& icons;
    /// The paths of the archives that are being written, some of which are not on the disk yet; one
    /// set for all compressions.
    std::set<std::string>& targetsInUse;
    Alert& alert;
    /// Asked by threads that may be stuck for longer than anything lives.
    std::shared_ptr<const ItemChanges> itemChanges;
    std::shared_ptr<const ItemStates> itemStates;
    EndNotices* notices = nullptr; ///< hears of each end; may be null
};

/// Calls back once after a time, from the event loop.
using CallLater = std::function<void(std::chrono::milliseconds, std::function<void()>)>;

/// Makes a zip archive of an item beside the item, in a small window of its own. The progress is
/// estimated from the archive's growing size. Whatever the end, it emits itemCompressed().
///
/// Until it is complete the archive has another name (partPath()). What goes to the trash is the
/// very file that the archiving program said it made, under whichever of the two names.
///
/// After a success the window stays, says what the archive saves, and offers to move the original
/// to the trash where somebody listens to originalToTrash().
///
/// Once started the controller keeps itself alive until its window closes, so that nobody need hold
/// it.
/// The work is broken off, and the incomplete archive moved to the trash, when its own window is
/// closed or the program ends. Main thread only.
class CompressWindowController final
    : public QObject,
      public std::enable_shared_from_this<CompressWindowController> {
    Q_OBJECT

public:
    enum class State : std::int32_t { New, Running, Succeeded, Failed, Cancelled };

    /// Loads the window, hidden. It is shared with itself while it works. Tests pass a `callLater`.
    static std::shared_ptr<CompressWindowController> make(
        CompressServices services, CallLater callLater = {});
    ~CompressWindowController() override;

    /// Shows the window in the middle of `above`, or of the screen.
    void showWindow(const QWidget* above = nullptr);

    /// Starts; to be called once. `withSize` is what the item allocates, in bytes. Where a folder
    /// has become something else meanwhile, or the reverse, it fails.
    void compressURL(const Url& url, std::uint64_t withSize);

    /// What the timer does, ten times a second: shows the progress and ends what has ended.
    void updateProgress();

    /// Breaks the work off; nothing when the archiving program has ended.
    void cancelCompress();

    State state() const { return m_state; }
    QDialog& window() const { return *m_window; }
    /// Runs updateProgress() while there is something to wait for.
    const QTimer& updateTimer() const { return m_updateTimer; }

signals:
    /// There is an archive, or an incomplete one in the trash, and right after this
    /// itemCompressed() says where. This is where it was while it was incomplete: a scan may have
    /// met it there.
    void itemGone(const Url& place);
    /// The end: with the archive, or the incomplete archive in the trash, or none.
    void itemCompressed(const std::optional<Url>& archive);
    /// After itemCompressed(): the user wants the original in the trash. The archive is whole and
    /// where it was made, and nothing of the original has changed since it was begun.
    void originalToTrash(const Url& original, const ExpectedItem& expected);

private:
    explicit CompressWindowController(CompressServices services, CallLater callLater);

    void startArchiver(bool isFolder);
    void checkATaskStatus(int status);
    void compressFinished(const std::optional<Url>& archive);
    void trashIncompleteArchive();
    void finishLater(const std::optional<Url>& archive);
    void breakOffAtExit();
    void noteWhatWasMade();
    void giveNotice() const;
    void release();
    void showResult(ArchivedItem archived, std::optional<std::uint64_t> archiveBytes);
    void askForOriginal();
    void originalChecked(const OriginalCheck& check);
    bool isOriginalWanted() const;
    void sayThatTheDiskIsFull(bool isInTrash);

    void setOutputText(const QString& text);
    void showIcon();
    std::optional<std::uint64_t> archiveSize() const;
    Url archive() const { return {m_targetPath, false}; }
    std::vector<Url> archivePlaces() const;

    CompressServices m_services;
    CallLater m_callLater;

    std::unique_ptr<QDialog> m_window;
    std::unique_ptr<Ui::CompressWindow> m_ui;

    std::string m_sourcePath;
    bool m_isFolder = false;
    FileTime m_begun; ///< whatever changes later may be missing in the archive
    std::string m_targetPath;
    std::uint64_t m_sourceAllocation = 0;
    std::unique_ptr<Task> m_backupTask; ///< null when it has ended
    QTimer m_updateTimer;
    State m_state = State::New;
    std::optional<FileIdentity> m_made; ///< known when the tool has ended, if it made a file
    bool m_isDiskFull = false;
    bool m_isCancelled = false;
    double m_startedAt = 0; ///< seconds of the notices' clock
    std::optional<ArchivedItem> m_result; ///< while the window shows it
    BackgroundQuestions m_questions;
    std::stop_source m_stopLooking;
    double m_lastCompressedPercent = 0; ///< what is added to the progress after success

    /// Its hold on itself while it works.
    std::shared_ptr<CompressWindowController> m_self;
};

} // namespace tessera
