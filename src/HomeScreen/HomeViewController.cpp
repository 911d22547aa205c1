// SPDX-License-Identifier: MIT
#include "HomeScreen/HomeViewController.h"

#include "Base/Log.h"
#include "DeadMounts/DeadMountLimits.h"
#include "Desktop/UserAccount.h"
#include "HomeScreen/Grid/CollectionHeaderView.h"
#include "HomeScreen/Grid/SectionPlaceholder.h"
#include "HomeScreen/Grid/SectionedCollectionView.h"
#include "HomeScreen/Parts/FolderCollectionView.h"
#include "HomeScreen/Parts/GreetingView.h"
#include "HomeScreen/Parts/HomeItemAccessible.h"
#include "HomeScreen/Parts/HoverButton.h"
#include "HomeScreen/Parts/VolumeCollectionView.h"
#include "HomeScreen/Places/PlaceIcons.h"
#include "HomeScreen/Places/PlaceNames.h"
#include "HomeScreen/Recents/RecentsTableCell.h"
#include "HomeScreen/Recents/RecentsTableModel.h"
#include "HomeScreen/Recents/RecentsTableView.h"
#include "Model/RootModel.h"
#include "Model/UserDefaults.h"
#include "Widgets/DesktopFont.h"
#include "Widgets/PassiveLabel.h"
#include "ui_HomeView.h"

#include <QGraphicsOpacityEffect>
#include <QKeyEvent>
#include <QListView>

#include <algorithm>
#include <utility>

namespace tessera {

namespace {

constexpr int kVolumes = 0;
constexpr int kLeastVolumeWidth = 200;
constexpr int kGreatestVolumeWidth = 400;
constexpr int kLeastLocationWidth = 100;
constexpr int kGreatestLocationWidth = 200;
constexpr int kColumnWidth = 300; ///< of the recent scans
/// How visible the grid is while a scan runs, in which nothing can be chosen.
constexpr double kUnusableOpacity = 0.5;

/// The grid's items are pictures and have no look of their own for it.
void showUsable(QWidget& grid, bool isUsable)
{
    // NOLINTNEXTLINE(cppcoreguidelines-owning-memory): the grid owns it
    auto* const effect = isUsable ? nullptr : new QGraphicsOpacityEffect;
    if (effect != nullptr) {
        effect->setOpacity(kUnusableOpacity);
    }
    grid.setGraphicsEffect(effect);
}

/// What an item's texts need, with a larger font than usual, and never less than it was made for.
template <typename View>
std::unique_ptr<View> highEnough(std::unique_ptr<View> view)
{
    view->resize(view->width(), std::max(view->height(), view->minimumSizeHint().height()));
    return view;
}

CollectionSection emptySection(const QString& title, int leastWidth, int greatestWidth)
{
    auto header = std::make_unique<CollectionHeaderView>();
    header->nameLabel().setText(title);
    CollectionSection section;
    section.header = highEnough(std::move(header));
    section.minimumWidth = static_cast<float>(widthWithDesktopFont(leastWidth));
    section.maximumWidth = static_cast<float>(widthWithDesktopFont(greatestWidth));
    return section;
}

std::optional<Location> firstDirectory(
    const LocationCandidate& candidate, const ResourceValues& resourceValues)
{
    for (const std::string& path : candidate.paths) {
        if (resourceValues.isDirectory(path)) {
            return Location{candidate.kind, Url(path, true)};
        }
    }
    return std::nullopt;
}

} // namespace

HomeViewController::HomeViewController(RootModel& model, const HomeViewServices& services)
    : m_model(model)
    , m_services(services)
    , m_realHomeDirectory(realHomeDirectory(services.account))
    , m_candidates(locationCandidates(m_realHomeDirectory, services.standardFolders))
    , m_places(services.volumes, m_candidates)
    , m_view(std::make_unique<QWidget>())
    , m_ui(std::make_unique<Ui::HomeView>())
{
    m_ui->setupUi(m_view.get());
    loadView();
}

HomeViewController::~HomeViewController() = default;

HoverButton& HomeViewController::openButton() const
{
    return *m_ui->openButton;
}

SectionedCollectionView& HomeViewController::locationsCollection() const
{
    return *m_ui->locationsCollection;
}

QListView& HomeViewController::recentsTable() const
{
    return *m_ui->recentsTable;
}

QPushButton& HomeViewController::scanButton() const
{
    return *m_ui->scanButton;
}

QPushButton& HomeViewController::clearRecentsButton() const
{
    return *m_ui->clearRecentsButton;
}

void HomeViewController::loadView()
{
    installHomeItemAccessible();
    openButton().setShowsBorderOnlyWhileMouseInside(true);
    openButton().setIcon(plainFolderIcon());
    fitFont();
    connectControls();
    connectGrid();
    loadVolumes();
    loadLocations();
    m_questions.waitBriefly(kHomeScreenPatience);
    m_isGridLoaded = true;
    takeLocations();
    locationsCollection().setSections(sections());
    loadRecents();
    updateButtons();
    if (!m_services.defaults.boolean(kGreetedKey)) {
        greet();
    }
}

void HomeViewController::greet()
{
    // NOLINTNEXTLINE(cppcoreguidelines-owning-memory): the screen owns it
    m_greeting = new GreetingView(m_ui->scanBar);
    m_ui->scanButtonLayout->insertWidget(0, m_greeting, 1);
    QWidget::setTabOrder(&scanButton(), &m_greeting->button());
    connect(m_greeting, &GreetingView::seen, this, [this] {
        m_services.defaults.setBoolean(kGreetedKey, true);
    });
    connect(m_greeting, &GreetingView::dismissed, this, &HomeViewController::endGreeting);
}

/// For good, also for one that nobody has seen.
void HomeViewController::endGreeting()
{
    if (m_greeting == nullptr) {
        return;
    }
    m_services.defaults.setBoolean(kGreetedKey, true);
    const bool hadFocus = m_greeting->button().hasFocus();
    m_greeting->hide();
    m_greeting->deleteLater();
    m_greeting.clear();
    if (hadFocus) {
        takeFocus();
    }
}

void HomeViewController::fitFont()
{
    m_ui->recentsColumn->setFixedWidth(widthWithDesktopFont(kColumnWidth));
}

void HomeViewController::connectControls()
{
    connect(&openButton(), &QPushButton::clicked, this, &HomeViewController::openFolder);
    connect(&scanButton(), &QPushButton::clicked, this, &HomeViewController::scanSelected);
    connect(&clearRecentsButton(), &QPushButton::clicked, this, &HomeViewController::clearList);
    m_view->installEventFilter(this);
}

bool HomeViewController::eventFilter(QObject* watched, QEvent* event)
{
    const bool isKey = watched == m_view.get() && event->type() == QEvent::KeyPress;
    const int key = isKey ? dynamic_cast<QKeyEvent*>(event)->key() : 0;
    if (key == Qt::Key_Escape && m_greeting != nullptr) {
        endGreeting();
        return true;
    }
    if (key != Qt::Key_Return && key != Qt::Key_Enter) {
        return QObject::eventFilter(watched, event);
    }
    auto* const focused = qobject_cast<QAbstractButton*>(m_view->focusWidget());
    (focused != nullptr && focused->hasFocus() ? *focused : scanButton()).click();
    return true;
}

void HomeViewController::connectGrid()
{
    SectionedCollectionView::Handlers handlers;
    handlers.didSelectView = [this](CollectionItemView& item, int, int) {
        item.setSelected(true);
        // Without a current row either, from which an arrow would go on later.
        recentsTable().selectionModel()->clear();
        updateButtons();
    };
    handlers.didDeselectView = [](CollectionItemView& item, int, int) { item.setSelected(false); };
    handlers.didDoubleClickView = [this](CollectionItemView& item, int, int) {
        // It was deselected just before, and is what stays selected should the scan be cancelled.
        item.setSelected(true);
        scanSelected();
    };
    locationsCollection().setHandlers(std::move(handlers));
    m_ui->locationsScrollView->viewport()->setBackgroundRole(QPalette::Base);
    locationsCollection().setScrollView(m_ui->locationsScrollView);
}

void HomeViewController::loadVolumes()
{
    m_volumes = m_services.volumes.mountedVolumes();
    for (const MountedVolume& volume : m_volumes) {
        askForSizes(volume.url.path());
    }
}

void HomeViewController::loadLocations()
{
    if (m_model.isRunningAsRoot()) {
        return;
    }
    m_foundLocations.resize(m_candidates.size());
    for (std::size_t place = 0; place < m_candidates.size(); ++place) {
        askForLocation(place, m_candidates[place]);
    }
}

/// What does not answer now is shown with what it said before.
void HomeViewController::reload()
{
    loadVolumes();
    m_isGridLoaded = false;
    loadLocations();
    m_questions.waitBriefly(kHomeScreenPatience);
    m_isGridLoaded = true;
    showSections();
    m_model.recents().reload();
    m_recents->reload();
    updateButtons();
}

void HomeViewController::askForSizes(const std::string& path)
{
    using Sizes = std::optional<FileSystemSizes>;
    m_questions.ask<Sizes>(
        [attributes = m_services.fileSystemAttributes, path] {
            return attributes->attributesOfFileSystem(path);
        },
        [this, path](const Sizes& sizes) {
            m_sizes.insert_or_assign(path, sizes);
            for (auto* const view : m_view->findChildren<VolumeCollectionView*>()) {
                if (view->url().path() == path) {
                    view->setFileSystemSizes(sizes);
                }
            }
        });
}

void HomeViewController::askForLocation(std::size_t place, const LocationCandidate& candidate)
{
    m_questions.ask<std::optional<Location>>(
        [resourceValues = m_services.resourceValues, candidate] {
            return firstDirectory(candidate, *resourceValues);
        },
        [this, place](const std::optional<Location>& found) {
            m_foundLocations[place] = found;
            if (m_isGridLoaded) {
                showSections();
            }
        });
}

/// The user may have chosen something in the grid, whose place may be another now.
void HomeViewController::showSections()
{
    const int section = locationsCollection().selectedSection();
    const Url* const selected = selectedUrl();
    const Url kept = selected != nullptr ? *selected : Url();
    takeLocations();
    locationsCollection().setSections(sections());
    if (section >= 0) {
        selectUrl(section, kept);
    }
    updateButtons();
}

void HomeViewController::selectUrl(int section, const Url& url)
{
    const std::size_t count = section == kVolumes ? m_volumes.size() : m_locations.size();
    for (int index = 0; index < static_cast<int>(count); ++index) {
        if (*urlAt(section, index) == url) {
            locationsCollection().selectItem(section, index);
        }
    }
}

void HomeViewController::takeLocations()
{
    m_locations.clear();
    for (const std::optional<Location>& found : m_foundLocations) {
        if (found) {
            m_locations.push_back(*found);
        }
    }
    m_locations = withoutRepeatedFolders(m_locations);
}

void HomeViewController::loadRecents()
{
    // NOLINTBEGIN(cppcoreguidelines-owning-memory): the view owns them
    m_recents = new RecentsTableModel(m_model.recents(), m_view.get());
    auto* const cell = new RecentsTableCell(
        {m_services.volumes,
         m_services.homeDirectory,
         m_realHomeDirectory,
         [this](const Url& folder) { return m_places.look(folder).icon; },
         m_services.today},
        m_view.get());
    // NOLINTEND(cppcoreguidelines-owning-memory)
    QListView& table = recentsTable();
    table.setModel(m_recents);
    table.setItemDelegate(cell);
    table.setCurrentIndex(m_recents->index(0));
    connect(&table, &QListView::doubleClicked, this, &HomeViewController::scanSelected);
    connect(
        table.selectionModel(),
        &QItemSelectionModel::selectionChanged,
        this,
        &HomeViewController::recentSelected);
}

void HomeViewController::takeFocus()
{
    if (m_recents->rowCount() > 0 && selectedUrl() == nullptr) {
        recentsTable().setFocus();
    } else {
        locationsCollection().setFocus();
    }
}

void HomeViewController::setEnabled(bool enabled)
{
    m_enabled = enabled;
    if (!enabled) {
        // A scan has begun: the user knows how.
        endGreeting();
    }
    openButton().setEnabled(enabled);
    recentsTable().setEnabled(enabled);
    locationsCollection().setInteractive(enabled);
    showUsable(locationsCollection(), enabled);
    scanButton().setVisible(enabled);
    clearRecentsButton().setVisible(enabled);
    updateButtons();
}

void HomeViewController::updateButtons()
{
    const bool isSelected = selectedRecent() >= 0 || selectedUrl() != nullptr;
    const bool hasRecents = m_recents->rowCount() > 0;
    recentsTable().setAccessibleDescription(
        hasRecents ? QString() : RecentsTableView::placeholder());
    scanButton().setEnabled(m_enabled && isSelected);
    scanButton().setToolTip(
        isSelected ? tr("Scan what is selected")
                   : tr("Select a disk, a folder or a recent scan first."));
    clearRecentsButton().setEnabled(m_enabled && hasRecents);
    clearRecentsButton().setToolTip(
        hasRecents ? tr("Empty the list of recent scans") : tr("There are no recent scans."));
}

void HomeViewController::scanSelected()
{
    const int row = selectedRecent();
    const Url* const inGrid = selectedUrl();
    if (row < 0 && inGrid == nullptr) {
        return;
    }
    const Url url = row < 0 ? *inGrid : Url(m_recents->record(row).path, true);
    logLine("scanning %s", url.absoluteString().c_str());
    emit scanUrl(url);
}

/// In the grid; null when nothing is.
const Url* HomeViewController::selectedUrl() const
{
    const int section = locationsCollection().selectedSection();
    const int index = locationsCollection().selectedIndex();
    return section < 0 || index < 0 ? nullptr : urlAt(section, index);
}

const Url* HomeViewController::urlAt(int section, int index) const
{
    const auto place = static_cast<std::size_t>(index);
    return section == kVolumes ? &m_volumes.at(place).url : &m_locations.at(place).url;
}

void HomeViewController::clearList()
{
    m_model.recents().clearList();
    m_recents->reload();
    updateButtons();
}

void HomeViewController::recentSelected()
{
    if (selectedRecent() >= 0) {
        locationsCollection().deselectAll();
    }
    updateButtons();
}

int HomeViewController::selectedRecent() const
{
    const QModelIndexList rows = recentsTable().selectionModel()->selectedIndexes();
    return rows.isEmpty() ? -1 : rows.first().row();
}

std::vector<CollectionSection> HomeViewController::sections() const
{
    CollectionSection disks = emptySection(tr("Disks"), kLeastVolumeWidth, kGreatestVolumeWidth);
    for (const MountedVolume& volume : m_volumes) {
        disks.items.push_back(volumeView(volume));
    }
    disks.placeholder = sectionPlaceholder(
        tr("Disks appear here when they are mounted. Reload in the View menu looks for them."));
    CollectionSection locations
        = emptySection(tr("Locations"), kLeastLocationWidth, kGreatestLocationWidth);
    locations.placeholder = sectionPlaceholder(
        m_model.isRunningAsRoot()
            ? tr("A user's own folders appear here, and the administrator has none. Open Folder "
                 "scans any other.")
            : tr("Your folders, such as Downloads and Music, appear here when there are any."));
    for (const Location& location : m_locations) {
        locations.items.push_back(locationView(location));
    }
    std::vector<CollectionSection> result;
    result.push_back(std::move(disks));
    result.push_back(std::move(locations));
    return result;
}

std::unique_ptr<CollectionItemView> HomeViewController::volumeView(
    const MountedVolume& volume) const
{
    auto view = std::make_unique<VolumeCollectionView>();
    view->setUrl(volume.url, volumeIcon(volume.kind));
    const auto sizes = m_sizes.find(volume.url.path());
    if (sizes != m_sizes.end()) {
        view->setFileSystemSizes(sizes->second);
    }
    return highEnough(std::move(view));
}

std::unique_ptr<CollectionItemView> HomeViewController::locationView(const Location& location) const
{
    auto view = std::make_unique<FolderCollectionView>();
    // The home folder itself says where it is; of what is in it the way from there says more.
    const std::string& path = location.url.path();
    const bool isHome = path == m_services.homeDirectory || path == m_realHomeDirectory;
    view->setUrl(
        location.url,
        locationIcon(location.kind),
        localizedLocationName(location),
        isHome ? QString() : pathWithTilde(path, m_realHomeDirectory));
    return highEnough(std::move(view));
}

} // namespace tessera
