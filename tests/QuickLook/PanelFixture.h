// SPDX-License-Identifier: MIT
#pragma once

#include "Base/Url.h"
#include "QuickLook/PreviewItem.h"
#include "QuickLook/QuickLookPanel.h"
#include "QuickLook/QuickLookPanelDataSource.h"
#include "QuickLook/QuickLookPanelDelegate.h"
#include "QuickLook/Reading/FakeFileReader.h"
#include "QuickLook/Reading/FakeRasterDecoder.h"
#include "QuickLook/Reading/PreviewThreads.h"
#include "support/Fakes/FakeIconProvider.h"
#include "support/MakeTree.h"

#include <QEvent>
#include <QKeyEvent>
#include <QTest>

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

namespace tessera::test {

/// A tree screen as the panel sees one: its selected node, its place and the events it was given.
class FakeTreeScreen final : public QuickLookPanelDataSource,
                             public QuickLookPanelDelegate,
                             public PreviewItem {
public:
    [[nodiscard]] int numberOfPreviewItemsInPreviewPanel() const override { return 1; }
    [[nodiscard]] const PreviewItem& previewItemAtIndex(int index) const override
    {
        askedIndices.push_back(index);
        return *this;
    }
    bool handleEvent(QEvent& event) override
    {
        if (event.type() != QEvent::KeyPress) {
            return false;
        }
        keys.push_back(static_cast<QKeyEvent&>(event).key());
        return true;
    }
    [[nodiscard]] QRectF sourceFrameOnScreenForPreviewItem(
        const PreviewItem& /*item*/) const override
    {
        return frame;
    }
    [[nodiscard]] Url previewItemURL() const override
    {
        return selected == nullptr ? Url() : selected->url();
    }
    [[nodiscard]] const File* previewItemNode() const override { return selected; }

    const File* selected = nullptr;
    QRectF frame;
    std::vector<int> keys;
    mutable std::vector<int> askedIndices;
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
        panel.setFileReader(files, decoder, threads);
        panel.setIconProvider(&icons);
        panel.setMainWindow(&window);
        panel.setDelegate(&screen);
        panel.setDataSource(&screen);
        panel.animation().setClock([this] { return now; });
    }

    ~PanelTest() override
    {
        files->release("/home/anna/a.txt");
        panel.setDataSource(nullptr);
        panel.setFileReader(nullptr, nullptr, nullptr);
        EXPECT_TRUE(threads->waitForEnd(std::chrono::minutes(1)));
    }

    void select(std::string_view path) { screen.selected = &at(*tree, path); }

    void open(std::string_view path)
    {
        select(path);
        panel.makeKeyAndOrderFront();
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
    std::shared_ptr<PreviewThreads> threads = PreviewThreads::make();
    FakeIconProvider icons;
    FakeTreeScreen screen;
    double now = 0;
    QWidget window;
    QuickLookPanel panel;
};

} // namespace tessera::test
