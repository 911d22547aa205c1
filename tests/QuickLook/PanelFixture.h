// SPDX-License-Identifier: MIT
#pragma once

#include "DeadMounts/QuestionThreads.h"
#include "QuickLook/QuickLookPanel.h"
#include "QuickLook/QuickLookServices.h"
#include "QuickLook/Reading/FakeFileReader.h"
#include "QuickLook/Reading/FakeRasterDecoder.h"
#include "support/Fakes/FakeIconProvider.h"
#include "support/Fakes/FakeMotionPreference.h"
#include "support/MakeTree.h"

#include <QKeyEvent>
#include <QTest>

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

namespace tessera::test {

/// A tree screen as the panel sees one: its selected node, its place and the keys it was told of.
struct FakePanelOpener {
    const File* selected = nullptr;
    QRectF frame;
    int frameQuestions = 0;
    std::vector<int> keys;
};

/// A panel over a main window, with a tree of files in memory. Nothing moves unless the test
/// gives the screen a frame.
class PanelTest : public testing::Test {
protected:
    PanelTest()
    {
        files->addFile("/home/anna/a.txt", "text of a");
        files->addFile("/home/anna/b.txt", "text of b");
        files->addSpecial("/home/anna/docs", FileKind::Folder);
        window.setGeometry(100, 50, 600, 500);
        window.show();
        QObject::connect(&panel, &QuickLookPanel::keyPressed, &window, [this](const auto& event) {
            screen.keys.push_back(event.key());
        });
        QObject::connect(
            &panel, &QuickLookPanel::reopenRequested, &window, [this] { openOnSelected(); });
        panel.animation().setClock([this] { return now; });
    }

    ~PanelTest() override
    {
        files->release("/home/anna/a.txt");
        panel.closeAtOnce();
        EXPECT_TRUE(threads->waitForAll(std::chrono::minutes(1)));
    }

    void select(std::string_view path) { screen.selected = &at(*tree, path); }

    void open(std::string_view path)
    {
        select(path);
        openOnSelected();
    }

    void openOnSelected()
    {
        panel.open(screen.selected, [this] {
            ++screen.frameQuestions;
            return screen.frame;
        });
    }

    void selectionChanged() { panel.setItem(screen.selected); }

    QuickLookServices servicesOver(QWidget* mainWindow)
    {
        return {
            .files = files,
            .decoder = decoder,
            .threads = threads,
            .icons = &icons,
            .motion = &motion,
            .mainWindow = mainWindow};
    }

    template <typename Widget>
    Widget* visibleChild(const QString& name = {}) const
    {
        for (Widget* child : panel.findChildren<Widget*>(name)) {
            if (child->isVisible()) {
                return child;
            }
        }
        return nullptr;
    }

    /// Waits for the content of a kind that the panel shows by such a widget.
    template <typename Widget>
    bool waitFor(const QString& name = {}) const
    {
        return QTest::qWaitFor([&] { return visibleChild<Widget>(name) != nullptr; }, 60000);
    }

    std::unique_ptr<TopFolder> tree
        = makeTree("/home/anna", "docs/ ( x:1000 y:2000 ) a.txt:4096 b.txt:5000");
    std::shared_ptr<FakeFileReader> files = std::make_shared<FakeFileReader>();
    std::shared_ptr<FakeRasterDecoder> decoder = std::make_shared<FakeRasterDecoder>();
    std::shared_ptr<QuestionThreads> threads = QuestionThreads::make();
    FakeIconProvider icons;
    FakeMotionPreference motion;
    FakePanelOpener screen;
    double now = 0;
    QWidget window;
    QuickLookPanel panel{servicesOver(&window)};
};

} // namespace tessera::test
