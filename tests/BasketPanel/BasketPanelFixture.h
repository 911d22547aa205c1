// SPDX-License-Identifier: MIT
#pragma once

#include "Basket/BasketKeeper.h"
#include "BasketPanel/BasketList.h"
#include "BasketPanel/BasketPanel.h"
#include "BasketPanel/WillFreeView.h"
#include "Freeing/FreedSpace.h"
#include "HeardAnswers.h"
#include "Model/TopFolder.h"
#include "support/Fakes/FakeFreeingServices.h"
#include "support/MakeTree.h"

#include <QLabel>
#include <QPushButton>
#include <QTest>
#include <QTimer>

#include <gtest/gtest.h>

#include <algorithm>
#include <memory>
#include <string_view>
#include <vector>

namespace tessera::test {

/// A panel for the basket of a small tree.
class BasketPanelFixture : public testing::Test {
protected:
    BasketPanelFixture()
    {
        QObject::connect(
            &panel, &BasketPanel::moveAllRequested, &panel, [this](const FreedSpace& freed) {
                moveRequests.push_back(freed);
            });
    }

    File& at(std::string_view path) { return test::at(*tree, path); }

    void add(std::initializer_list<std::string_view> paths)
    {
        for (const std::string_view path : paths) {
            keeper.add(at(path));
        }
    }

    void open()
    {
        panel.resize(300, 500);
        panel.show();
        QCoreApplication::processEvents();
    }

    /// Whether there is a change that it has not shown.
    bool isBehind() const
    {
        const auto timers = panel.findChildren<QTimer*>();
        return std::ranges::any_of(timers, [](const QTimer* timer) {
            return timer->isActive() && timer->interval() == BasketPanel::kTogetherMilliseconds;
        });
    }

    bool catchesUp()
    {
        return QTest::qWaitFor([this] { return !isBehind(); });
    }

    template <typename Widget>
    Widget& part(const char* name) const
    {
        return *panel.findChild<Widget*>(QString::fromLatin1(name));
    }

    QString text(const char* name) const { return part<QLabel>(name).text(); }
    QPushButton& button(const char* name) const { return part<QPushButton>(name); }
    BasketList& list() const { return part<BasketList>("basketList"); }
    QString freed(const char* name) const { return part<WillFreeView>(name).accessibleName(); }

    std::unique_ptr<TopFolder> tree = makeTree("/home/me", "docs/ ( a:700 b:100 ) c:50 d:20");
    FakeFreeingServices freeing;
    HeardAnswers disk;
    FakeMainThread keeperThread;
    BasketKeeper keeper{freeing.itemStates, keeperThread};
    BasketPanel panel{keeper, freeing.get(), disk.mainThread(), std::chrono::minutes(1)};
    std::vector<FreedSpace> moveRequests;
};

} // namespace tessera::test
