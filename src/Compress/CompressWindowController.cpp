// SPDX-License-Identifier: MIT
#include "Compress/CompressWindowController.h"

#include "Base/DisplayText.h"
#include "Base/Log.h"
#include "Base/ProgressSteps.h"
#include "Compress/ArchivePaths.h"
#include "Compress/ArchiverStatus.h"
#include "Desktop/Alert.h"
#include "Desktop/Workspace.h"
#include "Language/SizeText.h"
#include "Notices/EndNotices.h"
#include "Scanning/ResourceValues.h"
#include "Widgets/IconProvider.h"
#include "ui_CompressWindow.h"

#include <QCoreApplication>
#include <QDialog>
#include <QLabel>
#include <QMetaMethod>
#include <QPointer>
#include <QProgressBar>
#include <QPushButton>

#include <algorithm>
#include <utility>

namespace tessera {

namespace {

constexpr std::chrono::milliseconds kUpdateInterval{100};
constexpr std::chrono::milliseconds kTimeToReadTheEnd{1000};
constexpr int kIconPoints = 48;

/// Archives are usually smaller than what is in them; after success the rest of the bar is filled
/// by this much at a time up to a bound beyond its end.
constexpr double kFillStep = 0.1;
constexpr double kFillEnd = 1.1;

bool isTaken(const std::string& path, const CompressServices& services)
{
    // Whatever has a size is there, a dangling link too.
    return services.targetsInUse.contains(path)
        || services.resourceValues->allocatedSize(path).has_value()
        || services.resourceValues->allocatedSize(partPath(path)).has_value();
}

/// "X.zip", or the first of "X 2.zip", "X 3.zip" and so on that is free.
std::string freeTarget(const std::string& sourcePath, const CompressServices& services)
{
    std::string candidate;
    unsigned number = 0;
    do {
        candidate = archivePath(sourcePath, ++number);
    } while (isTaken(candidate, services));
    return candidate;
}

void callLaterByTimer(std::chrono::milliseconds delay, std::function<void()> work)
{
    // NOLINTNEXTLINE(cppcoreguidelines-owning-memory): it deletes itself, or with the program
    auto* const timer = new QTimer(qApp);
    timer->setSingleShot(true);
    timer->callOnTimeout(timer, [timer, work = std::move(work)] {
        timer->deleteLater();
        work();
    });
    timer->start(delay);
}

} // namespace

std::shared_ptr<CompressWindowController> CompressWindowController::make(
    CompressServices services, CallLater callLater)
{
    // It may let go of itself while one of its own signals is being delivered.
    return {
        new CompressWindowController(
            std::move(services), callLater ? std::move(callLater) : callLaterByTimer),
        [](CompressWindowController* controller) { controller->deleteLater(); }};
}

CompressWindowController::CompressWindowController(CompressServices services, CallLater callLater)
    : m_services(std::move(services))
    , m_callLater(std::move(callLater))
    , m_window(std::make_unique<QDialog>())
    , m_ui(std::make_unique<Ui::CompressWindow>())
{
    m_ui->setupUi(m_window.get());
    m_ui->cancelButton->setShortcut(Qt::Key_Escape);
    m_ui->progress->setRange(0, kProgressSteps);
    m_updateTimer.setInterval(kUpdateInterval);
    connect(&m_updateTimer, &QTimer::timeout, this, &CompressWindowController::updateProgress);
    connect(
        m_ui->cancelButton, &QPushButton::clicked, this, &CompressWindowController::cancelCompress);
    connect(
        m_ui->trashButton, &QPushButton::clicked, this, &CompressWindowController::askForOriginal);
    m_ui->resultField->hide();
    m_ui->trashButton->hide();
    connect(m_window.get(), &QDialog::rejected, this, &CompressWindowController::cancelCompress);
    connect(qApp, &QCoreApplication::aboutToQuit, this, &CompressWindowController::breakOffAtExit);
}

CompressWindowController::~CompressWindowController()
{
    m_stopLooking.request_stop();
}

void CompressWindowController::showWindow(const QWidget* above)
{
    m_window->adjustSize();
    if (above != nullptr) {
        const QRect frame = above->frameGeometry();
        m_window->move(frame.center() - m_window->rect().center());
    }
    m_window->show();
}

void CompressWindowController::compressURL(const Url& url, std::uint64_t withSize)
{
    m_self = shared_from_this();
    m_state = State::New;
    m_startedAt = m_services.notices == nullptr ? 0 : m_services.notices->now();
    m_lastCompressedPercent = 0;
    m_sourceAllocation = withSize;
    m_sourcePath = url.path();
    m_isFolder = url.isDirectory();
    m_begun = timeBeforeChanges();
    m_targetPath = freeTarget(m_sourcePath, m_services);
    m_services.targetsInUse.insert(m_targetPath);
    setOutputText(tr("Creating '%1'").arg(displayText(archive().lastPathComponent())));
    m_updateTimer.start();
    startArchiver(url.isDirectory());
    m_state = State::Running;
}

void CompressWindowController::startArchiver(bool isFolder)
{
    const std::string kindOption = isFolder ? "--folder" : "--file";
    m_backupTask = m_services.makeTask();
    m_backupTask->start(
        m_services.archiver,
        {"-c", "-k", "--sequesterRsrc", kindOption, m_sourcePath, m_targetPath},
        [this](int status) { checkATaskStatus(status); });
}

void CompressWindowController::updateProgress()
{
    const std::optional<std::uint64_t> archiveBytes = archiveSize();
    if (archiveBytes) {
        showIcon();
    }
    double value
        = static_cast<double>(archiveBytes.value_or(0)) / static_cast<double>(m_sourceAllocation);
    if (m_state == State::Succeeded) {
        m_lastCompressedPercent += kFillStep;
        value += m_lastCompressedPercent;
    }
    m_ui->progress->setValue(progressSteps(value));
    if (m_state == State::Succeeded && value >= kFillEnd) {
        m_updateTimer.stop();
        compressFinished(archive());
    } else if (m_state >= State::Failed && m_backupTask == nullptr) {
        // A cancelled program that still runs might yet write what was moved away.
        m_updateTimer.stop();
        m_made ? trashIncompleteArchive() : finishLater(std::nullopt);
    }
}

void CompressWindowController::cancelCompress()
{
    if (m_result) {
        m_result.reset();
        release();
        return;
    }
    if (m_backupTask == nullptr) {
        return;
    }
    m_backupTask->terminate();
    m_state = State::Cancelled;
    m_isCancelled = true;
    setOutputText(tr("Compression Canceled"));
    m_ui->cancelButton->setEnabled(false);
}

void CompressWindowController::checkATaskStatus(int status)
{
    noteWhatWasMade();
    m_ui->cancelButton->setEnabled(false);
    m_isDiskFull = status == archiver_status::kDiskFull;
    if (status != archiver_status::kDone) {
        logLine("Task failed.");
        m_state = State::Failed;
        setOutputText(tr("Compression Failed"));
        return;
    }
    logLine("Task succeeded.");
    // Who cancels at the last moment wants no archive either.
    if (m_state != State::Cancelled) {
        m_state = State::Succeeded;
    }
}

void CompressWindowController::trashIncompleteArchive()
{
    m_services.workspace.recycleFile(
        *m_made, archivePlaces(), [self = QPointer(this)](const RecycleResult& result) {
            if (self.isNull()) {
                return;
            }
            if (result.newUrls.empty()) {
                logLine("Error deleting incomplete archive");
                self->finishLater(std::nullopt);
            } else {
                self->finishLater(result.newUrls.begin()->second);
            }
        });
}

void CompressWindowController::finishLater(const std::optional<Url>& archive)
{
    m_callLater(kTimeToReadTheEnd, [self = QPointer(this), archive] {
        if (!self.isNull()) {
            self->compressFinished(archive);
        }
    });
}

/// Who cancels knows of it.
void CompressWindowController::giveNotice() const
{
    if (m_services.notices == nullptr || m_isCancelled) {
        return;
    }
    m_services.notices->workEnded(
        m_startedAt,
        m_state == State::Succeeded ? tr("The archive is finished")
                                    : tr("The archive cannot be made"),
        displayText(archive().lastPathComponent()));
}

void CompressWindowController::compressFinished(const std::optional<Url>& archive)
{
    giveNotice();
    if (m_isDiskFull) {
        sayThatTheDiskIsFull(archive.has_value());
        if (m_self == nullptr) {
            return; // the program ended instead of an answer
        }
    }
    const Url part(partPath(m_targetPath), false);
    const bool isWhole = m_state == State::Succeeded && m_made.has_value();
    const std::optional<std::uint64_t> archiveBytes = archiveSize();
    ArchivedItem archived{m_sourcePath, m_targetPath, m_made.value_or(FileIdentity()), m_begun};
    m_services.targetsInUse.erase(m_targetPath);
    m_sourcePath.clear();
    m_targetPath.clear();
    m_ui->progress->reset();
    if (archive) {
        emit itemGone(part);
    }
    emit itemCompressed(archive);
    if (isWhole && m_self != nullptr) {
        showResult(std::move(archived), archiveBytes);
    } else {
        release();
    }
}

void CompressWindowController::showResult(
    ArchivedItem archived, std::optional<std::uint64_t> archiveBytes)
{
    const std::uint64_t before = m_sourceAllocation;
    const bool saves = archiveBytes.has_value() && *archiveBytes < before;
    m_window->setWindowTitle(tr("Archive Created"));
    setOutputText(tr("Created '%1'").arg(displayText(lastPathComponent(archived.archive))));
    m_result = std::move(archived);
    if (archiveBytes) {
        const QString sizes = tr("%1 → %2").arg(sizeText(before), sizeText(*archiveBytes));
        m_ui->resultField->setText(
            saves
                ? tr("%1. The archive takes %2 less.").arg(sizes, sizeText(before - *archiveBytes))
                : tr("%1. The archive saves nothing.").arg(sizes));
        m_ui->resultField->show();
    }
    m_ui->progress->hide();
    m_ui->trashButton->setVisible(saves && isOriginalWanted());
    m_ui->cancelButton->setText(tr("Close"));
    m_ui->cancelButton->setShortcut(Qt::Key_Escape); // which another text has taken away
    m_ui->cancelButton->setEnabled(true);
    m_ui->cancelButton->setDefault(true);
    m_ui->cancelButton->setFocus();
}

/// Of a screen that is gone nobody listens.
bool CompressWindowController::isOriginalWanted() const
{
    return isSignalConnected(QMetaMethod::fromSignal(&CompressWindowController::originalToTrash));
}

void CompressWindowController::askForOriginal()
{
    m_ui->trashButton->setEnabled(false);
    m_ui->resultField->setText(tr("Looking whether the original is still what was archived…"));
    m_questions.ask<OriginalCheck>(
        [archived = *m_result,
         changes = m_services.itemChanges,
         states = m_services.itemStates,
         stop = m_stopLooking.get_token()] {
            return checkOriginal(archived, *changes, *states, stop);
        },
        [this](const OriginalCheck& check) {
            if (m_result) {
                originalChecked(check);
            }
        });
}

void CompressWindowController::originalChecked(const OriginalCheck& check)
{
    m_ui->trashButton->hide();
    switch (check.outcome) {
    case OriginalCheck::Outcome::Changed:
        m_ui->resultField->setText(
            tr("The original may have changed while it was archived, or since. It stays."));
        return;
    case OriginalCheck::Outcome::Gone:
        m_ui->resultField->setText(tr("The original is not there any more."));
        return;
    case OriginalCheck::Outcome::ArchiveGone:
        m_ui->resultField->setText(
            tr("The archive is not where it was made any more. The original stays."));
        return;
    case OriginalCheck::Outcome::Same:
        break;
    }
    if (!isOriginalWanted()) {
        m_ui->resultField->setText(
            tr("The original is not on screen any more. Scan its folder to move it to the trash."));
        return;
    }
    const Url original(m_result->original, m_isFolder);
    const ExpectedItem expected{check.state, m_result->begun};
    cancelCompress();
    emit originalToTrash(original, expected);
}

/// The program may be waiting for this archive to end, so this is said before the end.
void CompressWindowController::sayThatTheDiskIsFull(bool isInTrash)
{
    QString text = tr("The disk is full.");
    if (isInTrash) {
        text = tr("The disk is full. Nothing is left of the incomplete archive but an empty file "
                  "in the trash.");
    } else if (m_made) {
        text = tr("The disk is full. Of the incomplete archive an empty file is left, which could "
                  "not be moved to the trash: '%1'.")
                   .arg(displayText(lastPathComponent(partPath(m_targetPath))));
    }
    // The box belongs over another window than this one, which is about to go.
    m_window->hide();
    (void)m_services.alert.runModal({tr("The archive cannot be made"), text, {tr("OK")}});
}

void CompressWindowController::breakOffAtExit()
{
    if (m_self == nullptr) {
        return;
    }
    if (m_backupTask != nullptr) {
        // It must not go on writing without us, and may yet say what it has made.
        m_backupTask->stop();
        noteWhatWasMade();
    }
    const bool isUntouched = m_updateTimer.isActive() && m_state != State::Succeeded;
    m_updateTimer.stop();
    if (isUntouched && m_made) {
        m_services.workspace.recycleFile(
            *m_made, archivePlaces(), [](const RecycleResult& /*result*/) {});
    }
    m_services.targetsInUse.erase(m_targetPath);
    release();
}

void CompressWindowController::noteWhatWasMade()
{
    m_made = readFileIdentityLine(m_backupTask->output());
    m_backupTask.reset();
}

void CompressWindowController::release()
{
    m_window->close();
    m_self.reset();
}

std::optional<std::uint64_t> CompressWindowController::archiveSize() const
{
    const auto size = m_services.resourceValues->allocatedSize(partPath(m_targetPath));
    return size ? size : m_services.resourceValues->allocatedSize(m_targetPath);
}

std::vector<Url> CompressWindowController::archivePlaces() const
{
    return {Url(partPath(m_targetPath), false), archive()};
}

void CompressWindowController::setOutputText(const QString& text)
{
    m_ui->outputField->ensurePolished();
    m_ui->outputField->setText(m_ui->outputField->fontMetrics().elidedText(
        text, Qt::ElideMiddle, m_ui->outputField->maximumWidth()));
    m_ui->outputField->setAccessibleName(text);
}

void CompressWindowController::showIcon()
{
    if (m_ui->outputIcon->pixmap(Qt::ReturnByValue).isNull()) {
        m_ui->outputIcon->setPixmap(
            m_services.icons.iconForUrl(archive(), kIconPoints, m_window->devicePixelRatioF()));
    }
}

} // namespace tessera
