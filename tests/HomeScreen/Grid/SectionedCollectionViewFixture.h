// SPDX-License-Identifier: MIT
#pragma once

#include "HomeScreen/Grid/CollectionItemView.h"
#include "HomeScreen/Grid/SectionedCollectionView.h"
#include "HomeScreen/Grid/SectionedCollectionViewDataSource.h"
#include "HomeScreen/Grid/SectionedCollectionViewDelegate.h"
#include "support/BecomesActive.h"

#include <QTest>

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace tessera::test {

inline constexpr int kHeaderHeight = 30;
inline constexpr int kItemHeight = 72;

class PlainItem final : public CollectionItemView {
public:
    bool disabled() const override { return isDisabled; }

    bool isDisabled = false;
};

struct Section {
    int count = 0;
    double minimumWidth = 0;
    double maximumWidth = 0;
};

class FixedSections final : public SectionedCollectionViewDataSource {
public:
    explicit FixedSections(std::vector<Section> given)
        : sections(std::move(given))
    {
    }

    int numberOfSections() const override { return static_cast<int>(sections.size()); }
    int numberOfViewsInSection(int section) const override { return at(section).count; }
    double minimumWidthInSection(int section) const override { return at(section).minimumWidth; }
    double maximumWidthInSection(int section) const override { return at(section).maximumWidth; }

    std::unique_ptr<QWidget> headerForSection(int /*section*/) override
    {
        auto header = std::make_unique<QWidget>();
        header->resize(1, kHeaderHeight);
        return header;
    }

    std::unique_ptr<CollectionItemView> viewForSection(int /*section*/, int /*index*/) override
    {
        auto item = std::make_unique<PlainItem>();
        item->resize(1, kItemHeight);
        return item;
    }

    std::vector<Section> sections;

private:
    const Section& at(int section) const { return sections.at(static_cast<std::size_t>(section)); }
};

inline std::string toText(const std::string& what, int section, int index)
{
    return what + ' ' + std::to_string(section) + '.' + std::to_string(index);
}

/// A grid of plain items in surroundings of a given width, and what it tells its delegate.
class SectionedCollectionViewFixture : public testing::Test {
protected:
    void show(std::vector<Section> sections, int width)
    {
        dataSource.sections = std::move(sections);
        surroundings.resize(width, 1000);
        view.setDataSource(&dataSource);
        view.setDelegate(&delegate);
        view.reloadData();
        surroundings.show();
        told.clear();
    }

    void focus(Qt::FocusReason reason)
    {
        ASSERT_TRUE(becomesActive(surroundings));
        view.clearFocus();
        view.setFocus(reason);
    }

    SectionedCollectionViewDelegate::Message tell(const std::string& what)
    {
        return [this, what](CollectionItemView&, int section, int index) {
            told.push_back(toText(what, section, index));
        };
    }

    PlainItem& item(std::size_t metric)
    {
        return dynamic_cast<PlainItem&>(*view.layoutMetrics().at(metric).view);
    }

    std::vector<QRect> frames() const
    {
        std::vector<QRect> result;
        for (const auto& metric : view.layoutMetrics()) {
            result.push_back(metric.view->geometry());
        }
        return result;
    }

    void click(std::size_t metric)
    {
        QTest::mouseClick(&view, Qt::LeftButton, {}, item(metric).geometry().center());
    }

    void doubleClick(std::size_t metric)
    {
        QTest::mouseDClick(&view, Qt::LeftButton, {}, item(metric).geometry().center());
    }

    std::string selection() const
    {
        return toText("selected", view.selectedSection(), view.selectedIndex());
    }

    QWidget surroundings;
    SectionedCollectionView view{&surroundings};
    FixedSections dataSource{{}};
    std::vector<std::string> told;
    SectionedCollectionViewDelegate delegate{tell("select"), tell("deselect"), tell("double")};
};

} // namespace tessera::test
