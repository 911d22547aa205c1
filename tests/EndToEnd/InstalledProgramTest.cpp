// SPDX-License-Identifier: MIT
#include "EndToEnd/Desk/Eventually.h"
#include "EndToEnd/Desk/PixelColors.h"
#include "EndToEnd/Session/TreeWindowFixture.h"
#include "QuickLook/Reading/SampleFiles.h"
#include "support/Machine/BuiltPaths.h"
#include "support/Machine/FileContent.h"
#include "support/Machine/RunProgram.h"

#include <QColor>
#include <QImage>

#include <sys/stat.h>

#include <filesystem>
#include <stdexcept>

namespace tessera::test {
namespace {

/// The program where it was installed, with nothing else of the build beside it.
class InstalledProgram : public TreeWindow {
protected:
    InstalledProgram()
    {
        // Of one component, which is all there is: so the list of what the user installed from this
        // build stays as it is.
        const ProgramResult installing = runProgram(
            test::built::cmake(),
            {"--install",
             test::built::folder(),
             "--prefix",
             m_places.pathOf("usr"),
             "--component",
             "Unspecified"});
        if (installing.exitStatus != 0) {
            throw std::runtime_error(installing.standardError);
        }
        m_places.makeFolder("bin");
        m_places.writeFile(
            "bin/xdg-open", "#!/bin/sh\necho \"$1\" >" + m_places.pathOf("opened") + '\n');
        ::chmod(m_places.pathOf("bin/xdg-open").c_str(), 0700);
    }

    std::unique_ptr<DrivenProgram> start() const override
    {
        return std::make_unique<DrivenProgram>(
            tree.path(), m_places.pathOf("usr/bin/tessera"), m_places.pathOf("bin"));
    }

    TempTree m_places;
};

TEST_F(InstalledProgram, FindsItsArchiver)
{
    ASSERT_TRUE(pick("song", MenuEntry::Compress));
    ASSERT_TRUE(closeResult());
    EXPECT_TRUE(std::filesystem::exists(tree.pathOf("song.zip")));
}

TEST_F(InstalledProgram, FindsWhatDecodesItsPreviews)
{
    constexpr QRgb kInk = 0xFFC01060; // like nothing that the program draws by itself
    desk().click(placeOf("song"));
    ASSERT_TRUE(shows({}, "song"));
    tree.writeFile("song", imageFile({400, 300}, "png", QColor::fromRgb(kInk)));

    desk().typeKey(key::kSpace);

    ASSERT_TRUE(opens(XWindow::Kind::Panel));
    EXPECT_TRUE(eventually([&] {
        const auto panel = desk().window(XWindow::Kind::Panel);
        const QImage middle
            = desk().picture(panel ? QRect(panel->frame.center(), QSize(1, 1)) : QRect());
        return !middle.isNull() && isLike(middle.pixel(0, 0), kInk);
    }));
    EXPECT_TRUE(closePreview());
}

TEST_F(InstalledProgram, FindsItsHelp)
{
    desk().typeKey(key::kF1);
    const std::string page = m_places.pathOf("usr/share/tessera/help/features.html");
    EXPECT_TRUE(eventually([&] {
        return fileContent(m_places.pathOf("opened")) == "file://" + page + '\n';
    })) << fileContent(m_places.pathOf("opened"));
}

} // namespace
} // namespace tessera::test
