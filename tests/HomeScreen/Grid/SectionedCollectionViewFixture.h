// SPDX-License-Identifier: MIT
#pragma once

#include "HomeScreen/Grid/CollectionItemView.h"
#include "HomeScreen/Grid/SectionedCollectionView.h"
#include "ShownViews.h"
#include "support/BecomesActive.h"

#include <QTest>

#include <gtest/gtest.h>

#include <algorithm>
#include <iterator>
#include <memory>
#include <string>
#include <vector>

namespace tessera::test {

inline constexpr int kHeaderHeight = 30;
inline constexpr int kItemHeight = 72;

class PlainItem final : public CollectionItemView {
public:
    bool unavailable() const override { return isUnavailable; }
    void setSelected(bool /*selected*/) override { }

    bool isUnavailable = false;
};

struct Section {
    int count = 0;
    double minimumWidth = 0;
    double maximumWidth = 0;
};

inline CollectionSection madeSection(const Section& section)
{
    CollectionSection result;
    result.header = std::make_unique<QWidget>();
    result.header->resize(1, kHeaderHeight);
    for (int index = 0; index < section.count; ++index) {
        result.items.push_back(std::make_unique<PlainItem>());
        result.items.back()->resize(1, kItemHeight);
    }
    result.minimumWidth = static_cast<float>(section.minimumWidth);
    result.maximumWidth = static_cast<float>(section.maximumWidth);
    return result;
}

inline std::vector<CollectionSection> made(const std::vector<Section>& sections)
{
    std::vector<CollectionSection> result;
    result.reserve(sections.size());
    std::ranges::transform(sections, std::back_inserter(result), madeSection);
    return result;
}

inline std::string toText(const std::string& what, int section, int index)
{
    return what + ' ' + std::to_string(section) + '.' + std::to_string(index);
}

/// A grid of plain items in surroundings of a given width, and what it tells.
class SectionedCollectionViewFixture : public testing::Test {
protected:
    void show(const std::vector<Section>& sections, int width)
    {
        surroundings.resize(width, 1000);
        view.setHandlers(handlers);
        view.setSections(made(sections));
        surroundings.show();
        told.clear();
    }

    void focus(Qt::FocusReason reason)
    {
        ASSERT_TRUE(becomesActive(surroundings));
        view.clearFocus();
        view.setFocus(reason);
    }

    SectionedCollectionView::Handler tell(const std::string& what)
    {
        return [this, what](CollectionItemView&, int section, int index) {
            told.push_back(toText(what, section, index));
        };
    }

    /// By its place among all headers and items.
    PlainItem& item(std::size_t place)
    {
        return dynamic_cast<PlainItem&>(*shownViews(view).at(place));
    }

    std::vector<QRect> frames() const
    {
        std::vector<QRect> result;
        for (const QWidget* shown : shownViews(view)) {
            result.push_back(shown->geometry());
        }
        return result;
    }

    void click(std::size_t place)
    {
        QTest::mouseClick(&view, Qt::LeftButton, {}, item(place).geometry().center());
    }

    void doubleClick(std::size_t place)
    {
        QTest::mouseDClick(&view, Qt::LeftButton, {}, item(place).geometry().center());
    }

    std::string selection() const
    {
        return toText("selected", view.selectedSection(), view.selectedIndex());
    }

    QWidget surroundings;
    SectionedCollectionView view{&surroundings};
    std::vector<std::string> told;
    SectionedCollectionView::Handlers handlers{tell("select"), tell("deselect"), tell("double")};
};

} // namespace tessera::test
