// SPDX-License-Identifier: MIT
#include "HomeScreen/Recents/RecentsTableCell.h"

#include "HomeScreen/Recents/RecentsTableModel.h"
#include "Model/RootModel.h"
#include "Widgets/ColorHelper.h"
#include "Widgets/MediumDate.h"
#include "Widgets/ProgramColors.h"
#include "support/Fakes/FakePlaces.h"
#include "support/Fakes/FakeRootModelServices.h"

#include <QApplication>
#include <QDateTime>
#include <QFontDatabase>
#include <QIcon>
#include <QImage>
#include <QPainter>

#include <gtest/gtest.h>

#include <algorithm>

namespace tessera {
namespace {

constexpr QStyle::State kUsual = QStyle::State_Enabled | QStyle::State_Active;
const QDate kToday(2026, 11, 21);

std::chrono::sys_seconds noonOf(const QDate& day)
{
    const qint64 seconds = QDateTime(day, QTime(12, 0)).toSecsSinceEpoch();
    return std::chrono::sys_seconds(std::chrono::seconds(seconds));
}

QPixmap filled(int size, Qt::GlobalColor color)
{
    QPixmap picture(size, size);
    picture.fill(color);
    return picture;
}

class RecentsTableCellTest : public testing::Test {
protected:
    QString title(const std::string& path) const { return cell.title({path, 0, {}}); }
    QString subtitle(const QDate& day) const { return cell.subtitle({"/", 0, noonOf(day)}); }

    /// The row of a scan of 1.2 GB.
    QImage picture(
        QStyle::State state, const std::string& path = "/data/one", QSize row = {290, 48})
    {
        const RecentRecord record{path, 1234567890, noonOf(kToday)};
        services.defaults.setRecentRecords(kRecentsKey, {record});
        services.documents.urls = {Url(path, true)};
        RootModel rootModel(services.get());
        const RecentsTableModel model(rootModel.recents());
        QStyleOptionViewItem option;
        option.rect = QRect(QPoint(), row);
        option.palette = lightProgramColors();
        option.state = state;
        QImage image(option.rect.size(), QImage::Format_RGB32);
        image.fill(Qt::white);
        QPainter painter(&image);
        cell.paint(&painter, option, model.index(0));
        return image;
    }

    test::FakeRootModelServices services;
    test::FakeMountedVolumes volumes;
    QIcon themeIcon; ///< null: a red one
    RecentsTableCell cell{
        {volumes,
         "/home/me",
         "/real/me",
         [this](const Url&) { return themeIcon.isNull() ? QIcon(filled(64, Qt::red)) : themeIcon; },
         [] { return kToday; }}};
};

/// Where something other than the background was drawn inside the box.
QRect inkIn(const QImage& image, const QRect& box, const QColor& background)
{
    QRect ink;
    for (int y = box.top(); y <= box.bottom(); ++y) {
        for (int x = box.left(); x <= box.right(); ++x) {
            if (image.pixelColor(x, y) != background) {
                ink |= QRect(x, y, 1, 1);
            }
        }
    }
    return ink;
}

TEST_F(RecentsTableCellTest, TheRealUsersHomeIsATilde)
{
    EXPECT_EQ(title("/real/me"), QStringLiteral("~"));
    EXPECT_EQ(title("/real/me/docs"), QStringLiteral("~/docs"));
    EXPECT_EQ(title("/mnt/real/me/real/me"), QStringLiteral("/mnt~~"));
    EXPECT_EQ(title("/home/me"), QStringLiteral("/home/me"));
}

TEST_F(RecentsTableCellTest, AVolumeIsCalledByItsName)
{
    volumes.list = {{Url("/mnt/data", true), MountedVolume::Kind::Disk}};
    EXPECT_EQ(title("/mnt/data"), QStringLiteral("data"));
    EXPECT_EQ(title("/mnt/data/docs"), QStringLiteral("/mnt/data/docs"));
}

TEST_F(RecentsTableCellTest, AVolumeThatIsTheProcesssHomeIsCalledByItsPath)
{
    volumes.list
        = {{Url("/home/me", true), MountedVolume::Kind::Disk},
           {Url("/real/me", true), MountedVolume::Kind::Disk}};
    EXPECT_EQ(title("/home/me"), QStringLiteral("/home/me"));
    EXPECT_EQ(title("/real/me"), QStringLiteral("me"));
}

TEST_F(RecentsTableCellTest, RecentDaysAreWords)
{
    EXPECT_EQ(subtitle(kToday), QStringLiteral("Last Scan: Today"));
    EXPECT_EQ(subtitle(kToday.addDays(-1)), QStringLiteral("Last Scan: Yesterday"));
    const QDate other = kToday.addDays(-2);
    EXPECT_EQ(
        subtitle(other),
        QStringLiteral("Last Scan: ")
            + mediumDate(noonOf(other).time_since_epoch().count(), QLocale()));
}

TEST_F(RecentsTableCellTest, TheIconHasAFixedPlace)
{
    const QImage image = picture(kUsual);
    const QRect icon = inkIn(image, QRect(0, 0, 52, 48), Qt::white);
    EXPECT_TRUE(QRect(7, 4, 38, 39).contains(icon));
    EXPECT_GE(icon.width(), 37);
    EXPECT_EQ(image.pixelColor(26, 23), QColor(Qt::red));
}

TEST_F(RecentsTableCellTest, ALongTitleTakesItsWholeBoxAndNoMore)
{
    // The letters are so narrow that little room is left over.
    const QImage image = picture(kUsual, "/" + std::string(300, 'i'));
    const QRect title = inkIn(image, QRect(50, 0, 240, 28), Qt::white);
    EXPECT_LT(title.right(), 54 + 219);
    EXPECT_GT(title.right(), 54 + 219 - 12);
}

TEST_F(RecentsTableCellTest, TheTitleStandsInTheMiddleOfItsBox)
{
    const QImage image = picture(kUsual, "/one");
    QImage expected(image.size(), image.format());
    expected.fill(Qt::white);
    QPainter painter(&expected);
    QFont font = QFontDatabase::systemFont(QFontDatabase::GeneralFont);
    font.setPixelSize(13);
    painter.setFont(font);
    painter.drawText(QRect(54, 10, 219, 17), Qt::AlignVCenter, QStringLiteral("/one"));
    const QRect title(50, 0, 240, 28);
    EXPECT_EQ(image.copy(title), expected.copy(title));
}

TEST_F(RecentsTableCellTest, TheTextsHaveFixedPlaces)
{
    const QImage image = picture(kUsual);
    const QRect title = inkIn(image, QRect(50, 0, 240, 28), Qt::white);
    EXPECT_TRUE(QRect(54, 10, 219, 17).contains(title));
    const QRect subtitle = inkIn(image, QRect(50, 28, 160, 20), Qt::white);
    EXPECT_TRUE(QRect(54, 28, 154, 17).contains(subtitle));
    const QRect size = inkIn(image, QRect(210, 28, 80, 20), Qt::white);
    EXPECT_TRUE(QRect(212, 28, 68, 17).contains(size));
    EXPECT_GE(size.right(), 276) << "it ends at the right";
}

TEST_F(RecentsTableCellTest, ASelectedRowHasTheColourOfSelectedItems)
{
    const QImage image = picture(kUsual | QStyle::State_Selected);
    EXPECT_EQ(image.pixelColor(150, 4), colorWithHex(0x2E66C4));
    EXPECT_EQ(image.pixelColor(150, 1), QColor(Qt::white));
}

TEST_F(RecentsTableCellTest, ASelectedRowThatCannotBeUsedIsPaleAndLegible)
{
    const QImage image = picture(QStyle::State_Active | QStyle::State_Selected);
    const QColor pale = colorWithHex(0xD4D4D4);
    EXPECT_EQ(image.pixelColor(150, 4), pale);
    int darkest = 255;
    for (int x = 54; x < 208; ++x) {
        for (int y = 28; y < 45; ++y) {
            darkest = std::min(darkest, image.pixelColor(x, y).lightness());
        }
    }
    EXPECT_LT(darkest, 150);
}

TEST_F(RecentsTableCellTest, ASelectedRowsIconStandsOnTheUsualBackground)
{
    const QImage image = picture(kUsual | QStyle::State_Selected);
    EXPECT_EQ(image.pixelColor(26, 23), QColor(Qt::red));
    EXPECT_EQ(image.pixelColor(6, 23), QColor(Qt::white));
    EXPECT_EQ(image.pixelColor(26, 43), QColor(Qt::white));
}

TEST_F(RecentsTableCellTest, TheRowThatAKeyWouldTakeHasAnOutline)
{
    const QImage image = picture(kUsual | QStyle::State_HasFocus);
    EXPECT_EQ(image.pixelColor(150, 3), colorWithHex(0x2E66C4));
    EXPECT_EQ(image.pixelColor(150, 6), QColor(Qt::white));
}

TEST_F(RecentsTableCellTest, RowsAndLettersGrowWithTheDesktopsFont)
{
    const QFont usual = QApplication::font();
    QFont large = usual;
    large.setPixelSize(26);
    QApplication::setFont(large);
    const int row = cell.sizeHint({}, {}).height();
    const QImage image = picture(kUsual, "/one", QSize(406, row));
    QApplication::setFont(usual);
    EXPECT_EQ(row, 96);
    const QRect title = inkIn(image, QRect(76, 0, 330, 54), Qt::white);
    const QRect subtitle = inkIn(image, QRect(76, 56, 220, 40), Qt::white);
    const QRect size = inkIn(image, QRect(300, 56, 106, 40), Qt::white);
    EXPECT_GE(title.height(), 19);
    EXPECT_GE(size.height(), 15);
    EXPECT_LE(subtitle.right(), size.left());
    EXPECT_LT(size.right(), 406 - 8);
    EXPECT_LT(size.bottom(), 94);
}

TEST_F(RecentsTableCellTest, AnIconIsDrawnFromTheNextLargerPictureOfItsTheme)
{
    // As themes do that have other pictures for other sizes, and a fixed few of these.
    themeIcon.addPixmap(filled(32, Qt::green));
    themeIcon.addPixmap(filled(48, Qt::blue));
    themeIcon.addPixmap(filled(64, Qt::red));
    const QImage image = picture(kUsual);
    EXPECT_EQ(image.pixelColor(26, 23), QColor(Qt::blue));
    EXPECT_EQ(inkIn(image, QRect(0, 0, 52, 48), Qt::white).width(), 38);
}

TEST_F(RecentsTableCellTest, RowsAreHighEnoughForTheirTexts)
{
    EXPECT_EQ(cell.sizeHint({}, {}).height(), 48);
}

} // namespace
} // namespace tessera
