// SPDX-License-Identifier: MIT
#include "TreeScreen/PathBar/ToolbarPathControl.h"

#include "TreeScreen/PathBar/PathComponentButton.h"
#include "support/BecomesActive.h"
#include "support/Fakes/FakeIconProvider.h"
#include "support/MakeTree.h"

#include <QApplication>
#include <QSignalSpy>
#include <QTest>

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

namespace tessera {

namespace {

class ToolbarPathControlTest : public testing::Test {
protected:
    ToolbarPathControlTest()
    {
        control.setFrame({0, 0, 800, 30});
        control.show();
    }

    ~ToolbarPathControlTest() override
    {
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }

    void showPathTo(std::string_view path)
    {
        Folder& folder = path.empty() ? *tree : static_cast<Folder&>(test::at(*tree, path));
        control.setPathComponents(pathComponents(folder, icons));
        control.refreshWidth();
    }

    /// The components in their order.
    std::vector<PathComponentButton*> buttons() const
    {
        std::vector<PathComponentButton*> shown;
        for (auto* button : control.findChildren<PathComponentButton*>()) {
            if (!button->isHidden()) {
                shown.push_back(button);
            }
        }
        return shown;
    }

    double naturalWidth() const { return control.naturalSize().width(); }

    std::string clickedPath() const
    {
        const auto* component = control.clickedPathComponent();
        return component == nullptr ? std::string() : component->url().path();
    }

    void focusLast()
    {
        control.activateWindow();
        ASSERT_TRUE(test::becomesActive(control));
        QTest::keyClick(&control, Qt::Key_Tab);
        ASSERT_EQ(QApplication::focusWidget(), buttons().back());
    }

    static void press(Qt::Key key) { QTest::keyClick(QApplication::focusWidget(), key); }

    test::FakeIconProvider icons;
    std::unique_ptr<TopFolder> tree
        = test::makeTree("/home/anna", "documents/ ( pictures/ ( A&B/ ( c:1200000 ) ) ) d:50");
    ToolbarPathControl control;
};

} // namespace

TEST_F(ToolbarPathControlTest, IsNoWiderThanItsContent)
{
    showPathTo("documents");

    EXPECT_LT(naturalWidth(), 800);
    EXPECT_EQ(control.width(), naturalWidth());
    EXPECT_EQ(control.height(), 30);
}

TEST_F(ToolbarPathControlTest, IsNoWiderThanTheToolbarOffers)
{
    showPathTo("documents");
    control.setFrame({0, 0, naturalWidth() - 50, 30});

    EXPECT_EQ(control.width(), naturalWidth() - 50);
}

TEST_F(ToolbarPathControlTest, GrowsAgainInADeeperFolder)
{
    showPathTo("");
    const int before = control.width();
    showPathTo("documents/pictures");

    EXPECT_GT(control.width(), before);
    EXPECT_EQ(control.width(), naturalWidth());
    EXPECT_EQ(control.toolbarRequestedRect(), (Rect{0, 0, 800, 30}));
}

TEST_F(ToolbarPathControlTest, ContentThatIsWiderThanTheToolbarMakesItAsWideAsThatAgain)
{
    tree = test::makeTree(
        "/home/anna",
        "documents/ ( aaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaa/ ( "
        "bbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbb/ ( c:1 ) ) )");
    showPathTo("");
    ASSERT_LT(control.width(), 800);
    const std::string a(68, 'a');
    const std::string b(71, 'b');
    showPathTo("documents/" + a + '/' + b);

    EXPECT_GT(naturalWidth(), 800);
    EXPECT_EQ(control.width(), 800);
    EXPECT_EQ(control.toolbarRequestedRect(), (Rect{0, 0, 800, 30}));
}

TEST_F(ToolbarPathControlTest, ShrinksAgainInAHigherFolder)
{
    showPathTo("documents/pictures");
    const int before = control.width();
    showPathTo("documents");

    EXPECT_LT(control.width(), before);
}

TEST_F(ToolbarPathControlTest, IsAsWideAsAllItsComponents)
{
    showPathTo("documents");
    double sum = 0;
    for (const auto& component : control.pathComponents()) {
        sum += component.naturalSize().width();
    }

    EXPECT_GE(naturalWidth(), sum);
    EXPECT_LE(naturalWidth(), sum + 8);
}

TEST_F(ToolbarPathControlTest, ComponentsStandSideBySide)
{
    showPathTo("documents/pictures");
    const auto shown = buttons();

    ASSERT_EQ(shown.size(), 3U);
    EXPECT_EQ(shown[1]->x(), shown[0]->geometry().right() + 1);
    EXPECT_EQ(shown[2]->x(), shown[1]->geometry().right() + 1);
    EXPECT_LE(shown[2]->geometry().right(), control.width());
}

TEST_F(ToolbarPathControlTest, WithoutRoomTheLastComponentKeepsItsWidthLongest)
{
    showPathTo("documents/pictures");
    const int last = buttons().back()->width();
    const int first = buttons().front()->width();
    control.setFrame({0, 0, naturalWidth() - 60, 30});

    EXPECT_EQ(buttons().back()->width(), last);
    EXPECT_LE(buttons().front()->width(), first);
}

TEST_F(ToolbarPathControlTest, WithLeastRoomTheMiddleIsLeftOut)
{
    showPathTo("documents/pictures/A&B");
    control.setFrame({0, 0, 160, 30});

    EXPECT_EQ(buttons().size(), 2U);
    EXPECT_EQ(buttons().front()->component().url().path(), "/home/anna");
    EXPECT_EQ(buttons().back()->component().url().path(), "/home/anna/documents/pictures/A&B");
}

TEST_F(ToolbarPathControlTest, AClickTellsWhichComponentWasMeant)
{
    showPathTo("documents/pictures");
    const QSignalSpy clicks(&control, &ToolbarPathControl::clicked);
    QTest::mouseClick(buttons().at(1), Qt::LeftButton);

    EXPECT_EQ(clicks.count(), 1);
    EXPECT_EQ(clickedPath(), "/home/anna/documents");
}

TEST_F(ToolbarPathControlTest, NothingIsClickedAtFirst)
{
    showPathTo("documents");
    EXPECT_EQ(control.clickedPathComponent(), nullptr);
}

TEST_F(ToolbarPathControlTest, AClickMayChangeTheComponents)
{
    showPathTo("documents/pictures");
    QObject::connect(&control, &ToolbarPathControl::clicked, &control, [this] { showPathTo(""); });
    QTest::mouseClick(buttons().at(2), Qt::LeftButton);

    EXPECT_EQ(clickedPath(), "/home/anna/documents/pictures");
    EXPECT_EQ(buttons().size(), 1U);
}

TEST_F(ToolbarPathControlTest, AClickLeavesTheFocusWhereItIs)
{
    showPathTo("documents");
    control.activateWindow();
    ASSERT_TRUE(test::becomesActive(control));
    QTest::mouseClick(buttons().at(0), Qt::LeftButton);

    EXPECT_FALSE(buttons().at(0)->hasFocus());
}

TEST_F(ToolbarPathControlTest, TabReachesTheCurrentFolder)
{
    showPathTo("documents/pictures");
    focusLast();
}

TEST_F(ToolbarPathControlTest, ArrowKeysMoveAmongTheComponents)
{
    showPathTo("documents/pictures");
    focusLast();
    press(Qt::Key_Left);
    EXPECT_TRUE(buttons().at(1)->hasFocus());
    press(Qt::Key_Left);
    press(Qt::Key_Left);
    EXPECT_TRUE(buttons().at(0)->hasFocus());
    press(Qt::Key_Right);
    EXPECT_TRUE(buttons().at(1)->hasFocus());
}

TEST_F(ToolbarPathControlTest, EnterAndSpaceClick)
{
    showPathTo("documents/pictures");
    focusLast();
    const QSignalSpy clicks(&control, &ToolbarPathControl::clicked);
    press(Qt::Key_Return);
    EXPECT_EQ(clickedPath(), "/home/anna/documents/pictures");
    press(Qt::Key_Left);
    press(Qt::Key_Space);
    EXPECT_EQ(clickedPath(), "/home/anna/documents");
    EXPECT_EQ(clicks.count(), 2);
}

TEST_F(ToolbarPathControlTest, TheFocusStaysInTheBarWhenItsComponentGoes)
{
    showPathTo("documents/pictures");
    focusLast();
    showPathTo("documents");

    EXPECT_TRUE(buttons().back()->hasFocus());
}

TEST_F(ToolbarPathControlTest, ScreenReadersAreToldTheNamesAsTheyAre)
{
    showPathTo("documents/pictures/A&B");

    EXPECT_FALSE(control.accessibleName().isEmpty());
    EXPECT_EQ(buttons().at(0)->accessibleName(), QStringLiteral("anna"));
    EXPECT_EQ(buttons().at(3)->accessibleName(), QStringLiteral("A&B (1.2 MB)"));
}

TEST_F(ToolbarPathControlTest, TooltipsShowNamesThatLookLikeMarkupAsTheyAre)
{
    PathComponent component(icons);
    component.setFile(Url("/<b>c", true));
    control.setPathComponents({component});
    control.refreshWidth();

    EXPECT_TRUE(buttons().at(0)->toolTip().contains(QStringLiteral("&lt;b&gt;c")));
}

TEST_F(ToolbarPathControlTest, ThePointerAndThePressAreShown)
{
    showPathTo("documents");
    auto* button = buttons().at(0);
    const QImage plain = button->grab().toImage();
    QTest::mousePress(button, Qt::LeftButton);
    const QImage pressed = button->grab().toImage();
    QTest::mouseRelease(button, Qt::LeftButton);

    EXPECT_NE(plain, pressed);
}

} // namespace tessera
