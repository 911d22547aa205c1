// SPDX-License-Identifier: MIT
#pragma once

#include "HomeScreen/Parts/HomeItemView.h"

#include <QIcon>

class QLabel;

namespace tessera {

class NonBlockingTextField;

/// A well-known folder on the home screen: its icon above its name.
class FolderCollectionView final : public HomeItemView {
    Q_OBJECT

public:
    using HomeItemView::HomeItemView;

    /// Shows the folder. Without a name the label keeps what it had.
    void setUrl(const Url& url, const QIcon& icon, const QString& name);

    QLabel& imageView() const;
    NonBlockingTextField& nameLabel() const;

private:
    void updateColors() override;
    void updateAlphaValue() override;
};

} // namespace tessera
