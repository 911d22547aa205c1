// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>

#include <memory>

namespace Ui {
class CollectionHeaderView;
}

namespace tessera {

class PassiveLabel;

/// The title of a section of the home screen's grid.
class CollectionHeaderView final : public QWidget {
    Q_OBJECT

public:
    explicit CollectionHeaderView(QWidget* parent = nullptr);
    ~CollectionHeaderView() override;

    PassiveLabel& nameLabel() const;

private:
    std::unique_ptr<Ui::CollectionHeaderView> m_ui;
};

} // namespace tessera
