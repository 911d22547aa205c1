// SPDX-License-Identifier: MIT
#include "HistoryWindow/HistoryTableView.h"
#include "HistoryWindow/MakeRecords.h"
#include "HistoryWindow/TrashHistoryModel.h"
#include "Widgets/ProgramColors.h"

#include <QImage>
#include <QSortFilterProxyModel>

#include <gtest/gtest.h>

namespace tessera {
namespace {

/// How many pixels of the area are not of its background.
int inkIn(HistoryTableView& table)
{
    const QImage image = table.viewport()->grab().toImage();
    const QRgb ground = image.pixel(1, image.height() - 2);
    int ink = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            ink += image.pixel(x, y) == ground ? 0 : 1;
        }
    }
    return ink;
}

class HistoryWindowLook : public testing::TestWithParam<bool> {
protected:
    HistoryWindowLook()
    {
        table.setPalette(GetParam() ? darkProgramColors() : lightProgramColors());
        table.setModel(&model);
        table.resize(400, 200);
        table.show();
    }

    TrashHistoryModel model{"/home/me"};
    HistoryTableView table;
};

TEST_P(HistoryWindowLook, SaysInThePlaceOfRowsThatThereAreNone)
{
    EXPECT_EQ(inkIn(table), 0);
    table.setPlaceholder(QStringLiteral("Nothing was moved to the trash yet."));
    EXPECT_GT(inkIn(table), 100);
}

TEST_P(HistoryWindowLook, SaysNothingOverRows)
{
    model.setRecords({test::makeRecord(1, "a")});
    const QImage before = table.viewport()->grab().toImage();
    table.setPlaceholder(QStringLiteral("Nothing was moved to the trash yet."));
    EXPECT_EQ(table.viewport()->grab().toImage(), before);
}

INSTANTIATE_TEST_SUITE_P(LightAndDark, HistoryWindowLook, testing::Bool(), [](const auto& test) {
    return test.param ? "Dark" : "Light";
});

} // namespace
} // namespace tessera
