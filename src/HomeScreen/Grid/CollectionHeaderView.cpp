// SPDX-License-Identifier: MIT
#include "HomeScreen/Grid/CollectionHeaderView.h"

#include "Widgets/PassiveLabel.h"
#include "ui_CollectionHeaderView.h"

namespace tessera {

CollectionHeaderView::CollectionHeaderView(QWidget* parent)
    : QWidget(parent)
    , m_ui(std::make_unique<Ui::CollectionHeaderView>())
{
    m_ui->setupUi(this);
}

CollectionHeaderView::~CollectionHeaderView() = default;

PassiveLabel& CollectionHeaderView::nameLabel() const
{
    return *m_ui->nameLabel;
}

} // namespace tessera
