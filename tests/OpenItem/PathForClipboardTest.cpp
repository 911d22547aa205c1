// SPDX-License-Identifier: MIT
#include "OpenItem/PathForClipboard.h"

#include "Base/Url.h"

#include <QMimeData>
#include <QUrl>

#include <gtest/gtest.h>

namespace tessera {
namespace {

TEST(PathForClipboard, TheTextIsThePath)
{
    const auto data = pathForClipboard(Url("/home/eve/a b/\xC3\xA4", true));
    EXPECT_EQ(data->text(), QStringLiteral("/home/eve/a b/ä"));
}

TEST(PathForClipboard, TheTextIsThePathsBytesWhateverTheyAre)
{
    for (const char* const path : {"/a/not \xFF UTF-8", "/a/two\nlines", "/a/ends in a space "}) {
        const auto data = pathForClipboard(Url(path, false));
        EXPECT_EQ(data->data(QStringLiteral("text/plain")).toStdString(), path);
    }
}

TEST(PathForClipboard, ProgramsThatTakeFilesGetItsAddress)
{
    const auto data = pathForClipboard(Url("/a/100% \xFF\n#?", false));
    EXPECT_EQ(
        data->data(QStringLiteral("text/uri-list")).trimmed().toStdString(),
        "file:///a/100%25%20%FF%0A%23%3F");
    EXPECT_EQ(data->urls().size(), 1);
}

} // namespace
} // namespace tessera
