// SPDX-License-Identifier: MIT
#include "ScanScreen/PathLabel.h"

#include <QImage>

#include <gtest/gtest.h>

namespace tessera {
namespace {

QImage painted(PathLabel& label)
{
    QImage image(label.size(), QImage::Format_RGB32);
    image.fill(Qt::white);
    label.render(&image, {}, {}, QWidget::DrawChildren);
    return image;
}

int lastInkedColumn(const QImage& image)
{
    for (int x = image.width() - 1; x >= 0; --x) {
        for (int y = 0; y < image.height(); ++y) {
            if (image.pixelColor(x, y) != QColor(Qt::white)) {
                return x;
            }
        }
    }
    return -1;
}

TEST(PathLabel, ALongTextFillsTheWidthAndKeepsItsEnd)
{
    PathLabel label;
    label.resize(200, 20);
    label.setText(QString(300, QLatin1Char('a')) + QLatin1Char('W'));
    const QImage image = painted(label);
    PathLabel shorter;
    shorter.resize(200, 20);
    shorter.setText(label.fontMetrics().elidedText(label.text(), Qt::ElideMiddle, label.width()));

    EXPECT_TRUE(shorter.text().endsWith(QLatin1Char('W')));
    EXPECT_EQ(image, painted(shorter));
    EXPECT_GT(lastInkedColumn(image), 170);
}

TEST(PathLabel, NoTextMakesItWider)
{
    PathLabel label;
    const QSize before = label.sizeHint();
    label.setText(QString(300, QLatin1Char('a')));

    EXPECT_EQ(label.sizeHint(), before);
    EXPECT_EQ(label.minimumSizeHint().width(), 0);
}

TEST(PathLabel, AScreenReaderGetsTheWholeText)
{
    PathLabel label;
    label.resize(20, 20);
    label.setText(QStringLiteral("Documents/a long way down"));

    EXPECT_EQ(label.accessibleName(), QStringLiteral("Documents/a long way down"));
}

} // namespace
} // namespace tessera
