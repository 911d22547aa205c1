// SPDX-License-Identifier: MIT
#pragma once

#include "Layout/MultiLayoutObject.h"
#include "Model/TooltipType.h"
#include "TreeScreen/Map/TreeMapView.h"
#include "TreeScreen/Picture/TreeBranch.h"
#include "TreeScreen/Tooltip/TooltipController.h"
#include "TreeScreen/Tooltip/TooltipField.h"
#include "TreeScreen/Tooltip/TooltipPlacement.h"
#include "support/BecomesActive.h"
#include "support/Fakes/FakeFileSystem.h"
#include "support/Fakes/FakeIconProvider.h"
#include "support/Fakes/FakeUserDefaults.h"
#include "support/MakeTree.h"

#include <QApplication>
#include <QScreen>
#include <QTest>
#include <QWindow>

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

namespace tessera::test {

inline constexpr QPoint kInNested(60, 80);
inline constexpr QPoint kInDocsHeader(60, 12);
inline constexpr QPoint kInA(250, 100);
inline constexpr QPoint kInGroup(350, 100);
inline constexpr QPoint kInMargin(1, 150);
inline constexpr QPoint kBesideTheMap(450, 100);

inline std::unique_ptr<LayoutObject> box(File* node, const Rect& rect)
{
    auto item = std::make_unique<LayoutObject>();
    item->ref = node;
    item->rect = rect;
    item->totalAllocation = node->size();
    return item;
}

/// A window with the map at the left and a plain widget at the right. The map shows a folder with
/// a level nested in it, a document and a group.
class TreeMapViewTest : public testing::Test {
protected:
    TreeMapViewTest()
    {
        values.modificationDate = 0;
        tooltip().setResourceValues(&values);
        tooltip().setIconProvider(&icons);
        setTooltipType(defaults, TooltipType::Full);
        view->setGeometry(0, 0, 400, 300);
        neighbour.setParent(&window);
        neighbour.setGeometry(400, 0, 100, 300);
        neighbour.setMouseTracking(true);
        window.setGeometry(100, 100, 500, 300);
        addBranches();
        window.show();
        window.activateWindow();
        EXPECT_TRUE(test::becomesActive(window));
    }

    ~TreeMapViewTest() override
    {
        // Qt tells nobody of a pointer that stays where it is, not even the next test's window.
        moveTo(kBesideTheMap);
        tooltip().window().hide();
        tooltip().setResourceValues(nullptr);
        tooltip().setIconProvider(nullptr);
    }

    void addBranches()
    {
        auto nested = std::make_unique<TreeBranch>(Rect{11, 27, 184, 168});
        std::vector<std::unique_ptr<LayoutObject>> nestedItems;
        nestedItems.push_back(box(&x, {0, 0, 184, 168}));
        nested->setLayoutItems(std::move(nestedItems));
        nested->setLevel(1);

        auto top = std::make_unique<TreeBranch>(Rect{0, 0, 400, 300});
        std::vector<std::unique_ptr<LayoutObject>> items;
        items.push_back(box(&docs, {3, 3, 200, 294}));
        items.push_back(box(&a, {203, 3, 100, 294}));
        auto group = std::make_unique<MultiLayoutObject>();
        group->refs = {&b, &c};
        group->rect = {303, 3, 94, 294};
        items.push_back(std::move(group));
        top->setLayoutItems(std::move(items));
        topBranch = top.get();
        nestedBranch = nested.get();
        top->addSubBranch(std::move(nested));
        view->addBranch(std::move(top));
    }

    void moveTo(QPoint point) { QTest::mouseMove(window.windowHandle(), point); }

    static TooltipController& tooltip() { return TooltipController::sharedInstance(); }
    static bool isTooltipShown() { return tooltip().window().isVisible(); }
    static QRect tooltipGeometry() { return tooltip().window().geometry(); }

    static std::string shownText(const char* name)
    {
        const auto* field = tooltip().window().findChild<TooltipField*>(QLatin1String(name));
        return field->text().toStdString();
    }

    QRect expectedFrame(QPoint point, double height) const
    {
        return tooltipFrame(window.mapToGlobal(point), {210, height}, window.screen()->geometry())
            .toRect();
    }

    std::unique_ptr<TopFolder> tree = makeTree("/home/anna", "docs/ ( x:900 ) a:800 b:700 c:600");
    File& docs = at(*tree, "docs");
    File& x = at(*tree, "docs/x");
    File& a = at(*tree, "a");
    File& b = at(*tree, "b");
    File& c = at(*tree, "c");
    FakeUserDefaults defaults;
    FakeResourceValues values;
    FakeIconProvider icons;
    QWidget window;
    QWidget neighbour;
    std::unique_ptr<TreeMapView> ownedView = std::make_unique<TreeMapView>(defaults, &window);
    TreeMapView* view = ownedView.get();
    TreeBranch* topBranch = nullptr;
    TreeBranch* nestedBranch = nullptr;
};

} // namespace tessera::test
