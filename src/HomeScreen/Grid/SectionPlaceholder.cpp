// SPDX-License-Identifier: MIT
#include "HomeScreen/Grid/SectionPlaceholder.h"

#include <QLabel>

namespace tessera {

namespace {

constexpr int kPlaceholderMargin = 16; ///< as the header's

} // namespace

std::unique_ptr<QWidget> sectionPlaceholder(const QString& text)
{
    auto label = std::make_unique<QLabel>(text);
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    label->setMargin(kPlaceholderMargin);
    label->setForegroundRole(QPalette::PlaceholderText);
    label->setAttribute(Qt::WA_TransparentForMouseEvents);
    return label;
}

} // namespace tessera
