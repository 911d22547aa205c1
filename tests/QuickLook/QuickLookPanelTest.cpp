// SPDX-License-Identifier: MIT
#include "QuickLook/QuickLookPanel.h"

#include "Model/FreeSpace.h"
#include "QuickLook/ImageView.h"
#include "QuickLook/PanelFixture.h"
#include "QuickLook/Reading/Rasters.h"
#include "QuickLook/Reading/SampleFiles.h"

#include <QLabel>
#include <QPlainTextEdit>
#include <QScrollArea>
#include <QScrollBar>
#include <QSignalSpy>
#include <QToolButton>

namespace tessera {

namespace {

class QuickLookPanelTest : public test::PanelTest {
protected:
    bool waitForText(const QString& text) const
    {
        return QTest::qWaitFor(
            [&] {
                const auto* const view = visibleChild<QPlainTextEdit>();
                return view != nullptr && view->toPlainText() == text;
            },
            60000);
    }

    QStringList summaryTexts() const
    {
        QStringList texts;
        for (const QLabel* label : panel.findChildren<QLabel*>()) {
            if (label->isVisible() && label->objectName().startsWith(QLatin1String("summary"))) {
                texts << label->text();
            }
        }
        return texts;
    }

    bool waitForSummary(const QString& text) const
    {
        return QTest::qWaitFor([&] { return summaryTexts().contains(text); }, 60000);
    }
};

} // namespace

TEST_F(QuickLookPanelTest, ThereIsOneForTheProgram)
{
    EXPECT_EQ(&QuickLookPanel::sharedInstance(), &QuickLookPanel::sharedInstance());
}

TEST_F(QuickLookPanelTest, IsClosedAtFirst)
{
    EXPECT_FALSE(panel.isOpen());
    EXPECT_FALSE(panel.isVisible());
}

TEST_F(QuickLookPanelTest, ShowsTheTextOfTheSelectedFile)
{
    open("a.txt");

    EXPECT_TRUE(waitForText(QStringLiteral("text of a")));
    EXPECT_EQ(panel.findChild<QLabel*>(QStringLiteral("title"))->text(), QStringLiteral("a.txt"));
    EXPECT_EQ(panel.accessibleName(), QStringLiteral("Quick Look: a.txt"));
    EXPECT_TRUE(visibleChild<QPlainTextEdit>()->isReadOnly());
}

TEST_F(QuickLookPanelTest, ShowsAPictureWithItsDimensions)
{
    files->addFile("/home/anna/a.txt", test::imageFile({300, 200}, "png"));
    decoder->setAnswer(
        {RasterOutcome::Whole,
         PixelSize{300, 200},
         0,
         {test::opaqueRaster({300, 200}, 0xFFFF0000)}});

    open("a.txt");

    ASSERT_TRUE(waitFor<ImageView>());
    EXPECT_EQ(visibleChild<ImageView>()->image().size(), QSize(300, 200));
    EXPECT_EQ(visibleChild<ImageView>()->size(), QSize(360, 200));
    EXPECT_TRUE(visibleChild<QLabel>(QStringLiteral("caption"))
                    ->text()
                    .contains(QString::fromUtf8("300 × 200")));
}

TEST_F(QuickLookPanelTest, ALargePictureTakesNoMoreThanItsShareOfTheScreen)
{
    files->addFile("/home/anna/a.txt", test::imageFile({500, 400}, "png"));
    decoder->setAnswers([](const RasterRequest& request) {
        // As large as it may be.
        const QSize limit(request.limit.width, request.limit.height);
        const QSize size = QSize(5000, 4000).scaled(limit, Qt::KeepAspectRatio);
        const Raster raster = test::opaqueRaster({size.width(), size.height()}, 0xFFFF0000);
        return RasterAnswer{RasterOutcome::Whole, PixelSize{5000, 4000}, 0, {raster}};
    });

    open("a.txt");

    ASSERT_TRUE(waitFor<ImageView>());
    const QSizeF most = QSizeF(panel.screen()->availableSize()) * 0.7;
    EXPECT_LE(panel.width(), most.width());
    EXPECT_LE(panel.height(), most.height());
    const QSize shown = visibleChild<ImageView>()->image().size();
    EXPECT_NEAR(shown.width() * 4, shown.height() * 5, 5);
}

TEST_F(QuickLookPanelTest, ShowsTheSummaryOfAFolder)
{
    open("docs");

    EXPECT_TRUE(waitForSummary(QStringLiteral("Folder")));
    const QStringList texts = summaryTexts();
    EXPECT_TRUE(texts.contains(QStringLiteral("docs")));
    EXPECT_TRUE(texts.contains(QStringLiteral("2")));
    EXPECT_TRUE(texts.contains(QStringLiteral("3 KB")));
}

TEST_F(QuickLookPanelTest, TheSummaryHasTheItemsIcon)
{
    open("docs");

    const auto* const icon = visibleChild<QLabel>(QStringLiteral("summaryIcon"));
    ASSERT_NE(icon, nullptr);
    EXPECT_EQ(icon->pixmap(Qt::ReturnByValue).deviceIndependentSize(), QSizeF(96, 96));
}

TEST_F(QuickLookPanelTest, APipeIsSummarised)
{
    files->addSpecial("/home/anna/a.txt", FileKind::Fifo);

    open("a.txt");

    EXPECT_TRUE(waitForSummary(QStringLiteral("Pipe")));
}

TEST_F(QuickLookPanelTest, ALinkSaysWhereItLeads)
{
    files->addSpecial("/home/anna/a.txt", FileKind::SymbolicLink, "../\xFF/target");

    open("a.txt");

    EXPECT_TRUE(waitForSummary(QString::fromUtf8("../\uFFFD/target")));
}

TEST_F(QuickLookPanelTest, AVanishedFileSaysSo)
{
    files->addFile("/home/anna/other", "");
    tree = test::makeTree("/home/anna", "gone:1");

    open("gone");

    EXPECT_TRUE(waitForSummary(QStringLiteral("It is not there any more.")));
}

TEST_F(QuickLookPanelTest, AnUnreadableFileSaysWhy)
{
    files->addUnreadableFile("/home/anna/a.txt", 5);

    open("a.txt");

    EXPECT_TRUE(waitForSummary(QStringLiteral("It cannot be read: Permission denied")));
}

TEST_F(QuickLookPanelTest, ABrokenPictureSaysSo)
{
    files->addFile("/home/anna/a.txt", test::pngOfClaimedSize(60000, 60000));
    decoder->setAnswer({RasterOutcome::Whole, PixelSize{60000, 60000}, 0, {}});

    open("a.txt");

    EXPECT_TRUE(waitForSummary(QStringLiteral("The picture is damaged or too large to be shown.")));
}

TEST_F(QuickLookPanelTest, SpaceThatIsNoFileIsSummarisedWithoutALookAtTheDisk)
{
    const auto space = makeNode<FreeSpace>("");
    space->setTotalAllocation(7'000'000);
    screen.selected = space.get();

    openOnSelected();

    EXPECT_TRUE(summaryTexts().contains(QStringLiteral("Free Space")));
    EXPECT_TRUE(summaryTexts().contains(QStringLiteral("7.0 MB")));
    EXPECT_TRUE(files->opened().empty());
}

TEST_F(QuickLookPanelTest, WithoutASelectionItSaysThatThereIsNone)
{
    openOnSelected();

    EXPECT_TRUE(panel.isOpen());
    EXPECT_NE(visibleChild<QLabel>(QStringLiteral("nothing")), nullptr);
    EXPECT_TRUE(files->opened().empty());
}

TEST_F(QuickLookPanelTest, AFileThatDoesNotAnswerIsSummarisedMeanwhile)
{
    files->holdUp("/home/anna/a.txt");

    open("a.txt");

    EXPECT_TRUE(summaryTexts().contains(QString::fromUtf8("Loading…")));
    EXPECT_TRUE(summaryTexts().contains(QStringLiteral("a.txt")));
}

TEST_F(QuickLookPanelTest, AsksForTheItemsPlaceOnlyWhenItOpensOrCloses)
{
    open("a.txt");
    EXPECT_EQ(screen.frameQuestions, 1);
    select("docs");
    selectionChanged();
    EXPECT_EQ(screen.frameQuestions, 1);

    panel.dismiss();

    EXPECT_EQ(screen.frameQuestions, 2);
}

TEST_F(QuickLookPanelTest, FollowsTheSelection)
{
    open("a.txt");
    ASSERT_TRUE(waitForText(QStringLiteral("text of a")));

    select("b.txt");
    selectionChanged();

    EXPECT_TRUE(waitForText(QStringLiteral("text of b")));
}

TEST_F(QuickLookPanelTest, KeepsTheLastItemInSightUntilTheNextIsThere)
{
    open("b.txt");
    ASSERT_TRUE(waitForText(QStringLiteral("text of b")));
    files->holdUp("/home/anna/a.txt");

    select("a.txt");
    selectionChanged();

    EXPECT_TRUE(waitForText(QStringLiteral("text of b")));
    EXPECT_TRUE(waitForSummary(QString::fromUtf8("Loading…")));
}

TEST_F(QuickLookPanelTest, ALateResultOfAnEarlierSelectionIsDropped)
{
    files->holdUp("/home/anna/a.txt");
    open("a.txt");
    files->waitUntilAsked("/home/anna/a.txt");
    select("b.txt");
    selectionChanged();
    files->release("/home/anna/a.txt");

    ASSERT_TRUE(waitForText(QStringLiteral("text of b")));
    QCoreApplication::processEvents();
    EXPECT_EQ(visibleChild<QPlainTextEdit>()->toPlainText(), QStringLiteral("text of b"));
}

TEST_F(QuickLookPanelTest, TheSameItemIsNotReadAgain)
{
    open("a.txt");
    ASSERT_TRUE(waitForText(QStringLiteral("text of a")));

    selectionChanged();

    EXPECT_EQ(files->opened().size(), 1U);
}

TEST_F(QuickLookPanelTest, ASelectionChangesNothingWhileThePanelIsClosed)
{
    select("a.txt");
    selectionChanged();

    EXPECT_FALSE(panel.isVisible());
    EXPECT_TRUE(files->opened().empty());
}

TEST_F(QuickLookPanelTest, LosingTheSelectionLeavesItOpenAndEmpty)
{
    open("a.txt");
    ASSERT_TRUE(waitForText(QStringLiteral("text of a")));

    screen.selected = nullptr;
    selectionChanged();

    EXPECT_TRUE(panel.isOpen());
    EXPECT_EQ(visibleChild<QPlainTextEdit>(), nullptr);
    EXPECT_EQ(panel.findChild<QLabel*>(QStringLiteral("title"))->text(), QString());
}

TEST_F(QuickLookPanelTest, TheNodeMayGoAwayWhileThePanelIsOpen)
{
    files->holdUp("/home/anna/a.txt");
    open("a.txt");
    screen.selected = nullptr;
    tree.reset();

    files->release("/home/anna/a.txt");

    EXPECT_TRUE(waitForText(QStringLiteral("text of a")));
}

TEST_F(QuickLookPanelTest, EscapeAndSpaceCloseIt)
{
    for (const Qt::Key key : {Qt::Key_Escape, Qt::Key_Space}) {
        open("a.txt");
        ASSERT_TRUE(panel.isOpen());
        QTest::keyClick(&panel, key);
        EXPECT_FALSE(panel.isOpen());
        EXPECT_FALSE(panel.isVisible());
    }
    EXPECT_TRUE(screen.keys.empty());
}

TEST_F(QuickLookPanelTest, TheKeyThatOpenedItDoesNotCloseItWhileItIsHeldDown)
{
    open("a.txt");
    QKeyEvent repeated(QEvent::KeyPress, Qt::Key_Space, Qt::NoModifier, QStringLiteral(" "), true);

    QCoreApplication::sendEvent(&panel, &repeated);

    EXPECT_TRUE(panel.isOpen());
}

TEST_F(QuickLookPanelTest, OtherKeyPressesReachTheTreeScreen)
{
    open("docs");

    for (const Qt::Key key :
         {Qt::Key_Left, Qt::Key_Return, Qt::Key_Tab, Qt::Key_Delete, Qt::Key_A}) {
        QTest::keyClick(&panel, key);
    }

    const std::vector<int> expected{
        Qt::Key_Left, Qt::Key_Return, Qt::Key_Tab, Qt::Key_Delete, Qt::Key_A};
    EXPECT_EQ(screen.keys, expected);
    EXPECT_TRUE(panel.isOpen());
}

TEST_F(QuickLookPanelTest, PageDownScrollsALongText)
{
    files->addFile("/home/anna/a.txt", std::string(5000, '\n'));
    open("a.txt");
    ASSERT_TRUE(waitFor<QPlainTextEdit>());

    QTest::keyClick(&panel, Qt::Key_PageDown);

    EXPECT_GT(visibleChild<QPlainTextEdit>()->verticalScrollBar()->value(), 0);
    EXPECT_TRUE(screen.keys.empty());
}

TEST_F(QuickLookPanelTest, TextCanBeSelectedButDoesNotTakeTheKeyboard)
{
    open("a.txt");
    ASSERT_TRUE(waitFor<QPlainTextEdit>());
    auto* const view = visibleChild<QPlainTextEdit>();

    QTest::mouseDClick(view->viewport(), Qt::LeftButton, {}, QPoint(20, 18));

    EXPECT_TRUE(view->textCursor().hasSelection());
    EXPECT_FALSE(view->hasFocus());
}

TEST_F(QuickLookPanelTest, TheButtonClosesIt)
{
    open("a.txt");

    QTest::mouseClick(panel.findChild<QToolButton*>(QStringLiteral("closeButton")), Qt::LeftButton);

    EXPECT_FALSE(panel.isOpen());
}

TEST_F(QuickLookPanelTest, ClosesWithTheMainWindow)
{
    open("a.txt");

    window.hide();

    EXPECT_FALSE(panel.isOpen());
    EXPECT_FALSE(panel.isVisible());
}

TEST_F(QuickLookPanelTest, ClosesWhenTheMainWindowIsMinimised)
{
    open("a.txt");

    window.showMinimized();

    EXPECT_FALSE(panel.isOpen());
}

TEST_F(QuickLookPanelTest, OutlivesTheMainWindow)
{
    auto other = std::make_unique<QWidget>();
    other->show();
    QuickLookPanel panelOfOther(servicesOver(other.get()));
    const File& item = test::at(*tree, "a.txt");
    panelOfOther.open(&item, {});
    ASSERT_EQ(panelOfOther.parentWidget(), other.get());

    other.reset();

    EXPECT_FALSE(panelOfOther.isOpen());
    EXPECT_EQ(panelOfOther.parentWidget(), nullptr);
    panelOfOther.open(&item, {});
    EXPECT_TRUE(panelOfOther.isOpen());
}

TEST_F(QuickLookPanelTest, ClosesAtOnceWhenTheScreenGoesAway)
{
    open("a.txt");

    panel.closeAtOnce();

    EXPECT_FALSE(panel.isVisible());
    selectionChanged();
    EXPECT_FALSE(panel.isOpen());
    EXPECT_EQ(screen.frameQuestions, 1);
}

TEST_F(QuickLookPanelTest, IsMadeAnewForAnotherRunOfTheProgram)
{
    QuickLookPanel& made = QuickLookPanel::makeSharedInstance(servicesOver(&window));
    EXPECT_EQ(&QuickLookPanel::sharedInstance(), &made);
    const QPointer<QuickLookPanel> released = &made;

    QuickLookPanel::releaseSharedInstance();

    EXPECT_TRUE(released.isNull());
    EXPECT_FALSE(QuickLookPanel::sharedInstance().isOpen());
}

TEST_F(QuickLookPanelTest, FloatsAboveTheMainWindowWithoutAPlaceInTheTaskBar)
{
    open("docs");

    EXPECT_EQ(panel.windowType(), Qt::Tool);
    EXPECT_EQ(panel.parentWidget(), &window);
    EXPECT_EQ(panel.geometry().center(), window.frameGeometry().center());
}

TEST_F(QuickLookPanelTest, StaysWhereTheUserMovedIt)
{
    open("a.txt");
    ASSERT_TRUE(waitForText(QStringLiteral("text of a")));
    panel.move(panel.pos() + QPoint(-10, 12));
    const QPoint centre = panel.geometry().center();

    select("docs");
    selectionChanged();

    ASSERT_TRUE(waitForSummary(QStringLiteral("Folder")));
    EXPECT_EQ(panel.geometry().center(), centre);
}

} // namespace tessera
