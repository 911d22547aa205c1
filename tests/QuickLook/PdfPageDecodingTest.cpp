// SPDX-License-Identifier: MIT
#include "QuickLook/PageDecoding.h"
#include "QuickLook/sampleFiles.h"

#include <QBuffer>

#include <gtest/gtest.h>

#include <algorithm>

namespace tessera {
namespace {

constexpr int kWidth = 200;

PreviewPages decoded(const std::string& bytes, bool isCancelled = false)
{
    QBuffer device;
    device.setData(QByteArray::fromStdString(bytes));
    device.open(QIODevice::ReadOnly);
    const std::atomic<bool> cancelled(isCancelled);
    return decodedPages(device, kWidth, cancelled);
}

TEST(PdfPageDecoding, PaintsPagesOfTheAskedWidthOnWhite)
{
    const PreviewPages pages = decoded(test::pdfFile(1));

    ASSERT_EQ(pages.pages.size(), 1U);
    const QImage& page = pages.pages.front();
    EXPECT_EQ(page.width(), kWidth);
    EXPECT_NEAR(page.height(), kWidth * 297.0 / 210.0, 1);
    EXPECT_EQ(page.pixelColor(kWidth - 1, 0), QColor(Qt::white));
}

TEST(PdfPageDecoding, WhatIsWrittenOnThePageIsThere)
{
    const QImage page = decoded(test::pdfFile(1)).pages.at(0);

    bool hasInk = false;
    for (int y = 0; y < page.height(); ++y) {
        for (int x = 0; x < page.width(); ++x) {
            hasInk = hasInk || page.pixelColor(x, y).lightness() < 200;
        }
    }
    EXPECT_TRUE(hasInk);
}

TEST(PdfPageDecoding, StopsAfterTenPagesAndKnowsHowManyThereAre)
{
    const PreviewPages pages = decoded(test::pdfFile(12));

    EXPECT_EQ(pages.pages.size(), 10U);
    EXPECT_EQ(pages.pageCount, 12);
}

TEST(PdfPageDecoding, ABrokenDocumentHasNoPages)
{
    EXPECT_TRUE(decoded("%PDF-1.7\nnothing of the kind").pages.empty());
    EXPECT_TRUE(decoded("").pages.empty());
}

TEST(PdfPageDecoding, PaintsNothingOnceItIsCancelled)
{
    EXPECT_TRUE(decoded(test::pdfFile(1), true).pages.empty());
}

} // namespace
} // namespace tessera
