// SPDX-License-Identifier: MIT
#include "Start/PictureWriter.h"

#include "Desktop/FileAccess.h"
#include "Scanning/MainThread.h"
#include "support/Fakes/FakeTreeViewServices.h"

#include <QCoreApplication>
#include <QImage>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <utility>

namespace tessera {
namespace {

/// Keeps what is written.
class MemoryFiles final : public FileAccess {
public:
    [[nodiscard]] std::error_code checkFolder(const std::string& /*path*/) const override
    {
        return {};
    }
    [[nodiscard]] std::error_code checkFolderWithoutLinks(const std::string& path) const override
    {
        return checkFolder(path);
    }
    [[nodiscard]] std::string absolutePath(const std::string& path) const override { return path; }
    [[nodiscard]] std::error_code writeFile(
        const std::string& /*path*/, std::string_view bytes) const override
    {
        written = bytes;
        return {};
    }

    mutable std::string written;
};

/// The loop of the application object.
class ApplicationLoop final : public MainThread {
public:
    void perform(std::function<void()> work) override
    {
        QMetaObject::invokeMethod(qApp, std::move(work), Qt::QueuedConnection);
    }
    void performAndWait(std::function<void()> work) override
    {
        QMetaObject::invokeMethod(qApp, std::move(work), Qt::BlockingQueuedConnection);
    }
};

class PictureWriterTest : public testing::Test {
protected:
    ~PictureWriterTest() override { services.workers->waitForNone(); }

    std::string write(const std::string& folder)
    {
        CommandLine commandLine;
        commandLine.folder = folder;
        commandLine.pictureFile = "/picture.png";
        commandLine.width = 100;
        commandLine.height = 100;
        const ScanEnvironment fakes = services.get().scanEnvironment;
        return PictureWriter(
                   {.fileManager = fakes.fileManager,
                    .resourceValues = fakes.resourceValues,
                    .fileSystemAttributes = fakes.fileSystemAttributes,
                    .mainThread = loop,
                    .clock = fakes.clock,
                    .homeDirectory = "/Users/me",
                    .workers = services.workers},
                   files,
                   FolderTitles::Names)
            .write(commandLine);
    }

    QImage picture() const
    {
        return QImage::fromData(QByteArray::fromStdString(files.written), "PNG");
    }

    test::FakeTreeViewServices services{"me/ ( ) a:300"};
    ApplicationLoop loop;
    MemoryFiles files;
};

TEST_F(PictureWriterTest, AnEncryptedHomeIsScannedAfterWhatIsAroundIt)
{
    services.scanResourceValues.volumes = {"/Users/me"};
    EXPECT_EQ(write("/Users"), "");
    EXPECT_THAT(
        services.files.enumeratedPaths(),
        testing::ElementsAre("/Users", "/Users", "/Users/me", "/Users/me"))
        << "each is counted and walked";
    EXPECT_EQ(picture().size(), QSize(100, 100));
}

TEST_F(PictureWriterTest, WithoutAThreadForTheScanItSaysSo)
{
    services.hasThreads = false;
    EXPECT_THAT(write("/Users"), testing::StartsWith("cannot scan the folder '/Users': "));
    EXPECT_EQ(files.written, "");
}

} // namespace
} // namespace tessera
