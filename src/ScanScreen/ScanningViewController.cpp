// SPDX-License-Identifier: MIT
#include "ScanScreen/ScanningViewController.h"

#include "Base/DisplayText.h"
#include "Base/ProgressSteps.h"
#include "Desktop/Alert.h"
#include "Desktop/DockTile.h"
#include "Language/SizeText.h"
#include "Model/RootModel.h"
#include "Notices/EndNotices.h"
#include "ScanScreen/PathLabel.h"
#include "Scanning/Scanner.h"
#include "Widgets/ScanProblem.h"
#include "ui_ScanView.h"

#include <QLabel>
#include <QLocale>
#include <QProgressBar>
#include <QPushButton>

#include <algorithm>
#include <optional>
#include <string_view>
#include <utility>

namespace tessera {

namespace {

constexpr QSize kIconSize{64, 64};
constexpr double kLeastHeadingPoints = 13;
constexpr double kHeadingFactor = 1.2;

/// As the user's language groups digits; the language of none groups them too.
QString grouped(long number)
{
    QLocale locale;
    locale.setNumberOptions(locale.numberOptions() & ~QLocale::OmitGroupSeparator);
    return locale.toString(number);
}

/// Stands out from the other texts, however large those are.
QFont headingFont(QFont font)
{
    font.setBold(true);
    font.setPointSizeF(std::max(kLeastHeadingPoints, font.pointSizeF() * kHeadingFactor));
    return font;
}

} // namespace

ScanningViewController::ScanningViewController(RootModel& model, ScanningServices services)
    : m_model(model)
    , m_services(std::move(services))
    , m_view(std::make_unique<QWidget>())
    , m_ui(std::make_unique<Ui::ScanView>())
{
    m_ui->setupUi(m_view.get());
    m_ui->folderName->setFont(headingFont(m_ui->folderName->font()));
    m_ui->cancelButton->setShortcut(Qt::Key_Escape);
    connect(m_ui->cancelButton, &QPushButton::clicked, this, &ScanningViewController::stopScan);
    stopAnimation();
}

ScanningViewController::~ScanningViewController()
{
    if (m_scanner != nullptr) {
        m_scanner->setDelegate(nullptr);
        m_scanner->cancel();
    }
    m_services.dockTile.removeContentView(m_dockImage);
}

void ScanningViewController::startScanning(const Url& url)
{
    if (m_scanner == nullptr && m_services.notices != nullptr) {
        m_begun = m_services.notices->now();
    }
    m_rate.restart();
    m_rootURL = url;
    const PlaceLook look = m_services.look(url);
    m_ui->iconView->setPixmap(look.icon.pixmap(kIconSize, m_view->devicePixelRatioF()));
    m_ui->folderName->setText(look.name);
    m_ui->totalRead->setText(QStringLiteral("-"));
    m_ui->readRate->clear();
    m_scanner = Scanner::create(m_services.scanEnvironment);
    m_scanner->setDelegate(this);
    m_scanner->scan(url);
    startAnimation();
    m_ui->cancelButton->setEnabled(true);
    m_services.dockTile.setContentView(m_dockImage);
}

void ScanningViewController::stopScan()
{
    if (!m_rootURL.empty()) {
        m_scanner->cancel();
    }
}

void ScanningViewController::scanUpdated(Scanner& scanner)
{
    showPath(scanner.currentURL());
    const double percent = scanner.percentComplete();
    m_ui->totalRead->setText(sizeText(scanner.allocationRead()));
    m_ui->indicator->setRange(0, kProgressSteps);
    m_ui->indicator->setValue(progressSteps(percent));
    m_dockImage.setPercent(percent);
    m_services.dockTile.display();
    if (const auto rate = m_rate.add(m_services.scanEnvironment.clock(), scanner.objectsRead())) {
        m_ui->readRate->setText(tr("%1 files/sec").arg(grouped(*rate)));
    }
}

void ScanningViewController::scanEnded(Scanner& scanner)
{
    stopAnimation();
    const Url scanned = std::exchange(m_rootURL, {});
    if (const std::optional<Url> home = m_homePass.nextScan(scanner)) {
        startScanning(*home);
        return;
    }
    std::unique_ptr<TopFolder> tree = m_homePass.takeTree(scanner);
    if (tree->children().empty()) {
        if (const std::error_code problem = m_services.checkFolder(scanned.path())) {
            sayThatItFailed(scanned, problem);
            endWithoutTree();
            return;
        }
    }
    m_model.setTopFolder(std::move(tree));
    m_model.recents().addToList(*m_model.topFolder());
    m_services.dockTile.requestAttention();
    giveNotice(
        tr("The scan is finished"),
        tr("%1 takes %2.")
            .arg(m_ui->folderName->text(), sizeText(m_model.topFolder()->totalAllocation())));
    m_services.dockTile.removeContentView(m_dockImage);
    m_ui->cancelButton->setEnabled(false);
    emit scanComplete();
}

void ScanningViewController::scanCancelled(Scanner& /*scanner*/)
{
    stopAnimation();
    m_rootURL = {};
    endWithoutTree();
}

void ScanningViewController::scanFailed(Scanner& /*scanner*/, const std::error_code& problem)
{
    stopAnimation();
    sayThatItFailed(std::exchange(m_rootURL, {}), problem);
    endWithoutTree();
}

void ScanningViewController::sayThatItFailed(const Url& folder, const std::error_code& problem)
{
    const AlertText text = scanProblem(folder, problem);
    m_services.alert.beginSheet(text);
    giveNotice(text.messageText, text.informativeText);
}

void ScanningViewController::giveNotice(const QString& title, const QString& text) const
{
    if (m_services.notices != nullptr) {
        m_services.notices->workEnded(m_begun, title, text);
    }
}

void ScanningViewController::endWithoutTree()
{
    m_services.dockTile.removeContentView(m_dockImage);
    m_ui->cancelButton->setEnabled(false);
    emit scanCancelled();
}

/// From the scanned folder's own name on: where that folder lies is known to who chose it.
void ScanningViewController::showPath(const Url& current)
{
    const std::string_view path = current.path();
    const std::size_t dropped = m_rootURL.path().size() - m_rootURL.lastPathComponent().size();
    if (path.size() > dropped) {
        m_ui->scanLabel->setText(displayText(path.substr(dropped)));
    }
}

/// There is no fraction before the first report.
void ScanningViewController::startAnimation()
{
    m_ui->indicator->setRange(0, 0);
}

void ScanningViewController::stopAnimation()
{
    m_ui->indicator->setRange(0, kProgressSteps);
}

} // namespace tessera
