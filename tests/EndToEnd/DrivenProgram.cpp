// SPDX-License-Identifier: MIT
#include "DrivenProgram.h"

#include "pixelColors.h"
#include "support/fileContent.h"

namespace tessera::test {

namespace {

/// Makes the folders of a session and returns what tells a program of them.
std::vector<std::string> sessionEnvironment(const TempTree& session, const std::string& display)
{
    std::vector<std::string> environment{
        "DISPLAY=" + display,
        "QT_QPA_PLATFORM=xcb",
        "QT_SCALE_FACTOR=1",
        "WAYLAND_DISPLAY=",
        "DBUS_SESSION_BUS_ADDRESS=unix:path=" + session.pathOf("no-bus"),
        "HOME=" + session.pathOf("home")};
    session.makeFolder("home");
    for (const char* kind : {"config", "data", "cache", "runtime"}) {
        session.makeFolder(kind);
    }
    constexpr mode_t kPrivate = 0700;
    session.setMode("runtime", kPrivate);
    environment.push_back("XDG_CONFIG_HOME=" + session.pathOf("config"));
    environment.push_back("XDG_DATA_HOME=" + session.pathOf("data"));
    environment.push_back("XDG_CACHE_HOME=" + session.pathOf("cache"));
    environment.push_back("XDG_RUNTIME_DIR=" + session.pathOf("runtime"));
    return environment;
}

constexpr int kIconPixels = 16;

bool isBlackRow(const QImage& picture, int y)
{
    for (int x = 0; x < picture.width(); ++x) {
        if ((picture.pixel(x, y) & RGB_MASK) != 0) {
            return false;
        }
    }
    return true;
}

bool hasHueInColumn(const QImage& picture, int x)
{
    for (int y = 0; y < picture.height(); ++y) {
        if (hasHue(picture.pixel(x, y))) {
            return true;
        }
    }
    return false;
}

} // namespace

DrivenProgram::DrivenProgram(const std::string& folder)
    : m_desk(m_server.display())
    , m_process(
          {TESSERA_PROGRAM,
           {folder},
           sessionEnvironment(m_session, m_server.display()),
           m_session.pathOf("out"),
           m_session.pathOf("err")})
{
}

std::string DrivenProgram::log() const
{
    return fileContent(m_session.pathOf("err"));
}

std::optional<QRect> DrivenProgram::map() const
{
    const std::optional<XWindow> main = window(XWindow::Kind::Main);
    const QImage picture = main ? m_desk.picture(main->frame) : QImage();
    // The map takes the window's whole width and alone has a black margin; bars do not.
    int top = 0;
    while (top < picture.height() && !isBlackRow(picture, top)) {
        ++top;
    }
    int bottom = picture.height();
    while (bottom > top && !isBlackRow(picture, bottom - 1)) {
        --bottom;
    }
    if (bottom == top) {
        return std::nullopt;
    }
    return QRect(0, top, picture.width(), bottom - top).translated(main->frame.topLeft());
}

std::vector<QPoint> DrivenProgram::pathIcons() const
{
    const std::optional<QRect> treeMap = map();
    if (!treeMap) {
        return {};
    }
    QRect bar = window(XWindow::Kind::Main)->frame;
    bar.setBottom(treeMap->top() - 1);
    const QImage picture = m_desk.picture(bar);
    // Icons have colours, text and grooves are grey.
    std::vector<QPoint> icons;
    int left = 0;
    for (int x = 0; x < picture.width(); ++x) {
        if (!hasHueInColumn(picture, x)) {
            continue;
        }
        const bool isNext = icons.empty() || x > left + kIconPixels;
        if (isNext) {
            left = x;
            icons.push_back(bar.topLeft() + QPoint(x + kIconPixels / 2, picture.height() / 2));
        }
    }
    return icons;
}

} // namespace tessera::test
