// SPDX-License-Identifier: MIT
#include "HelperPrograms/Previewer/PageDecoding.h"
#include "QuickLook/Reading/SampleFiles.h"

#include <QBuffer>

#include <gtest/gtest.h>

#include <memory>

namespace tessera {
namespace {

constexpr int kWidth = 200;
constexpr QSize kLimit{kWidth, 800};

class PdfPageDecoding : public testing::Test {
protected:
    std::unique_ptr<PageDecoding> open(const std::string& bytes)
    {
        device.setData(QByteArray::fromStdString(bytes));
        device.open(QIODevice::ReadOnly);
        return openDocument(device);
    }

    QBuffer device;
};

bool hasInk(const QImage& page)
{
    for (int y = 0; y < page.height(); ++y) {
        for (int x = 0; x < page.width(); ++x) {
            if (page.pixelColor(x, y).lightness() < 200) {
                return true;
            }
        }
    }
    return false;
}

TEST_F(PdfPageDecoding, PaintsAPageOfTheAskedWidthOnWhite)
{
    const QImage page = open(test::pdfFile(1))->paint(0, kLimit);

    EXPECT_EQ(page.width(), kWidth);
    EXPECT_NEAR(page.height(), kWidth * 297.0 / 210.0, 1);
    EXPECT_EQ(page.pixelColor(kWidth - 1, 0), QColor(Qt::white));
}

TEST_F(PdfPageDecoding, WhatIsWrittenOnThePageIsThere)
{
    EXPECT_TRUE(hasInk(open(test::pdfFile(1))->paint(0, kLimit)));
}

TEST_F(PdfPageDecoding, CutsAPageThatIsHigherThanTheLimit)
{
    EXPECT_EQ(open(test::pdfFile(1))->paint(0, QSize(kWidth, 120)).size(), QSize(kWidth, 120));
}

TEST_F(PdfPageDecoding, APageLikeALineKeepsAPixelOfHeight)
{
    const std::string line = test::pdfOf(
        {"<</Type/Catalog/Pages 2 0 R>>",
         "<</Type/Pages/Kids[3 0 R]/Count 1>>",
         "<</Type/Page/Parent 2 0 R/MediaBox[0 0 5000 2]>>"});

    EXPECT_EQ(open(line)->paint(0, kLimit).size(), QSize(kWidth, 1));
}

TEST_F(PdfPageDecoding, KnowsHowManyPagesThereAre)
{
    EXPECT_EQ(open(test::pdfFile(12))->pageCount(), 12);
}

TEST_F(PdfPageDecoding, ABrokenDocumentIsNone)
{
    EXPECT_EQ(open("%PDF-1.7\nnothing of the kind"), nullptr);
}

TEST_F(PdfPageDecoding, AnEmptyDocumentIsNone)
{
    EXPECT_EQ(open(""), nullptr);
}

} // namespace
} // namespace tessera
