// SPDX-License-Identifier: MIT
#include "HomeScreen/Recents/RecentsTableView.h"

#include "Widgets/ProgramColors.h"
#include "support/BecomesActive.h"

#include <QImage>
#include <QSignalSpy>
#include <QStringListModel>
#include <QTest>

#include <gtest/gtest.h>

#include <cstdlib>

namespace tessera {
namespace {

class RecentsTableViewTest : public testing::Test {
protected:
    RecentsTableViewTest()
    {
        view.setFrameShape(QFrame::NoFrame);
        view.setPalette(lightProgramColors());
        view.resize(290, 200);
        view.setModel(&model);
    }

    /// Where something other than the background is drawn.
    QRect ink()
    {
        QImage image(view.size(), QImage::Format_RGB32);
        view.render(&image);
        QRect found;
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x) {
                if (image.pixelColor(x, y) != QColor(Qt::white)) {
                    found |= QRect(x, y, 1, 1);
                }
            }
        }
        return found;
    }

    RecentsTableView view;
    QStringListModel model;
};

TEST_F(RecentsTableViewTest, SaysInItsMiddleThatItIsEmpty)
{
    const QRect text = ink();
    EXPECT_GT(text.width(), 40);
    EXPECT_LE(std::abs(text.center().x() - 145), 2);
    EXPECT_LE(std::abs(text.center().y() - 100), 4);
}

TEST_F(RecentsTableViewTest, SaysNothingOfTheKindWhenItIsNot)
{
    model.setStringList({QString()});
    EXPECT_FALSE(ink().intersects(QRect(0, 60, 290, 80)));
    model.setStringList({});
    EXPECT_TRUE(ink().intersects(QRect(0, 60, 290, 80)));
}

class RowsOfRecentsTest : public RecentsTableViewTest {
protected:
    RowsOfRecentsTest()
    {
        model.setStringList({QStringLiteral("a"), QStringLiteral("b"), QStringLiteral("c")});
        view.show();
        view.setFocus();
        EXPECT_TRUE(test::becomesActive(view));
    }

    int selectedRow() const
    {
        const QModelIndexList rows = view.selectionModel()->selectedIndexes();
        return rows.isEmpty() ? -1 : rows.first().row();
    }
};

TEST_F(RowsOfRecentsTest, TheFirstArrowTakesTheFirstRow)
{
    QTest::keyClick(&view, Qt::Key_Down);
    EXPECT_EQ(selectedRow(), 0);
    QTest::keyClick(&view, Qt::Key_Down);
    EXPECT_EQ(selectedRow(), 1);
}

TEST_F(RowsOfRecentsTest, ADoubleClickOfTheLeftButtonAloneIsOne)
{
    const QSignalSpy doubleClicks(&view, &QListView::doubleClicked);
    const QPoint row = view.visualRect(model.index(1)).center();
    for (const Qt::MouseButton button : {Qt::RightButton, Qt::MiddleButton}) {
        QTest::mouseClick(view.viewport(), button, {}, row);
        QTest::mouseDClick(view.viewport(), button, {}, row);
    }
    EXPECT_EQ(doubleClicks.size(), 0);
    QTest::mouseDClick(view.viewport(), Qt::LeftButton, {}, row);
    EXPECT_EQ(doubleClicks.size(), 1);
}

} // namespace
} // namespace tessera
