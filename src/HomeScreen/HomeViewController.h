// SPDX-License-Identifier: MIT
#pragma once

#include "Desktop/MountedVolumes.h"
#include "HomeScreen/HomeViewServices.h"
#include "HomeScreen/Places/KnownPlaces.h"
#include "HomeScreen/Places/Locations.h"
#include "Model/FileSystemAttributes.h"
#include "Widgets/BackgroundQuestions.h"

#include <QObject>
#include <QPointer>

#include <map>
#include <memory>
#include <optional>
#include <string>
#include <vector>

class QListView;
class QPushButton;

namespace Ui {
class HomeView;
}

namespace tessera {

class CollectionItemView;
class GreetingView;
class HoverButton;
class RecentsTableModel;
class RootModel;
class SectionedCollectionView;
class VolumeCollectionView;
struct CollectionSection;

/// The screen from which every scan starts: the mounted volumes and the user's well-known folders
/// in a grid, and the recent scans. Scans nothing itself.
///
/// A file system that is slow to answer delays nothing: its volume is shown with an empty bar, its
/// folder is left out, and both are made good when the answer comes.
class HomeViewController final : public QObject {
    Q_OBJECT

public:
    /// Reads volumes and locations anew. The model and the services must outlive it.
    HomeViewController(RootModel& model, const HomeViewServices& services);
    ~HomeViewController() override;

    /// The screen, owned by this object. A window that takes it in must let go of this object
    /// before it goes away itself.
    QWidget& view() const { return *m_view; }

    HoverButton& openButton() const;
    SectionedCollectionView& locationsCollection() const;
    QListView& recentsTable() const;
    QPushButton& scanButton() const;
    QPushButton& clearRecentsButton() const;

    const std::vector<MountedVolume>& volumes() const { return m_volumes; }
    const std::vector<Location>& locations() const { return m_locations; }

    /// Whether the screen can be used. While it cannot, what it does is hidden or pale. Buttons are
    /// enabled only where they have something to do.
    bool enabled() const { return m_enabled; }
    void setEnabled(bool enabled);

    /// Reads volumes, their sizes and locations anew. What is selected in the grid stays selected
    /// while it is there.
    void reload();

    /// Gives the keyboard to where the selection is; with nothing selected to the recent scans or,
    /// where there are none, to the grid.
    void takeFocus();

    /// Scans what is selected, in the list of recent scans before the grid; else does nothing.
    void scanSelected();

    /// Empties the list of recent scans.
    void clearList();

signals:
    /// The open button was clicked: a folder is to be chosen.
    void openFolder();
    /// That folder is to be scanned.
    void scanUrl(const Url& url);

private:
    /// Enter presses the focused button, or else the scan button.
    bool eventFilter(QObject* watched, QEvent* event) override;

    void loadView();
    void connectControls();
    void connectGrid();
    void fitFont();
    void greet();
    void endGreeting();
    void updateButtons();
    void loadVolumes();
    void loadLocations();
    void showSections();
    void askForSizes(const std::string& path);
    void askForLocation(std::size_t place, const LocationCandidate& candidate);
    void takeLocations();
    void selectUrl(int section, const Url& url);
    void loadRecents();
    void recentSelected();
    int selectedRecent() const;
    const Url* selectedUrl() const;
    const Url* urlAt(int section, int index) const;
    std::vector<CollectionSection> sections() const;
    std::unique_ptr<CollectionItemView> volumeView(const MountedVolume& volume) const;
    std::unique_ptr<CollectionItemView> locationView(const Location& location) const;

    RootModel& m_model;
    HomeViewServices m_services;
    std::string m_realHomeDirectory;
    std::vector<LocationCandidate> m_candidates;
    KnownPlaces m_places;
    std::vector<MountedVolume> m_volumes;
    std::vector<Location> m_locations;
    std::vector<std::optional<Location>> m_foundLocations; ///< by the candidates' places
    /// Of the volumes that have answered, by path; nothing for one that could not say.
    std::map<std::string, std::optional<FileSystemSizes>> m_sizes;
    RecentsTableModel* m_recents = nullptr;
    QPointer<GreetingView> m_greeting; ///< on the first start; the screen owns it
    bool m_enabled = true;
    bool m_isGridLoaded = false;
    std::unique_ptr<QWidget> m_view;
    std::unique_ptr<Ui::HomeView> m_ui;
    BackgroundQuestions m_questions;
};

} // namespace tessera
