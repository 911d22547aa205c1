// SPDX-License-Identifier: MIT
#include "MainWindow/MenuToolButton.h"

#include <QMenu>
#include <QTest>

#include <gtest/gtest.h>

namespace tessera {

namespace {

constexpr int kIconSide = 20;

class MenuToolButtonTest : public testing::Test {
protected:
    MenuToolButtonTest()
    {
        QPixmap square(kIconSide, kIconSide);
        square.fill(Qt::red);
        button.setIcon(square);
        button.setIconSize({kIconSide, kIconSide});
        button.setAutoRaise(true);
        button.setMenu(&menu);
        button.resize(button.sizeHint());
    }

    [[nodiscard]] QImage painted() { return button.grab().toImage(); }

    [[nodiscard]] static int redPixels(const QImage& image)
    {
        int count = 0;
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x) {
                count += image.pixelColor(x, y) == QColor(Qt::red) ? 1 : 0;
            }
        }
        return count;
    }

    QMenu menu;
    MenuToolButton button;
};

} // namespace

TEST_F(MenuToolButtonTest, TheArrowLeavesTheIconWhole)
{
    EXPECT_EQ(redPixels(painted()), kIconSide * kIconSide);
}

TEST_F(MenuToolButtonTest, TheArrowStandsBesideTheIcon)
{
    const QImage image = painted();
    const QColor ground = image.pixelColor(image.width() - 1, image.height() / 2);

    int arrow = 0;
    for (int x = image.width() / 2 + kIconSide / 2; x < image.width(); ++x) {
        arrow += image.pixelColor(x, image.height() / 2) != ground ? 1 : 0;
    }

    EXPECT_GE(arrow, 2);
}

TEST_F(MenuToolButtonTest, FromRightToLeftTheArrowStandsAtTheLeft)
{
    button.setLayoutDirection(Qt::RightToLeft);
    const QImage image = painted();

    EXPECT_EQ(image.pixelColor(image.width() - 5, image.height() / 2), QColor(Qt::red));
}

TEST_F(MenuToolButtonTest, APressOpensTheMenu)
{
    menu.addAction(QStringLiteral("One"));
    button.show();
    bool wasOpen = false;
    QObject::connect(&menu, &QMenu::aboutToShow, &menu, [&] {
        wasOpen = true;
        QMetaObject::invokeMethod(&menu, &QWidget::close, Qt::QueuedConnection);
    });

    QTest::mousePress(&button, Qt::LeftButton);

    EXPECT_TRUE(wasOpen);
}

} // namespace tessera
