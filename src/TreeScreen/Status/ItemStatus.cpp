// SPDX-License-Identifier: MIT
#include "TreeScreen/Status/ItemStatus.h"

#include "Base/DisplayText.h"
#include "Language/NodeName.h"
#include "Language/PluralNumber.h"
#include "Language/SizeText.h"
#include "Layout/MultiLayoutObject.h"
#include "Model/NodeLookup.h"
#include "Model/Volume.h"
#include "TreeScreen/Tooltip/OtherNameText.h"

#include <QCoreApplication>
#include <QLocale>

#include <algorithm>
#include <cstdint>

namespace tessera {

namespace {

constexpr double kPercent = 100;
constexpr double kLeastPercent = 0.1; ///< that one decimal can tell

struct ItemStatusTexts {
    Q_DECLARE_TR_FUNCTIONS(ItemStatusTexts)
};

/// That of the file system's root is its path.
QString nameOrPath(const File& node)
{
    return node.name().empty() ? displayText(node.absolutePath()) : shownName(node);
}

QString sizeOnDisk(double bytes)
{
    return sizeText(static_cast<std::uint64_t>(bytes));
}

/// A disk is as large as its picture: what is free belongs to that, and to no size in the tree.
double wholeSize(const Folder& whole)
{
    const auto* const disk = nodeCast<Volume>(static_cast<const File*>(&whole));
    return disk == nullptr ? whole.size() : static_cast<double>(disk->volumeSize());
}

/// Empty where there is none to tell.
QString shareText(double bytes, const Folder& whole)
{
    const double all = wholeSize(whole);
    if (all <= 0 || bytes > all) {
        return {};
    }
    const double percent = bytes / all * kPercent;
    const QLocale locale;
    const QString name = nameOrPath(whole);
    if (bytes > 0 && percent < kLeastPercent) {
        return ItemStatusTexts::tr("less than %1% of %2")
            .arg(locale.toString(kLeastPercent, 'f', 1), name);
    }
    return ItemStatusTexts::tr("%1% of %2").arg(locale.toString(percent, 'f', 1), name);
}

QString countText(std::size_t count)
{
    return count == 1 ? ItemStatusTexts::tr("1 item")
                      : ItemStatusTexts::tr("%1 items", nullptr, pluralNumber(count))
                            .arg(QLocale().toString(qulonglong{count}));
}

/// A disk's own folder holds nodes that are no items, and no other folder does.
std::size_t itemCount(const Folder& folder)
{
    const ChildArray& children = folder.children();
    if (nodeCast<Volume>(static_cast<const File*>(&folder)) == nullptr) {
        return children.size();
    }
    return static_cast<std::size_t>(std::count_if(
        children.begin(), children.end(), [](const File* child) { return isItem(*child); }));
}

/// What the item's share is of; null for all that was scanned.
const Folder* wholeFor(const File& item, const Folder& inView)
{
    const Folder* const whole = &item == &inView ? rootOfScan(inView) : &inView;
    return whole == &item ? nullptr : whole;
}

} // namespace

ItemStatus statusOf(const File& item, const Folder& inView)
{
    ItemStatus status{nameOrPath(item), {}};
    if (const QString other = otherNameText(item); !other.isEmpty()) {
        status.figures << other;
        return status;
    }
    status.figures << sizeOnDisk(item.size());
    if (const auto* const folder = nodeCast<Folder>(&item)) {
        status.figures << countText(itemCount(*folder));
    }
    if (item.rescanning()) {
        status.figures << ItemStatusTexts::tr("being rescanned");
    }
    if (const Folder* const whole = wholeFor(item, inView)) {
        status.figures << shareText(item.size(), *whole);
    }
    status.figures.removeAll(QString());
    return status;
}

ItemStatus statusOf(const LayoutObject& box, const Folder& inView)
{
    const auto* const group = dynamic_cast<const MultiLayoutObject*>(&box);
    if (group == nullptr) {
        return box.ref == nullptr ? ItemStatus() : statusOf(*box.ref, inView);
    }
    ItemStatus status{
        ItemStatusTexts::tr("Small items"),
        {sizeOnDisk(group->totalAllocation),
         countText(group->refs.size()),
         shareText(group->totalAllocation, inView)}};
    status.figures.removeAll(QString());
    return status;
}

} // namespace tessera
