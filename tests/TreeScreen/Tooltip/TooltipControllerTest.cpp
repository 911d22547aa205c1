// SPDX-License-Identifier: MIT
#include "TreeScreen/Tooltip/TooltipController.h"

#include "Layout/MultiLayoutObject.h"
#include "Model/Document.h"
#include "Model/TimeMachine.h"
#include "Model/Volume.h"
#include "TreeScreen/Tooltip/TooltipField.h"
#include "TreeScreen/Tooltip/TooltipWindow.h"
#include "support/Fakes/FakeFileSystem.h"
#include "support/Fakes/FakeIconProvider.h"
#include "support/MakeTree.h"

#include <QApplication>
#include <QDateTime>
#include <QLabel>
#include <QToolTip>

#include <gtest/gtest.h>

#include <string>

namespace tessera {

namespace {

class TooltipControllerTest : public testing::Test {
protected:
    TooltipControllerTest()
    {
        values.modificationDate = QDateTime(QDate(2026, 11, 21), QTime(9, 30)).toSecsSinceEpoch();
        controller.setResourceValues(&values);
        controller.setIconProvider(&icons);
    }

    void hover(File& node)
    {
        LayoutObject item;
        item.ref = &node;
        item.totalAllocation = node.size();
        controller.setLayoutObject(item);
    }

    /// A group of the first `count` children of `folder`.
    void hoverGroup(Folder& folder, int count, double totalAllocation)
    {
        MultiLayoutObject group;
        for (File* child : folder.children()) {
            if (static_cast<int>(group.refs.size()) < count) {
                group.refs.push_back(child);
            }
        }
        group.totalAllocation = totalAllocation;
        controller.setLayoutObject(group);
    }

    TooltipField& field(const char* name) const
    {
        return *controller.window().findChild<TooltipField*>(QLatin1String(name));
    }

    std::string text(const char* name) const { return field(name).text().toStdString(); }

    bool hasIcon(const char* name) const
    {
        const auto* label = controller.window().findChild<QLabel*>(QLatin1String(name));
        return !label->pixmap(Qt::ReturnByValue).isNull();
    }

    std::string panel() const { return controller.contentRef()->objectName().toStdString(); }

    static Rect sized(double height) { return {0, 0, 210, height}; }

    test::FakeResourceValues values;
    test::FakeIconProvider icons;
    TooltipController controller;
    std::unique_ptr<TopFolder> tree = test::makeTree(
        "/home/anna",
        "docs/ ( report.pdf:1234567 ) a:800 b:700 c:600 d:500 e:400 f:300 g:200 h:100");
    std::unique_ptr<Volume> volume = makeNode<Volume>("/");
};

} // namespace

TEST(TooltipWindow, HasItsPanelsFromTheStart)
{
    EXPECT_NE(TooltipWindow().findChild<QWidget*>(QStringLiteral("fileView")), nullptr);
}

TEST_F(TooltipControllerTest, ADocumentShowsItsNameSizeDateAndPath)
{
    hover(test::at(*tree, "docs/report.pdf"));

    EXPECT_EQ(panel(), "fileView");
    EXPECT_EQ(text("fileName"), "report.pdf");
    EXPECT_EQ(text("fileSize"), "1.2 MB");
    EXPECT_EQ(
        text("fileModified"),
        QLocale().toString(QDate(2026, 11, 21), QStringLiteral("d MMM yyyy")).toStdString());
    EXPECT_EQ(text("filePath"), "/home/anna/docs/report.pdf");
    EXPECT_TRUE(hasIcon("fileIcon"));
}

TEST_F(TooltipControllerTest, AFolderHasAPanelOfItsOwn)
{
    hover(test::at(*tree, "docs"));

    EXPECT_EQ(panel(), "folderView");
    EXPECT_EQ(text("folderName"), "docs");
    EXPECT_EQ(text("folderSize"), "1.2 MB");
    EXPECT_FALSE(text("folderModified").empty());
    EXPECT_EQ(text("folderPath"), "/home/anna/docs");
    EXPECT_TRUE(hasIcon("folderIcon"));
}

TEST_F(TooltipControllerTest, TopFoldersAndVolumesAreFolders)
{
    hover(*tree);
    EXPECT_EQ(panel(), "folderView");
    EXPECT_EQ(text("folderPath"), "/home/anna");

    volume->setOrigin("/");
    hover(*volume);
    EXPECT_EQ(panel(), "folderView");
    EXPECT_EQ(text("folderPath"), "/");
}

TEST_F(TooltipControllerTest, AGroupOfEightListsFiveNamesOneALine)
{
    hoverGroup(*tree, 8, 3400);

    EXPECT_EQ(panel(), "multiView");
    EXPECT_EQ(text("multiPath"), "docs\ra\rb\rc\rd\r");
    EXPECT_EQ(text("multiSize"), "3 KB");
    EXPECT_EQ(field("multiPath").shownLines().size(), 5);
}

TEST_F(TooltipControllerTest, AGroupOfTwoListsTwoNames)
{
    hoverGroup(*tree, 2, 1000);

    EXPECT_EQ(text("multiPath"), "docs\ra\r");
    EXPECT_EQ(controller.desiredRect(), sized(67 + field("multiPath").neededHeight()));
}

TEST_F(TooltipControllerTest, FiveNamesFitIntoThePanel)
{
    hoverGroup(*tree, 8, 3400);
    const TooltipField& names = field("multiPath");

    EXPECT_EQ(controller.desiredRect(), sized(123));
    EXPECT_LE(names.y() + names.neededHeight(), 123);
}

TEST_F(TooltipControllerTest, AnotherNameOfAFileSaysWhereThatIsCounted)
{
    const auto top = test::makeTree("/home", "a/ ( x:700#5/13 ) b/ ( y:700#5/13 )");
    hover(test::at(*top, "b/y"));
    EXPECT_EQ(
        text("filePath"), "/home/b/y\rone of 13 names of a file that is counted at /home/a/x");
}

TEST_F(TooltipControllerTest, WhereAFileIsCountedIsReadWhole)
{
    const auto top = test::makeTree(
        "/home/anna/Documents", "letters/ ( x:700#5/13 ) letters-of-last-year/ ( y:700#5/13 )");
    hover(test::at(*top, "letters-of-last-year/y"));
    QString shown;
    for (const QString& line : field("filePath").shownLines()) {
        shown += line;
    }
    EXPECT_FALSE(shown.contains(QChar(0x2026))) << shown.toStdString();
    EXPECT_GT(controller.desiredRect().height, 123);
    EXPECT_LE(field("filePath").geometry().bottom(), field("filePath").parentWidget()->height());
}

TEST_F(TooltipControllerTest, ATooltipAfterThatIsNoHigherThanItsText)
{
    const auto top = test::makeTree("/home", "a/ ( x:700#5/13 ) b/ ( y:700#5/13 )");
    hover(test::at(*top, "b/y"));
    hover(test::at(*top, "a/x"));
    EXPECT_EQ(field("filePath").height(), 60);
    EXPECT_EQ(controller.desiredRect(), sized(67 + 12));
}

TEST_F(TooltipControllerTest, TheNameThatAFileIsCountedAtSaysNothingOfOthers)
{
    const auto top = test::makeTree("/home", "a/ ( x:700#5/13 ) b/ ( y:700#5/13 )");
    hover(test::at(*top, "a/x"));
    EXPECT_EQ(text("filePath"), "/home/a/x");
}

TEST_F(TooltipControllerTest, AGroupSaysOfEachOtherNameWhereItsFileIsCounted)
{
    const auto top = test::makeTree("/home", "x:700#5/2 b/ ( v:1 y:700#5/2 )");
    hoverGroup(static_cast<Folder&>(test::at(*top, "b")), 2, 1);
    EXPECT_EQ(text("multiPath"), "v\ry: one of 2 names of a file that is counted at /home/x\r");
}

TEST_F(TooltipControllerTest, AShortPathGivesItsHeightAndSixtySeven)
{
    hover(test::at(*tree, "docs"));
    const double needed = field("folderPath").neededHeight();

    ASSERT_GT(needed, 0);
    ASSERT_LT(needed, 56);
    EXPECT_EQ(controller.desiredRect(), sized(needed + 67));
}

TEST_F(TooltipControllerTest, ALongPathGivesTheFullHeight)
{
    const auto longTree = test::makeTree("/" + std::string(200, 'W'), "a:1");
    hover(*longTree);

    EXPECT_GE(field("folderPath").neededHeight(), 56);
    EXPECT_EQ(controller.desiredRect(), sized(123));
}

TEST_F(TooltipControllerTest, PathsAndNameListsWrapAtTheirWidth)
{
    EXPECT_EQ(field("filePath").width(), 143);
    EXPECT_EQ(field("folderPath").width(), 143);
    EXPECT_EQ(field("multiPath").width(), 143);
}

TEST_F(TooltipControllerTest, FreeSpaceHasNameAndSizeAlone)
{
    hover(test::at(*tree, "docs/report.pdf"));
    volume->freeFile().setTotalAllocation(123456789012);
    hover(volume->freeFile());

    EXPECT_EQ(panel(), "fileView");
    EXPECT_EQ(controller.desiredRect(), sized(44));
    EXPECT_EQ(text("fileName"), "Free Space");
    EXPECT_EQ(text("fileSize"), "123.5 GB");
    EXPECT_EQ(text("fileModified") + text("filePath"), "");
    EXPECT_FALSE(hasIcon("fileIcon"));
}

TEST_F(TooltipControllerTest, ABackupStoreHasNameAndSizeAlone)
{
    const auto store = makeNode<TimeMachine>("");
    store->setTotalAllocation(5000);
    hover(*store);

    EXPECT_EQ(panel(), "fileView");
    EXPECT_EQ(controller.desiredRect(), sized(44));
    EXPECT_EQ(text("fileName") + text("fileSize"), "Time Machine5 KB");
}

TEST_F(TooltipControllerTest, UnaccountedSpaceHasTheFullHeightWhateverItsText)
{
    volume->unreadFile().setTotalAllocation(999);
    hover(volume->unreadFile());

    EXPECT_EQ(panel(), "unknownView");
    EXPECT_EQ(text("unknownSize"), "999 B");
    EXPECT_EQ(controller.desiredRect(), sized(123));
}

TEST_F(TooltipControllerTest, AFileThatIsGoneKeepsItsNameSizeAndPath)
{
    hover(test::at(*tree, "docs/report.pdf"));
    values.modificationDate = std::nullopt;
    hover(test::at(*tree, "a"));

    EXPECT_FALSE(hasIcon("fileIcon"));
    EXPECT_EQ(text("fileModified"), "");
    EXPECT_EQ(text("fileName"), "a");
    EXPECT_EQ(text("fileSize"), "800 B");
    EXPECT_EQ(text("filePath"), "/home/anna/a");
}

TEST_F(TooltipControllerTest, WithoutServicesThereAreNoDatesAndIcons)
{
    controller.setResourceValues(nullptr);
    controller.setIconProvider(nullptr);
    hover(test::at(*tree, "docs"));

    EXPECT_EQ(text("folderModified"), "");
    EXPECT_FALSE(hasIcon("folderIcon"));
    EXPECT_EQ(text("folderName"), "docs");
}

TEST_F(TooltipControllerTest, BytesThatAreNoTextAndControlCharactersAreShown)
{
    const auto document = makeNode<Document>("caf\xe9\n.txt");
    hover(*document);

    EXPECT_EQ(
        field("fileName").text(),
        QStringLiteral("caf") + QChar(0xFFFD) + QChar(0x240A) + QStringLiteral(".txt"));
}

TEST_F(TooltipControllerTest, TheDocumentAfterFreeSpaceStandsBesideItsIcon)
{
    hover(volume->freeFile());
    hover(test::at(*tree, "a"));
    const auto* icon = controller.window().findChild<QLabel*>(QStringLiteral("fileIcon"));

    EXPECT_GT(
        field("fileName").mapTo(&controller.window(), QPoint()).x(), icon->geometry().right());
}

TEST_F(TooltipControllerTest, NameAndSizeLieWithinTheShortTooltipAndTheDateBelowIt)
{
    EXPECT_LE(field("fileName").geometry().bottom(), 41);
    EXPECT_LE(field("fileSize").geometry().bottom(), 41);
    EXPECT_GE(field("fileModified").y(), 41);
    EXPECT_LE(field("multiSize").geometry().bottom(), 41);
    EXPECT_LE(field("unknownSize").geometry().bottom(), 41);
}

TEST_F(TooltipControllerTest, APanelFillsTheWindowAndFollowsItsSize)
{
    hover(*tree);
    QWidget& window = controller.window();
    window.resize(210, 42);
    window.show();

    EXPECT_EQ(window.size(), QSize(210, 42));
    EXPECT_EQ(controller.contentRef()->size(), QSize(210, 42));
    EXPECT_TRUE(controller.contentRef()->isVisible());
    hover(volume->unreadFile());
    EXPECT_EQ(controller.contentRef()->geometry(), QRect(0, 0, 210, 42));
}

TEST_F(TooltipControllerTest, FillingItDoesNotShowHideOrMoveTheWindow)
{
    const QRect before = controller.window().geometry();
    hover(*tree);

    EXPECT_FALSE(controller.window().isVisible());
    EXPECT_EQ(controller.window().geometry(), before);
}

TEST_F(TooltipControllerTest, TheWindowFloatsAndTakesNeitherPointerNorFocus)
{
    const QWidget& window = controller.window();

    EXPECT_EQ(window.windowType(), Qt::ToolTip);
    EXPECT_TRUE(window.windowFlags().testFlag(Qt::WindowTransparentForInput));
    EXPECT_TRUE(window.windowFlags().testFlag(Qt::WindowDoesNotAcceptFocus));
    EXPECT_TRUE(window.testAttribute(Qt::WA_ShowWithoutActivating));
    EXPECT_TRUE(window.testAttribute(Qt::WA_TransparentForMouseEvents));
}

TEST_F(TooltipControllerTest, TheWindowWearsTheColoursOfTooltipsAlsoWhenTheyChange)
{
    const QPalette before = QToolTip::palette();
    QPalette dark = before;
    dark.setColor(QPalette::ToolTipBase, QColor(30, 31, 32));
    dark.setColor(QPalette::ToolTipText, QColor(240, 240, 240));
    QToolTip::setPalette(dark);
    QEvent change(QEvent::ApplicationPaletteChange);
    QApplication::sendEvent(&controller.window(), &change);
    hover(volume->freeFile());
    controller.window().resize(210, 44);

    const QImage picture = controller.window().grab().toImage();
    QToolTip::setPalette(before);
    EXPECT_EQ(picture.pixelColor(5, 40), QColor(30, 31, 32));
    EXPECT_GT(picture.pixelColor(0, 20).lightness(), QColor(30, 31, 32).lightness());
}

TEST(TooltipControllerShared, ThereIsOneController)
{
    EXPECT_EQ(&TooltipController::sharedInstance(), &TooltipController::sharedInstance());
}

} // namespace tessera
