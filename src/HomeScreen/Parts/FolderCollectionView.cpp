// SPDX-License-Identifier: MIT
#include "HomeScreen/Parts/FolderCollectionView.h"

#include "Base/DisplayText.h"
#include "HomeScreen/Places/PlaceIcons.h"
#include "Widgets/PassiveLabel.h"
#include "ui_FolderCollectionView.h"

#include <QLabel>

namespace tessera {

namespace {

constexpr double kUnavailableAlpha = 0.6;

} // namespace

FolderCollectionView::FolderCollectionView(QWidget* parent)
    : HomeItemView(parent)
    , m_ui(std::make_unique<Ui::FolderCollectionView>())
{
    m_ui->setupUi(this);
}

FolderCollectionView::~FolderCollectionView() = default;

void FolderCollectionView::setUrl(
    const Url& url, const QIcon& icon, const QString& name, const QString& path)
{
    HomeItemView::setUrl(url);
    imageView().setPixmap(pixmapIn(imageView().maximumSize(), icon, devicePixelRatioF()));
    if (!name.isEmpty()) {
        nameLabel().setText(name);
        setAccessibleName(name);
    }
    const QString whole = displayText(url.path());
    pathLabel().setText(path.isEmpty() ? whole : path);
    setAccessibleDescription(whole);
    setToolTip(plainTooltip(whole));
    updateColors();
}

QLabel& FolderCollectionView::imageView() const
{
    return *m_ui->imageView;
}

PassiveLabel& FolderCollectionView::nameLabel() const
{
    return *m_ui->nameLabel;
}

PassiveLabel& FolderCollectionView::pathLabel() const
{
    return *m_ui->pathLabel;
}

void FolderCollectionView::updateColors()
{
    const TextColors colors = textColors();
    nameLabel().setTextColor(colors.name);
    pathLabel().setTextColor(colors.detail);
}

void FolderCollectionView::updateAlphaValue()
{
    setAlphaValue(unavailable() ? kUnavailableAlpha : 1.0);
}

} // namespace tessera
