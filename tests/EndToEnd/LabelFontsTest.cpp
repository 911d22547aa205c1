// SPDX-License-Identifier: MIT
#include "EndToEnd/Session/ExpectedPicture.h"
#include "support/Machine/BuiltPaths.h"
#include "support/Machine/FileContent.h"
#include "support/Machine/RunProgram.h"
#include "support/Machine/TempTree.h"

#include <QByteArray>
#include <QChar>
#include <QImage>
#include <QString>

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <string>
#include <vector>

namespace tessera {
namespace {

constexpr const char* kLatinFont = "/usr/share/fonts/truetype/dejavu/DejaVuSans.ttf";
constexpr const char* kEmojiFont = "/usr/share/fonts/truetype/noto/NotoColorEmoji.ttf";

std::string bytesOf(const std::u32string& text)
{
    return QString::fromStdU32String(text).toStdString();
}

/// The first letters of every block of Unicode that has letters, in names of one script each:
/// blocks begin at multiples of 128 or have a script of their own.
std::vector<std::string> namesOfEveryBlock()
{
    constexpr std::size_t kLettersPerName = 3;
    constexpr char32_t kBlockBits = 7;
    std::vector<std::string> names;
    std::u32string name;
    for (char32_t letter = 0x80; letter <= QChar::LastValidCodePoint; ++letter) {
        if (!QChar::isLetter(letter)) {
            continue;
        }
        const bool isOfAnother = name.empty() || QChar::script(name[0]) != QChar::script(letter)
            || name[0] >> kBlockBits != letter >> kBlockBits;
        if (isOfAnother && !name.empty()) {
            names.push_back(bytesOf(name));
            name.clear();
        }
        if (name.size() < kLettersPerName) {
            name += letter;
        }
    }
    names.push_back(bytesOf(name));
    return names;
}

/// Pictures of a folder drawn by the program where there are only the fonts that a test names.
class LabelFonts : public testing::Test {
protected:
    void addFont(const std::string& file)
    {
        out.makeSymbolicLink("fonts/" + file.substr(file.rfind('/') + 1), file);
    }

    /// A picture in which every file of the folder has a box of its own.
    QImage draw(int width, int height)
    {
        const std::string picture = out.pathOf("picture.png");
        const auto result = test::runProgram(
            test::built::program(),
            {"--picture",
             picture,
             "--size",
             std::to_string(width) + 'x' + std::to_string(height),
             tree.path()},
            {"FONTCONFIG_FILE=" + out.pathOf("fonts.conf")});
        EXPECT_EQ(result.exitStatus, 0) << result.standardError;
        expected = std::make_unique<test::ExpectedPicture>(tree.path(), "");
        expected->setMapSize({width, height});
        return QImage::fromData(QByteArray::fromStdString(test::fileContent(picture)), "PNG");
    }

    /// The line of a name alone in the middle of its page.
    QRect labelOf(const std::string& name) const
    {
        const QRectF page = expected->boxOf(name).adjusted(2, 2, -2, -2);
        const double top = page.top() + std::floor((page.height() - 16) / 2) + 3;
        return QRectF(page.left() + 5, top, page.width() - 10, 16).toRect();
    }

    /// The columns of the label that hold something, and the rows.
    static QRect inkIn(const QImage& image, const QRect& label)
    {
        QRect ink;
        for (int y = label.top(); y <= label.bottom(); ++y) {
            for (int x = label.left(); x <= label.right(); ++x) {
                if (image.pixel(x, y) != image.pixel(label.left() - 2, y)) {
                    ink |= QRect(x, y, 1, 1);
                }
            }
        }
        return ink;
    }

    test::TempTree tree;
    test::TempTree out;
    std::unique_ptr<test::ExpectedPicture> expected;

private:
    void SetUp() override
    {
        out.makeFolder("fonts");
        out.writeFile(
            "fonts.conf",
            "<fontconfig><dir>" + out.pathOf("fonts") + "</dir><cachedir>" + out.pathOf("cache")
                + "</cachedir></fontconfig>");
        addFont(kLatinFont);
    }
};

TEST_F(LabelFonts, ANameInAnyScriptIsShownInItsPlaceEvenWithoutAFontForIt)
{
    const std::vector<std::string> names = namesOfEveryBlock();
    ASSERT_GT(names.size(), 300U);
    for (const std::string& name : names) {
        tree.makeFile(name, 4096);
    }
    const QImage image = draw(2400, 1600);
    for (const std::string& name : names) {
        const QRect label = labelOf(name);
        const QRect ink = inkIn(image, label);
        ASSERT_FALSE(ink.isEmpty()) << name;
        ASSERT_NEAR(ink.center().x(), label.center().x(), 8) << name;
    }
}

TEST_F(LabelFonts, ALetterWithoutAFontIsABox)
{
    const std::string name = "\xE0\xA4\xA6"; // Devanagari, which DejaVu lacks
    tree.makeFile(name, 4096);
    const QImage image = draw(106, 66);
    const QRect ink = inkIn(image, labelOf(name));
    EXPECT_GE(ink.width(), 5);
    EXPECT_EQ(ink.width(), ink.height());
    for (int i = 0; i < ink.width(); ++i) {
        EXPECT_EQ(image.pixel(ink.left() + i, ink.top()), 0xFF000000);
        EXPECT_EQ(image.pixel(ink.left() + i, ink.bottom()), 0xFF000000);
        EXPECT_EQ(image.pixel(ink.left(), ink.top() + i), 0xFF000000);
        EXPECT_EQ(image.pixel(ink.right(), ink.top() + i), 0xFF000000);
    }
    EXPECT_EQ(qGreen(image.pixel(ink.center())), 0xFF);
}

TEST_F(LabelFonts, LettersBesideOnesWithoutAFontAreShownAsTheyAre)
{
    tree.makeFile("\xE0\xA4\xA6llllll", 4096);
    const QImage image = draw(106, 66);
    const QRect ink = inkIn(image, labelOf("\xE0\xA4\xA6llllll"));
    int bars = 0;
    bool wasDark = false;
    for (int x = ink.left() + 10; x <= ink.right(); ++x) {
        const bool isDark = qGreen(image.pixel(x, ink.center().y())) < 0x80;
        bars += isDark && !wasDark ? 1 : 0;
        wasDark = isDark;
    }
    EXPECT_EQ(bars, 6);
}

TEST_F(LabelFonts, EmojiAreShownInTheirColours)
{
    addFont(kEmojiFont);
    const std::string name = "\xF0\x9F\xA7\x80"; // a cheese, which is yellow
    tree.makeFile(name, 4096);
    const QImage image = draw(106, 66);
    const QRect ink = inkIn(image, labelOf(name));
    ASSERT_GE(ink.height(), 8);
    int yellow = 0;
    for (int y = ink.top(); y <= ink.bottom(); ++y) {
        for (int x = ink.left(); x <= ink.right(); ++x) {
            const QRgb pixel = image.pixel(x, y);
            yellow += qRed(pixel) > 0xC0 && qGreen(pixel) > 0x80 && qBlue(pixel) < 0x80 ? 1 : 0;
        }
    }
    EXPECT_GT(yellow, ink.width() * ink.height() / 4);
}

} // namespace
} // namespace tessera
