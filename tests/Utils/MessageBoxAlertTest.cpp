// SPDX-License-Identifier: MIT
#include "Utils/MessageBoxAlert.h"

#include "support/becomesActive.h"

#include <QAccessible>
#include <QApplication>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QTest>
#include <QTimer>

#include <gtest/gtest.h>

#include <functional>

namespace tessera {
namespace {

class MessageBoxAlertTest : public testing::Test {
protected:
    MessageBoxAlertTest()
    {
        m_window.show();
        m_window.activateWindow();
        EXPECT_TRUE(test::becomesActive(m_window));
    }

    static AlertText question()
    {
        return {
            QStringLiteral("Warning"),
            QStringLiteral("Really <b>remove</b> it?"),
            {QStringLiteral("Remove"), QStringLiteral("Cancel")}};
    }

    static QMessageBox* box()
    {
        for (QWidget* widget : QApplication::topLevelWidgets()) {
            auto* found = qobject_cast<QMessageBox*>(widget);
            if (found != nullptr && found->isVisible()) {
                return found;
            }
        }
        return nullptr;
    }

    /// The answer when `act` is done to the box.
    int answerAfter(const std::function<void(QMessageBox&)>& act)
    {
        QTimer::singleShot(0, &m_window, [act] { act(*box()); });
        return m_alert.runModal(question());
    }

    MessageBoxAlert& alert() { return m_alert; }
    QWidget& window() { return m_window; }

private:
    QWidget m_window;
    MessageBoxAlert m_alert;
};

TEST_F(MessageBoxAlertTest, EachButtonHasItsAnswer)
{
    EXPECT_EQ(answerAfter([](QMessageBox& box) { box.buttons()[0]->click(); }), 1000);
    EXPECT_EQ(answerAfter([](QMessageBox& box) { box.buttons()[1]->click(); }), 1001);
}

TEST_F(MessageBoxAlertTest, ScreenReadersAnnounceTheMessage)
{
    QString announced;
    QString message;
    answerAfter([&](QMessageBox& box) {
        announced = QAccessible::queryAccessibleInterface(&box)->text(QAccessible::Name);
        message = box.text();
        box.buttons()[0]->click();
    });
    EXPECT_FALSE(message.isEmpty());
    EXPECT_EQ(announced, message);
}

TEST_F(MessageBoxAlertTest, ReturnPressesTheFirstButton)
{
    EXPECT_EQ(answerAfter([](QMessageBox& box) { QTest::keyClick(&box, Qt::Key_Return); }), 1000);
}

TEST_F(MessageBoxAlertTest, EscapeAnswersAsTheLastButton)
{
    EXPECT_EQ(answerAfter([](QMessageBox& box) { QTest::keyClick(&box, Qt::Key_Escape); }), 1001);
}

TEST_F(MessageBoxAlertTest, ClosingAnswersAsTheLastButton)
{
    EXPECT_EQ(answerAfter([](QMessageBox& box) { box.close(); }), 1001);
}

TEST_F(MessageBoxAlertTest, ShowsItsTextsAsTheyAre)
{
    (void)answerAfter([](QMessageBox& box) {
        EXPECT_EQ(box.text(), QStringLiteral("Warning"));
        EXPECT_EQ(box.informativeText(), QStringLiteral("Really <b>remove</b> it?"));
        EXPECT_EQ(box.textFormat(), Qt::PlainText);
        box.close();
    });
}

TEST_F(MessageBoxAlertTest, ItsHeadlineIsBold)
{
    (void)answerAfter([](QMessageBox& box) {
        EXPECT_TRUE(box.findChild<QLabel*>(QStringLiteral("qt_msgbox_label"))->font().bold());
        box.close();
    });
}

TEST_F(MessageBoxAlertTest, WhileTheUserWorksElsewhereASheetBelongsToTheMainWindow)
{
    alert().setMainWindow(&window());
    QApplication::setActiveWindow(nullptr);
    ASSERT_EQ(QApplication::activeWindow(), nullptr);
    alert().beginSheet(question());
    ASSERT_NE(box(), nullptr);
    EXPECT_EQ(box()->parentWidget(), &window());
    box()->close();
}

TEST_F(MessageBoxAlertTest, ASheetBelongsToTheActiveWindowAndBlocksItAlone)
{
    alert().beginSheet(
        {QStringLiteral("Error"),
         QStringLiteral("It failed."),
         {QStringLiteral("OK")},
         QStringLiteral("The disk is full.")});
    ASSERT_NE(box(), nullptr);
    EXPECT_EQ(box()->parentWidget(), &window());
    EXPECT_EQ(box()->windowModality(), Qt::WindowModal);
    EXPECT_EQ(box()->informativeText(), QStringLiteral("It failed.\n\nThe disk is full."));
    QTest::keyClick(box(), Qt::Key_Escape);
    EXPECT_EQ(box(), nullptr);
}

} // namespace
} // namespace tessera
