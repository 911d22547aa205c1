// SPDX-License-Identifier: MIT
#pragma once

#include "Desktop/OpenPanel.h"
#include "MainWindow/HomeScreen.h"
#include "MainWindow/MainWindowServices.h"
#include "MainWindow/ScanScreen.h"
#include "Model/RootModel.h"
#include "support/Fakes/FakeFreeingServices.h"
#include "support/Fakes/FakeLedgerServices.h"
#include "support/Fakes/FakePlaces.h"
#include "support/Fakes/FakeRootModelServices.h"
#include "support/Fakes/FakeTreeViewServices.h"

#include <QLabel>
#include <QPointer>
#include <QVBoxLayout>
#include <QWidget>

#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace tessera::test {

/// What became of the screens that a main window made.
struct ScreenRecord {
    int homeScreens = 0; ///< that exist now
    int homeScreensMade = 0;
    int scanScreens = 0;
    std::vector<std::string> scanned; ///< paths
    QPointer<HomeScreen> homeScreen; ///< the latest
    QWidget* home = nullptr; ///< its view
    QPointer<ScanScreen> scanScreen;
    QWidget* scan = nullptr;
    int leastScanHeight = 0; ///< what the scan panels to come need
    bool homeEnabled = true;
    int homeFocused = 0; ///< how often a home screen was given the keyboard
    int homeReloaded = 0;
};

class FakeHomeScreen final : public HomeScreen {
public:
    explicit FakeHomeScreen(ScreenRecord& record)
        : m_record(record)
    {
        ++record.homeScreens;
        ++record.homeScreensMade;
        record.homeScreen = this;
        record.home = m_view.get();
        record.homeEnabled = true;
    }
    ~FakeHomeScreen() override { --m_record.homeScreens; }

    QWidget& view() const override { return *m_view; }
    void setEnabled(bool enabled) override { m_record.homeEnabled = enabled; }
    void reload() override { ++m_record.homeReloaded; }
    void takeFocus() override { ++m_record.homeFocused; }

private:
    ScreenRecord& m_record;
    std::unique_ptr<QWidget> m_view = std::make_unique<QWidget>();
};

class FakeScanScreen final : public ScanScreen {
public:
    explicit FakeScanScreen(ScreenRecord& record)
        : m_record(record)
    {
        ++record.scanScreens;
        record.scanScreen = this;
        record.scan = m_view.get();
        // Only a text that is wrapped depends on the width, as the panel's tip does.
        // NOLINTBEGIN(cppcoreguidelines-owning-memory): the view owns them
        auto* const layout = new QVBoxLayout(m_view.get());
        auto* const text = new QLabel(QStringLiteral("tip"));
        // NOLINTEND(cppcoreguidelines-owning-memory)
        layout->setContentsMargins({});
        text->setWordWrap(true);
        text->setMinimumHeight(record.leastScanHeight);
        layout->addWidget(text);
    }
    ~FakeScanScreen() override { --m_record.scanScreens; }

    QWidget& view() const override { return *m_view; }
    void startScanning(const Url& url) override { m_record.scanned.push_back(url.path()); }

private:
    ScreenRecord& m_record;
    std::unique_ptr<QWidget> m_view = std::make_unique<QWidget>();
};

/// Chooses what the test says, when the test says so.
class FakeOpenPanel final : public OpenPanel {
public:
    void begin(QWidget& /*window*/, Completion completion) override
    {
        ++shown;
        m_completion = std::move(completion);
    }

    void choose(const std::vector<Url>& urls) { m_completion(urls); }

    int shown = 0;

private:
    Completion m_completion;
};

/// All that a MainWindowController needs; its clock stands still.
struct FakeMainWindowServices {
    FakeTreeViewServices treeScreen;
    FakeRootModelServices rootModel;
    RootModel model{rootModel.get()};
    FakeOpenPanel openPanel;
    FakeMountedVolumes volumes;
    FakeLedgerServices ledger;
    FakeFreeingServices freeing;
    ScreenRecord screens;
    double now = 100;

    MainWindowServices get()
    {
        return {
            .model = model,
            .treeScreen = treeScreen.get(),
            .defaults = rootModel.defaults,
            .openPanel = openPanel,
            .volumes = volumes,
            .ledger = ledger.get(),
            .freeing = freeing.get(),
            .makeHomeScreen = [this] { return std::make_unique<FakeHomeScreen>(screens); },
            .makeScanScreen = [this] { return std::make_unique<FakeScanScreen>(screens); },
            .slideClock = [this] { return now; }};
    }
};

} // namespace tessera::test
