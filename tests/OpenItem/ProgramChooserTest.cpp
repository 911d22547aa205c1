// SPDX-License-Identifier: MIT
#include "OpenItem/ProgramChooser.h"

#include <QCheckBox>
#include <QLabel>
#include <QListWidget>
#include <QPointer>
#include <QPushButton>
#include <QTest>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstddef>
#include <string>
#include <vector>

namespace tessera {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class ProgramChooserTest : public testing::Test {
protected:
    ProgramChooserTest() { make({{"e", "Editor"}, {"v", "Viewer"}, {"o", "Other", "", false}}); }
    ~ProgramChooserTest() override { delete chooser; }

    void make(const std::vector<ProgramChoice>& programs, const char* name = "a.txt")
    {
        delete chooser;
        // NOLINTNEXTLINE(cppcoreguidelines-owning-memory): it may have deleted itself before
        chooser = new ProgramChooser(name, programs, nullptr);
        QObject::connect(chooser, &ProgramChooser::chosen, [this](const std::string& id) {
            chosen.push_back(id);
        });
        chooser->show();
    }

    QListWidget& list() const { return *chooser->findChild<QListWidget*>(); }
    QCheckBox& showAll() const { return *chooser->findChild<QCheckBox*>(); }

    std::vector<std::string> listed() const
    {
        std::vector<std::string> names;
        names.reserve(static_cast<std::size_t>(list().count()));
        for (int row = 0; row < list().count(); ++row) {
            names.push_back(list().item(row)->text().toStdString());
        }
        return names;
    }

    QPushButton& openButton() const
    {
        for (QPushButton* const button : chooser->findChildren<QPushButton*>()) {
            if (button->text() == QStringLiteral("&Open")) {
                return *button;
            }
        }
        throw std::logic_error("no button");
    }

    QPointer<ProgramChooser> chooser;
    std::vector<std::string> chosen;
};

TEST_F(ProgramChooserTest, ListsTheProgramsForTheItemAndTheOthersWhenAskedTo)
{
    EXPECT_THAT(listed(), ElementsAre("Editor", "Viewer"));
    showAll().click();
    EXPECT_THAT(listed(), ElementsAre("Editor", "Viewer", "Other"));
}

TEST_F(ProgramChooserTest, WhereNoneIsForTheItemAllAreListed)
{
    make({{"o", "Other", "", false}});
    EXPECT_THAT(listed(), ElementsAre("Other"));
    EXPECT_TRUE(showAll().isHidden());
}

TEST_F(ProgramChooserTest, EnterOpensInTheUsualProgramOnce)
{
    QTest::keyClick(&list(), Qt::Key_Return);
    EXPECT_THAT(chosen, ElementsAre("e"));
    EXPECT_FALSE(chooser->isVisible());
}

TEST_F(ProgramChooserTest, TheButtonOpensInTheSelectedProgram)
{
    QTest::keyClick(&list(), Qt::Key_Down);
    openButton().click();
    EXPECT_THAT(chosen, ElementsAre("v"));
}

TEST_F(ProgramChooserTest, OpenIsWhatEnterPressesElsewhere)
{
    EXPECT_TRUE(openButton().isDefault());
    QTest::keyClick(&showAll(), Qt::Key_Return);
    EXPECT_THAT(chosen, ElementsAre("e"));
}

TEST_F(ProgramChooserTest, EscapeChoosesNone)
{
    QTest::keyClick(chooser, Qt::Key_Escape);
    EXPECT_FALSE(chooser->isVisible());
    EXPECT_THAT(chosen, IsEmpty());
}

TEST_F(ProgramChooserTest, NamesAreNoMarkup)
{
    // NOLINTNEXTLINE(misc-misleading-bidirectional): such names are what is tested
    make({{"e", "<b>Editor</b>"}}, "<img src=x>\n\xE2\x80\xAE.txt");
    const auto* const question = chooser->findChild<QLabel*>();
    EXPECT_EQ(question->textFormat(), Qt::PlainText);
    EXPECT_FALSE(question->text().contains(QChar(0x202E)));
    EXPECT_FALSE(question->text().contains(QLatin1Char('\n')));
    EXPECT_THAT(listed(), ElementsAre("<b>Editor</b>"));
}

} // namespace
} // namespace tessera
