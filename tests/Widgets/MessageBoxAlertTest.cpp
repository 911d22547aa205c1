// SPDX-License-Identifier: MIT
#include "Widgets/MessageBoxAlert.h"

#include "support/BecomesActive.h"

#include <QAccessible>
#include <QApplication>
#include <QDialog>
#include <QImage>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <memory>
#include <vector>

namespace tessera {
namespace {

struct Shown {
    Qt::TextFormat format = Qt::AutoText;
    QImage picture;
};

bool holds(const QImage& picture, QColor color)
{
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            if (picture.pixelColor(x, y) == color) {
                return true;
            }
        }
    }
    return false;
}

/// How many pixels are dark.
int inkOf(const QImage& picture)
{
    constexpr int kDark = 128;
    int ink = 0;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            ink += picture.pixelColor(x, y).lightness() < kDark ? 1 : 0;
        }
    }
    return ink;
}

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
    int answerAfter(const AlertText& text, const std::function<void(QMessageBox&)>& act)
    {
        QTimer::singleShot(0, &m_window, [act] { act(*box()); });
        return m_alert.runModal(text);
    }

    int answerAfter(const std::function<void(QMessageBox&)>& act)
    {
        return answerAfter(question(), act);
    }

    QStringList buttonsFromTheLeft(const AlertText& text)
    {
        QStringList titles;
        (void)answerAfter(text, [&titles](QMessageBox& box) {
            QList<QPushButton*> buttons = box.findChildren<QPushButton*>();
            std::ranges::sort(buttons, {}, [](const QPushButton* button) { return button->x(); });
            for (const QPushButton* const button : buttons) {
                titles << button->text();
            }
            box.close();
        });
        return titles;
    }

    /// What the labels of an alert with that headline and that text look like.
    std::vector<Shown> shown(const QString& headline, const QString& text)
    {
        std::vector<Shown> result;
        (void)answerAfter({headline, text, {QStringLiteral("OK")}}, [&result](QMessageBox& box) {
            for (const char* const name : {"qt_msgbox_label", "qt_msgbox_informativelabel"}) {
                auto* const label = box.findChild<QLabel*>(QString::fromLatin1(name));
                ASSERT_NE(label, nullptr);
                result.push_back({label->textFormat(), label->grab().toImage()});
            }
            box.close();
        });
        return result;
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

TEST_F(MessageBoxAlertTest, ReturnPressesTheDefaultButton)
{
    AlertText text = question();
    text.defaultButton = 1;
    EXPECT_EQ(
        answerAfter(text, [](QMessageBox& box) { QTest::keyClick(&box, Qt::Key_Return); }), 1001);
}

TEST_F(MessageBoxAlertTest, TheDefaultButtonChangesNothingInTheButtonsOrder)
{
    AlertText text = question();
    text.defaultButton = 1;
    const QStringList usual = buttonsFromTheLeft(question());
    EXPECT_EQ(usual.size(), 2);
    EXPECT_EQ(buttonsFromTheLeft(text), usual);
}

TEST_F(MessageBoxAlertTest, ReturnPressesTheFirstButtonUnlessAnotherIsTheDefault)
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
        box.close();
    });
}

TEST_F(MessageBoxAlertTest, TakesNoPartOfATextForMarkup)
{
    const QString markup = QStringLiteral("<h1>a</h1>");
    for (const Shown& label : shown(markup, markup)) {
        EXPECT_EQ(label.format, Qt::PlainText);
    }
}

TEST_F(MessageBoxAlertTest, ShowsNoPictureThatANameCalls)
{
    const QTemporaryDir folder;
    QImage red(8, 8, QImage::Format_RGB32);
    red.fill(Qt::red);
    const QString path = folder.filePath(QStringLiteral("red.png"));
    ASSERT_TRUE(red.save(path));
    const QString name = QStringLiteral("<img src=\"%1\">").arg(path);
    const std::vector<Shown> labels = shown(name, name);
    ASSERT_EQ(labels.size(), 2U);
    EXPECT_FALSE(holds(labels[0].picture, Qt::red));
    EXPECT_FALSE(holds(labels[1].picture, Qt::red));
}

TEST_F(MessageBoxAlertTest, TagsInANameHideNothingOfTheText)
{
    const QString question = QStringLiteral("Are you sure?");
    const QString headline = QStringLiteral("Warning");
    const int usual = inkOf(shown(headline, question).at(1).picture);
    const QString tags = QStringLiteral("<font color='#efefef' size=1>");
    EXPECT_GT(usual, 0);
    EXPECT_GT(inkOf(shown(headline, tags + question).at(1).picture), usual);
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

TEST_F(MessageBoxAlertTest, AQuestionWhoseWindowGoesIsAnsweredByTheLastButton)
{
    auto other = std::make_unique<QWidget>();
    other->show();
    ASSERT_TRUE(test::becomesActive(*other));
    QTimer::singleShot(0, &window(), [&other] { other.reset(); });
    EXPECT_EQ(alert().runModal(question()), 1001);
    EXPECT_EQ(box(), nullptr);
}

TEST_F(MessageBoxAlertTest, AQuestionOutlivesADialogThatEndsByItself)
{
    alert().setMainWindow(&window());
    auto dialog = std::make_unique<QDialog>();
    dialog->show();
    ASSERT_TRUE(test::becomesActive(*dialog));
    const int answer = answerAfter([&dialog](QMessageBox& box) {
        EXPECT_NE(box.parentWidget(), dialog.get());
        dialog.reset();
        box.buttons()[0]->click();
    });
    EXPECT_EQ(answer, 1000);
}

TEST_F(MessageBoxAlertTest, SoDoesASheet)
{
    alert().setMainWindow(&window());
    auto dialog = std::make_unique<QDialog>();
    dialog->show();
    ASSERT_TRUE(test::becomesActive(*dialog));
    alert().beginSheet(question());
    dialog.reset();
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
