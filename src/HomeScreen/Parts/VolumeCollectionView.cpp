// SPDX-License-Identifier: MIT
#include "HomeScreen/Parts/VolumeCollectionView.h"

#include "Base/DisplayText.h"
#include "HomeScreen/Places/PlaceIcons.h"
#include "HomeScreen/Places/PlaceNames.h"
#include "Language/SizeText.h"
#include "Widgets/Bar.h"
#include "Widgets/PassiveLabel.h"
#include "ui_VolumeCollectionView.h"

#include <QLabel>
#include <QStringList>

#include <cmath>
#include <cstdint>

namespace tessera {

namespace {

constexpr double kUnavailableDiskAlpha = 0.7;

float filledShare(const FileSystemSizes& sizes)
{
    const double freeShare
        = static_cast<double>(sizes.availableBytes) / static_cast<double>(sizes.totalBytes);
    const auto share = static_cast<float>(1.0 - freeShare);
    return std::isnan(share) ? 0.0F : share;
}

/// What is free, but not for the user; empty where nothing is. In the words of the account of a
/// disk's space.
QString reserveText(const FileSystemSizes& sizes)
{
    if (sizes.reservedBytes == 0) {
        return {};
    }
    const QString size = sizeText(sizes.reservedBytes);
    return sizes.type == "btrfs"
        ? VolumeCollectionView::tr("Reserved by the file system: %1").arg(size)
        : VolumeCollectionView::tr("Reserved for the administrator: %1").arg(size);
}

} // namespace

VolumeCollectionView::VolumeCollectionView(QWidget* parent)
    : HomeItemView(parent)
    , m_ui(std::make_unique<Ui::VolumeCollectionView>())
{
    m_ui->setupUi(this);
}

VolumeCollectionView::~VolumeCollectionView() = default;

void VolumeCollectionView::setUrl(const Url& url, const QIcon& icon)
{
    HomeItemView::setUrl(url);
    const QString name = localizedVolumeName(url);
    imageView().setPixmap(pixmapIn(imageView().maximumSize(), icon, devicePixelRatioF()));
    nameLabel().setText(name);
    setAccessibleName(name);
    describe({});
    updateColors();
}

void VolumeCollectionView::setFileSystemSizes(const std::optional<FileSystemSizes>& sizes)
{
    const FileSystemSizes known = sizes.value_or(FileSystemSizes());
    spaceBar().setPercentFilled(filledShare(known));
    spaceBar().update();
    spaceLabel().setText(tr("Free for you: %1").arg(sizeText(known.availableBytes)));
    describe(known);
}

/// Disks of one name differ in where they are, and mostly in how large they are.
void VolumeCollectionView::describe(const FileSystemSizes& sizes)
{
    const QString path = displayText(url().path());
    const QString place
        = sizes.totalBytes == 0 ? path : tr("%1, %2").arg(path, sizeText(sizes.totalBytes));
    const QString reserve = reserveText(sizes);
    QStringList lines{accessibleName(), place};
    if (!reserve.isEmpty()) {
        lines.append({spaceLabel().text(), reserve});
    }
    setToolTip(plainTooltip(lines.join(QLatin1Char('\n'))));
    QStringList facts{spaceLabel().text(), reserve, place};
    facts.removeAll(QString());
    setAccessibleDescription(facts.join(QStringLiteral("; ")));
}

QLabel& VolumeCollectionView::imageView() const
{
    return *m_ui->imageView;
}

PassiveLabel& VolumeCollectionView::nameLabel() const
{
    return *m_ui->nameLabel;
}

PassiveLabel& VolumeCollectionView::spaceLabel() const
{
    return *m_ui->spaceLabel;
}

Bar& VolumeCollectionView::spaceBar() const
{
    return *m_ui->spaceBar;
}

void VolumeCollectionView::updateColors()
{
    const TextColors colors = textColors();
    nameLabel().setTextColor(colors.name);
    spaceLabel().setTextColor(colors.detail);
}

void VolumeCollectionView::updateAlphaValue()
{
    // A volume that was unavailable once stays pale, unlike a folder.
    if (unavailable()) {
        setAlphaValue(kUnavailableDiskAlpha);
    }
}

} // namespace tessera
