// SPDX-License-Identifier: MIT
#pragma once

#include "HomeScreen/Parts/HomeItemView.h"

#include <QIcon>

#include <memory>

namespace Ui {
class FolderCollectionView;
}

namespace tessera {

class PassiveLabel;

/// A well-known folder on the home screen: its icon above its name and path.
class FolderCollectionView final : public HomeItemView {
    Q_OBJECT

public:
    explicit FolderCollectionView(QWidget* parent = nullptr);
    ~FolderCollectionView() override;

    /// Shows the folder. Without a name the label keeps what it had; without a path of its own for
    /// the eye the folder's is shown.
    void setUrl(
        const Url& url, const QIcon& icon, const QString& name, const QString& path = QString());

    QLabel& imageView() const override;
    PassiveLabel& nameLabel() const;
    PassiveLabel& pathLabel() const;

private:
    void updateColors() override;
    void updateAlphaValue() override;

    std::unique_ptr<Ui::FolderCollectionView> m_ui;
};

} // namespace tessera
