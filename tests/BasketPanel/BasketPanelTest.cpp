// SPDX-License-Identifier: MIT
#include "BasketPanel/BasketPanel.h"

#include "BasketPanelFixture.h"
#include "Model/Document.h"
#include "Model/FreeSpace.h"
#include "Widgets/ItemDrag.h"
#include "support/BecomesActive.h"

#include <QAccessible>
#include <QDragEnterEvent>
#include <QMimeData>
#include <QScrollArea>
#include <QScrollBar>
#include <QSignalSpy>
#include <QUrl>

namespace tessera {
namespace {

class BasketPanelTest : public test::BasketPanelFixture { };

TEST_F(BasketPanelTest, ItsHeadSaysWhatTheSubjectIsAndFrees)
{
    panel.setSubject(&at("docs"));
    open();
    EXPECT_EQ(text("basketSubject"), QStringLiteral("docs"));
    EXPECT_EQ(text("basketSubjectSize"), QStringLiteral("800 B"));
    EXPECT_EQ(
        freed("basketSubjectFreed"), QStringLiteral("Will free: 800 B, once the trash is emptied"));
    EXPECT_TRUE(button("basketToggle").isEnabled());
    EXPECT_EQ(button("basketToggle").text(), QStringLiteral("Add to Basket"));
}

TEST_F(BasketPanelTest, AsksTheDiskAboutTheSubject)
{
    freeing.itemStates->setAnswer("/home/me/c", {ItemAnswer::Outcome::Gone, {}});
    panel.setSubject(&at("c"));
    open();
    EXPECT_EQ(
        freed("basketSubjectFreed"), QStringLiteral("Will free: 50 B, once the trash is emptied"));
    ASSERT_TRUE(disk.hearNext());
    EXPECT_EQ(
        freed("basketSubjectFreed"),
        QStringLiteral("Will free: 0 B to 50 B, once the trash is emptied"));
}

TEST_F(BasketPanelTest, WithoutASubjectThereIsNoHead)
{
    open();
    EXPECT_FALSE(part<QLabel>("basketSubject").isVisible());
    EXPECT_FALSE(button("basketToggle").isVisible());
    panel.setSubject(&at("c"));
    ASSERT_TRUE(catchesUp());
    EXPECT_TRUE(button("basketToggle").isVisible());
}

TEST_F(BasketPanelTest, TheRootCannotBeChosen)
{
    panel.setSubject(tree.get());
    open();
    EXPECT_EQ(text("basketSubject"), QStringLiteral("me"));
    EXPECT_EQ(
        freed("basketSubjectFreed"), QStringLiteral("Will free: 870 B, once the trash is emptied"));
    EXPECT_FALSE(button("basketToggle").isEnabled());
}

TEST_F(BasketPanelTest, SpaceThatIsNoItemFreesNothingAndCannotBeChosen)
{
    auto space = makeNode<FreeSpace>("");
    space->setTotalAllocation(500);
    panel.setSubject(&tree->insertChild(std::move(space)));
    open();
    EXPECT_EQ(text("basketSubjectSize"), QStringLiteral("500 B"));
    EXPECT_FALSE(part<WillFreeView>("basketSubjectFreed").isVisible());
    EXPECT_FALSE(button("basketToggle").isEnabled());
}

TEST_F(BasketPanelTest, ItsHeadAsksForTheSubjectToGoInOrOut)
{
    const QSignalSpy asked(&panel, &BasketPanel::toggleRequested);
    panel.setSubject(&at("c"));
    open();
    QTest::mouseClick(&button("basketToggle"), Qt::LeftButton);
    EXPECT_EQ(asked.size(), 1);
    keeper.toggle(at("c"));
    ASSERT_TRUE(catchesUp());
    EXPECT_EQ(button("basketToggle").text(), QStringLiteral("Take Out of Basket"));
    keeper.toggle(at("c"));
    ASSERT_TRUE(catchesUp());
    EXPECT_EQ(button("basketToggle").text(), QStringLiteral("Add to Basket"));
}

TEST_F(BasketPanelTest, ItsFootAddsUp)
{
    add({"docs", "docs/a", "c"});
    open();
    EXPECT_EQ(text("basketTotal"), QStringLiteral("3 items, 850 B"));
    EXPECT_EQ(freed("basketFreed"), QStringLiteral("Will free: 850 B, once the trash is emptied"));
    keeper.remove(at("docs"));
    keeper.remove(at("c"));
    ASSERT_TRUE(catchesUp());
    EXPECT_EQ(text("basketTotal"), QStringLiteral("1 item, 700 B"));
    EXPECT_EQ(freed("basketFreed"), QStringLiteral("Will free: 700 B, once the trash is emptied"));
}

TEST_F(BasketPanelTest, EmptyItHasNothingToMove)
{
    open();
    EXPECT_EQ(text("basketTotal"), QStringLiteral("No items"));
    for (const char* const name : {"basketMoveAll", "basketEmpty"}) {
        EXPECT_FALSE(button(name).isEnabled());
        EXPECT_EQ(button(name).toolTip(), QStringLiteral("The basket is empty."));
        EXPECT_EQ(button(name).accessibleDescription(), button(name).toolTip());
    }
    EXPECT_FALSE(part<WillFreeView>("basketFreed").isVisible());
}

TEST_F(BasketPanelTest, AThousandChangesAreShownAtOnce)
{
    std::string items;
    for (int i = 0; i < 1000; ++i) {
        items += "f" + std::to_string(i) + ":" + std::to_string(i + 1) + " ";
    }
    tree = test::makeTree("/home/me", items);
    open();
    QAbstractItemModel& model = *list().model();
    const QSignalSpy resets(&model, &QAbstractItemModel::modelReset);
    const QSignalSpy figures(&model, &QAbstractItemModel::dataChanged);
    const QSignalSpy changes(&keeper, &BasketKeeper::changed);
    for (File* const child : tree->children()) {
        keeper.add(*child);
    }
    ASSERT_EQ(changes.size(), 1000);
    ASSERT_TRUE(catchesUp());
    EXPECT_EQ(resets.size(), 1);
    EXPECT_EQ(model.rowCount(), 1000);
    const auto isWorkedOut = [&model](int row) {
        return model.index(row, BasketModel::WillFree).data() != QStringLiteral("…");
    };
    const int last = list().indexAt({5, list().viewport()->height() - 1}).row();
    ASSERT_TRUE(QTest::qWaitFor([&] { return isWorkedOut(last); }));
    QCoreApplication::processEvents();
    EXPECT_EQ(figures.size(), last + 1);
}

TEST_F(BasketPanelTest, OutOfSightItDoesNothing)
{
    const QSignalSpy resets(list().model(), &QAbstractItemModel::modelReset);
    panel.setSubject(&at("docs"));
    add({"docs", "c"});
    panel.treeChanged();
    EXPECT_FALSE(isBehind());
    QCoreApplication::processEvents();
    EXPECT_TRUE(resets.isEmpty());
    EXPECT_TRUE(text("basketTotal").isEmpty());
    EXPECT_TRUE(disk.isQuiet());
}

TEST_F(BasketPanelTest, BehindAnotherPanelItDoesNothing)
{
    open();
    panel.setInFront(false);
    add({"docs"});
    EXPECT_FALSE(isBehind());
    EXPECT_EQ(list().model()->rowCount(), 0);
    panel.setInFront(true);
    EXPECT_EQ(list().model()->rowCount(), 1);
    EXPECT_EQ(text("basketTotal"), QStringLiteral("1 item, 800 B"));
}

TEST_F(BasketPanelTest, WhatWasAskedBeforeItWasClosedIsNotHeard)
{
    add({"c"});
    open();
    ASSERT_TRUE(disk.awaitNext());
    panel.hide();
    keeper.treeLeaves(*tree);
    panel.setSubject(nullptr);
    tree.reset();
    ASSERT_TRUE(disk.hear());
    EXPECT_FALSE(isBehind());
}

TEST_F(BasketPanelTest, ASubjectThatDiesIsNotTouched)
{
    panel.setSubject(&at("docs/a"));
    open();
    ASSERT_TRUE(disk.awaitNext());
    panel.setSubject(nullptr);
    auto& docs = static_cast<Folder&>(at("docs"));
    (void)docs.removeChild(at("docs/a"));
    panel.treeChanged();
    ASSERT_TRUE(disk.hear());
    panel.grab();
    ASSERT_TRUE(catchesUp());
    EXPECT_FALSE(part<QLabel>("basketSubject").isVisible());
}

TEST_F(BasketPanelTest, ItemsThatDieAreNotTouchedBeforeItHasCaughtUp)
{
    add({"docs", "docs/a", "c"});
    open();
    keeper.nodeWillLeave(at("docs"));
    (void)tree->removeChild(at("docs"));
    ASSERT_TRUE(isBehind());
    panel.grab();
    EXPECT_EQ(list().model()->rowCount(), 3);
    ASSERT_TRUE(catchesUp());
    EXPECT_EQ(list().model()->rowCount(), 1);
    EXPECT_EQ(text("basketTotal"), QStringLiteral("1 item, 50 B"));
}

TEST_F(BasketPanelTest, ATreeThatLeavesTakesAllWithIt)
{
    add({"docs", "docs/a", "c"});
    panel.setSubject(&at("docs"));
    open();
    keeper.treeLeaves(*tree);
    panel.setSubject(nullptr);
    tree.reset();
    panel.grab();
    QTest::keyClick(&list(), Qt::Key_Delete);
    QTest::keyClick(&list(), Qt::Key_Return);
    ASSERT_TRUE(catchesUp());
    EXPECT_EQ(text("basketTotal"), QStringLiteral("No items"));
}

TEST_F(BasketPanelTest, SizesFollowTheTree)
{
    add({"docs"});
    panel.setSubject(&at("docs"));
    open();
    auto& docs = static_cast<Folder&>(at("docs"));
    (void)docs.removeChild(at("docs/b"));
    panel.treeChanged();
    ASSERT_TRUE(catchesUp());
    EXPECT_EQ(text("basketSubjectSize"), QStringLiteral("700 B"));
    EXPECT_EQ(text("basketTotal"), QStringLiteral("1 item, 700 B"));
    EXPECT_EQ(freed("basketFreed"), QStringLiteral("Will free: 700 B, once the trash is emptied"));
    EXPECT_EQ(list().model()->index(0, 1).data().toString(), QStringLiteral("700 B"));
}

TEST_F(BasketPanelTest, KeysTakeItemsOutAndShowThem)
{
    std::vector<File*> shown;
    QObject::connect(
        &panel, &BasketPanel::showRequested, &panel, [&](File* item) { shown.push_back(item); });
    add({"docs", "c", "d"});
    open();
    ASSERT_TRUE(test::becomesActive(panel));
    panel.setFocus();
    ASSERT_TRUE(list().hasFocus());
    list().setCurrentIndex(list().model()->index(1, 0));
    QTest::keyClick(&list(), Qt::Key_Return);
    EXPECT_EQ(shown, std::vector{&at("c")});
    QTest::keyClick(&list(), Qt::Key_Delete);
    EXPECT_FALSE(keeper.basket().isMarked(at("c")));
    EXPECT_EQ(keeper.basket().size(), 2U);
    EXPECT_TRUE(moveRequests.empty());
}

TEST_F(BasketPanelTest, EmptyBasketTakesAllOutAndLeavesTheKeyboardInTheList)
{
    add({"docs", "c"});
    open();
    ASSERT_TRUE(test::becomesActive(panel));
    button("basketEmpty").setFocus();
    QTest::keyClick(&button("basketEmpty"), Qt::Key_Space);
    EXPECT_TRUE(keeper.basket().isEmpty());
    ASSERT_TRUE(catchesUp());
    EXPECT_TRUE(list().hasFocus());
    EXPECT_TRUE(moveRequests.empty());
}

TEST_F(BasketPanelTest, TabReachesAllPartsInTheirOrder)
{
    add({"docs"});
    panel.setSubject(&at("c"));
    open();
    ASSERT_TRUE(test::becomesActive(panel));
    button("basketToggle").setFocus();
    const std::vector<QWidget*> order{
        &list(), &button("basketEmpty"), &button("basketMoveAll"), &button("basketToggle")};
    for (QWidget* const next : order) {
        QTest::keyClick(panel.focusWidget(), Qt::Key_Tab);
        EXPECT_TRUE(next->hasFocus()) << next->objectName().toStdString();
    }
}

TEST_F(BasketPanelTest, NoButtonIsPressedByReturnElsewhere)
{
    for (const QPushButton* const button : panel.findChildren<QPushButton*>()) {
        EXPECT_FALSE(button->autoDefault());
        EXPECT_FALSE(button->isDefault());
    }
}

TEST_F(BasketPanelTest, ReadsOutTheTotalWhenItChanges)
{
    open();
    const QAccessibleInterface* const seen
        = QAccessible::queryAccessibleInterface(&part<QLabel>("basketTotal"));
    ASSERT_NE(seen, nullptr);
    EXPECT_EQ(seen->role(), QAccessible::AlertMessage);
    struct ShowCounter : QObject {
        bool eventFilter(QObject* /*watched*/, QEvent* event) override
        {
            count += event->type() == QEvent::Show ? 1 : 0;
            return false;
        }
        int count = 0;
    } shows;
    part<QLabel>("basketTotal").installEventFilter(&shows);
    add({"c"});
    ASSERT_TRUE(catchesUp());
    EXPECT_EQ(shows.count, 1);
    EXPECT_EQ(seen->text(QAccessible::Name), QStringLiteral("1 item, 50 B"));
    panel.treeChanged();
    ASSERT_TRUE(catchesUp());
    EXPECT_EQ(shows.count, 1);
}

TEST_F(BasketPanelTest, EveryPartHasAName)
{
    add({"docs"});
    open();
    EXPECT_FALSE(panel.accessibleName().isEmpty());
    EXPECT_FALSE(list().accessibleName().isEmpty());
    EXPECT_TRUE(list().accessibleDescription().contains(QStringLiteral("Press B")));
    EXPECT_TRUE(button("basketMoveAll")
                    .accessibleDescription()
                    .endsWith(QStringLiteral("Will free: 800 B, once the trash is emptied")));
    EXPECT_FALSE(button("basketEmpty").accessibleDescription().isEmpty());
}

TEST_F(BasketPanelTest, NamesAreNoMarkup)
{
    at("c").setFragment("<b>x</b>\n\xFF");
    panel.setSubject(tree->children()[1]);
    open();
    EXPECT_EQ(text("basketSubject"), QStringLiteral("<b>x</b>\u240A\uFFFD"));
    for (const QLabel* const label : panel.findChildren<QLabel*>()) {
        EXPECT_EQ(label->textFormat(), Qt::PlainText);
    }
}

TEST_F(BasketPanelTest, LongNamesDoNotMakeItWider)
{
    at("c").setFragment(std::string(250, 'x'));
    keeper.add(*tree->children()[1]);
    panel.setSubject(tree->children()[1]);
    panel.setMinimumSize(240, 80);
    panel.resize(240, 400);
    panel.show();
    QCoreApplication::processEvents();
    const auto& scroll = *panel.findChild<QScrollArea*>();
    EXPECT_EQ(panel.width(), 240);
    EXPECT_LE(scroll.widget()->width(), scroll.viewport()->width());
}

TEST_F(BasketPanelTest, InTheLeastSizeAllIsReachedByScrolling)
{
    add({"docs", "c"});
    panel.setSubject(&at("c"));
    panel.setMinimumSize(240, 80);
    panel.resize(240, 80);
    panel.show();
    ASSERT_TRUE(test::becomesActive(panel));
    QCoreApplication::processEvents();
    const auto& scroll = *panel.findChild<QScrollArea*>();
    EXPECT_EQ(panel.height(), 80);
    EXPECT_GT(scroll.verticalScrollBar()->maximum(), 0);
    EXPECT_LE(scroll.widget()->width(), scroll.viewport()->width());
    for (const char* const name : {"basketToggle", "basketEmpty", "basketMoveAll"}) {
        QPushButton& pressed = button(name);
        pressed.setFocus();
        EXPECT_EQ(pressed.visibleRegion().boundingRect(), pressed.rect()) << name;
        EXPECT_GE(pressed.width(), pressed.sizeHint().width()) << name;
    }
}

QPoint middleOf(const QWidget& widget)
{
    return widget.rect().center();
}

TEST_F(BasketPanelTest, TakesDropsOfBoxesAndShowsThatItWould)
{
    std::vector<std::string> paths;
    QObject::connect(&panel, &BasketPanel::dropped, &panel, [&](const std::string& path) {
        paths.push_back(path);
    });
    open();
    const auto edge = [this] { return panel.grab().toImage().pixel(1, panel.height() / 2); };
    const QRgb before = edge();
    const std::unique_ptr<QMimeData> data(mimeDataOfItem("/home/me/c\xFF"));
    QDragEnterEvent enter(
        middleOf(panel), Qt::CopyAction | Qt::LinkAction, data.get(), Qt::LeftButton, {});
    QCoreApplication::sendEvent(&panel, &enter);
    EXPECT_TRUE(enter.isAccepted());
    EXPECT_EQ(enter.dropAction(), Qt::LinkAction);
    EXPECT_EQ(edge(), panel.palette().color(QPalette::Highlight).rgb());
    QDragLeaveEvent leave;
    QCoreApplication::sendEvent(&panel, &leave);
    EXPECT_EQ(edge(), before);
    QCoreApplication::sendEvent(&panel, &enter);
    QDropEvent drop(
        middleOf(panel), Qt::CopyAction | Qt::LinkAction, data.get(), Qt::LeftButton, {});
    QCoreApplication::sendEvent(&panel, &drop);
    EXPECT_EQ(paths, std::vector<std::string>{"/home/me/c\xFF"});
    EXPECT_EQ(edge(), before);
}

TEST_F(BasketPanelTest, NothingInsideItTakesDropsForItself)
{
    EXPECT_TRUE(panel.acceptDrops());
    for (const QWidget* const inside : panel.findChildren<QWidget*>()) {
        EXPECT_FALSE(inside->acceptDrops()) << inside->metaObject()->className();
    }
}

TEST_F(BasketPanelTest, OtherDragsAreRefused)
{
    open();
    QMimeData files;
    files.setUrls({QUrl::fromLocalFile(QStringLiteral("/home/me/c"))});
    QDragEnterEvent enter(middleOf(panel), Qt::CopyAction, &files, Qt::LeftButton, {});
    enter.ignore();
    QCoreApplication::sendEvent(&panel, &enter);
    EXPECT_FALSE(enter.isAccepted());
}

} // namespace
} // namespace tessera
