// SPDX-License-Identifier: MIT
#include "MainWindow/MainWindowScreens.h"

#include "HomeScreen/HomeViewController.h"
#include "ScanScreen/ScanningViewController.h"

namespace tessera {

namespace {

class Home final : public HomeScreen {
public:
    Home(RootModel& model, const HomeViewServices& services)
        : m_homeVC(model, services)
    {
        connect(&m_homeVC, &HomeViewController::scanUrl, this, &HomeScreen::scanUrl);
        connect(&m_homeVC, &HomeViewController::openFolder, this, &HomeScreen::openFolder);
    }

    QWidget& view() const override { return m_homeVC.view(); }
    void setEnabled(bool enabled) override { m_homeVC.setEnabled(enabled); }
    void reload() override { m_homeVC.reload(); }
    void takeFocus() override { m_homeVC.takeFocus(); }

private:
    HomeViewController m_homeVC;
};

class Scan final : public ScanScreen {
public:
    Scan(RootModel& model, const ScanningServices& services)
        : m_scanVC(model, services)
    {
        connect(&m_scanVC, &ScanningViewController::scanComplete, this, &ScanScreen::scanComplete);
        connect(
            &m_scanVC,
            qOverload<>(&ScanningViewController::scanCancelled),
            this,
            &ScanScreen::scanCancelled);
    }

    QWidget& view() const override { return m_scanVC.view(); }
    void startScanning(const Url& url) override { m_scanVC.startScanning(url); }

private:
    ScanningViewController m_scanVC;
};

} // namespace

std::unique_ptr<HomeScreen> makeHomeScreen(RootModel& model, const HomeViewServices& services)
{
    return std::make_unique<Home>(model, services);
}

std::unique_ptr<ScanScreen> makeScanScreen(RootModel& model, const ScanningServices& services)
{
    return std::make_unique<Scan>(model, services);
}

} // namespace tessera
