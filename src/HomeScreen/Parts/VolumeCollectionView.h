// SPDX-License-Identifier: MIT
#pragma once

#include "HomeScreen/Parts/HomeItemView.h"
#include "Model/FileSystemAttributes.h"

#include <QIcon>

#include <memory>
#include <optional>

namespace Ui {
class VolumeCollectionView;
}

namespace tessera {

class Bar;
class PassiveLabel;

/// A mounted volume on the home screen: its icon and name, and how full it is.
class VolumeCollectionView final : public HomeItemView {
    Q_OBJECT

public:
    explicit VolumeCollectionView(QWidget* parent = nullptr);
    ~VolumeCollectionView() override;

    /// Shows the volume with its icon and name; the bar stays as it is.
    void setUrl(const Url& url, const QIcon& icon);

    /// Fills the bar with all that is not free for the user, as the text below it says. Sizes that
    /// cannot be read count as 0, which gives an empty bar.
    void setFileSystemSizes(const std::optional<FileSystemSizes>& sizes);

    QLabel& imageView() const override;
    PassiveLabel& nameLabel() const;
    PassiveLabel& spaceLabel() const;
    Bar& spaceBar() const;

private:
    void describe(const FileSystemSizes& sizes);
    void updateColors() override;
    void updateAlphaValue() override;

    std::unique_ptr<Ui::VolumeCollectionView> m_ui;
};

} // namespace tessera
