// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>

#include <memory>

namespace tessera {

class CollectionItemView;

/// Says what a SectionedCollectionView shows. Sections and indices count from 0.
class SectionedCollectionViewDataSource {
public:
    SectionedCollectionViewDataSource() = default;
    SectionedCollectionViewDataSource(const SectionedCollectionViewDataSource&) = delete;
    SectionedCollectionViewDataSource& operator=(const SectionedCollectionViewDataSource&) = delete;
    virtual ~SectionedCollectionViewDataSource() = default;

    [[nodiscard]] virtual int numberOfSections() const = 0;
    [[nodiscard]] virtual int numberOfViewsInSection(int section) const = 0;

    /// A new view, to be shown above the section's items at its own height.
    [[nodiscard]] virtual std::unique_ptr<QWidget> headerForSection(int section) = 0;

    /// The least and the greatest width of the section's items, in points; a greatest width of 0
    /// or less means that there is no limit.
    [[nodiscard]] virtual double minimumWidthInSection(int section) const = 0;
    [[nodiscard]] virtual double maximumWidthInSection(int section) const = 0;

    /// A new view, to be shown at its own height; all items of a section are of one height.
    [[nodiscard]] virtual std::unique_ptr<CollectionItemView> viewForSection(int section, int index)
        = 0;
};

} // namespace tessera
