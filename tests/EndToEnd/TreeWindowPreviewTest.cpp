// SPDX-License-Identifier: MIT
// Previews in the program itself, which has another one decode.
#include "EndToEnd/Desk/Eventually.h"
#include "EndToEnd/Desk/PixelColors.h"
#include "EndToEnd/Session/TreeWindowFixture.h"
#include "HelperPrograms/Previewer/HostileFiles.h"
#include "QuickLook/Reading/SampleFiles.h"
#include "support/Machine/FileContent.h"

#include <QColor>
#include <QImage>

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <string>

namespace tessera::test {
namespace {

constexpr QRgb kInk = 0xFFC01060; // like nothing that the program draws by itself

class TreeWindowPreview : public TreeWindow {
protected:
    void preview(const std::string& item, const std::string& content)
    {
        desk().click(placeOf(item));
        ASSERT_TRUE(shows({}, item));
        tree.writeFile(item, content);
        desk().typeKey(key::kSpace);
        ASSERT_TRUE(opens(XWindow::Kind::Panel));
    }

    /// Waits until the middle of the panel has the ink.
    bool showsInk() const
    {
        return eventually([this] {
            const auto panel = desk().window(XWindow::Kind::Panel);
            if (!panel) {
                return false;
            }
            const QImage pixel = desk().picture(QRect(panel->frame.center(), QSize(1, 1)));
            return !pixel.isNull() && isLike(pixel.pixel(0, 0), kInk);
        });
    }

    /// Whether the program has started another one that has not ended.
    bool hasChild() const
    {
        const std::string parent = "\nPPid:\t" + std::to_string(program->process().id()) + "\n";
        const std::filesystem::directory_iterator processes("/proc");
        return std::any_of(begin(processes), end(processes), [&parent](const auto& entry) {
            return fileContent((entry.path() / "status").string()).find(parent)
                != std::string::npos;
        });
    }
};

TEST_F(TreeWindowPreview, ShowsAPicture)
{
    preview("song", imageFile({400, 300}, "png", QColor::fromRgb(kInk)));

    EXPECT_TRUE(showsInk());
    EXPECT_TRUE(closePreview());
}

#ifdef TESSERA_READS_PDF
TEST_F(TreeWindowPreview, ShowsADocument)
{
    preview(
        "song",
        pdfOf(
            {"<</Type/Catalog/Pages 2 0 R>>",
             "<</Type/Pages/Kids[3 0 R]/Count 1>>",
             "<</Type/Page/Parent 2 0 R/MediaBox[0 0 210 297]/Contents 4 0 R>>",
             pdfStream("0.7529 0.0627 0.3765 rg 0 0 210 297 re f")}));

    EXPECT_TRUE(showsInk());
    EXPECT_TRUE(closePreview());
}

TEST_F(TreeWindowPreview, KillsADecodingThatIsNotWantedAnyMore)
{
    preview("song", pdfThatNeverEnds());
    ASSERT_TRUE(eventually([this] { return hasChild(); }));

    EXPECT_TRUE(closePreview());

    EXPECT_TRUE(eventually([this] { return !hasChild(); }));
}
#endif

} // namespace
} // namespace tessera::test
