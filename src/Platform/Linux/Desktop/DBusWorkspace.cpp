// SPDX-License-Identifier: MIT
#include "Platform/Linux/Desktop/DBusWorkspace.h"

#include "Base/Url.h"
#include "Platform/Linux/Desktop/ExternalOpener.h"
#include "Platform/Linux/Trash/FreedesktopTrash.h"

#include <QDBusMessage>
#include <QDBusPendingCall>
#include <QDBusPendingCallWatcher>
#include <QObject>
#include <QPointer>
#include <QStringList>

#include <algorithm>
#include <array>
#include <string_view>
#include <utility>

namespace tessera {

namespace {

bool isOpenable(std::string_view absoluteUrl)
{
    // The text becomes an argument of another program, so it must be no option of it.
    constexpr std::array<std::string_view, 3> kSchemes{"https://", "http://", "file:///"};
    return std::any_of(kSchemes.begin(), kSchemes.end(), [absoluteUrl](std::string_view scheme) {
        return absoluteUrl.starts_with(scheme);
    });
}

std::string parentUrl(const Url& item)
{
    const std::string& path = item.path();
    const std::size_t slash = path.rfind('/');
    const std::string_view parent = std::string_view(path).substr(0, slash);
    return Url(parent.empty() ? "/" : parent, true).absoluteString();
}

/// https://www.freedesktop.org/wiki/Specifications/file-manager-interface/
QDBusMessage showRequest(const Url& item)
{
    QDBusMessage message = QDBusMessage::createMethodCall(
        QStringLiteral("org.freedesktop.FileManager1"),
        QStringLiteral("/org/freedesktop/FileManager1"),
        QStringLiteral("org.freedesktop.FileManager1"),
        item.isDirectory() ? QStringLiteral("ShowFolders") : QStringLiteral("ShowItems"));
    const QStringList urls{QString::fromStdString(item.absoluteString())};
    const QString noStartupId;
    message << urls << noStartupId;
    return message;
}

} // namespace

DBusWorkspace::DBusWorkspace(QDBusConnection bus, MainThread& mainThread)
    : DBusWorkspace(
        std::move(bus),
        ExternalOpener("xdg-open"),
        mainThread,
        [trash = FreedesktopTrash(TrashUser::current())](const std::vector<Url>& urls) {
            return trash.recycle(urls);
        },
        [trash = FreedesktopTrash(TrashUser::current())](
            const FileIdentity& file, const std::vector<Url>& places) {
            return trash.recycleFile(file, places);
        })
{
}

DBusWorkspace::DBusWorkspace(
    QDBusConnection bus,
    Opener opener,
    MainThread& mainThread,
    BackgroundTrash::Mover mover,
    FileMover fileMover)
    : m_bus(std::move(bus))
    , m_opener(std::move(opener))
    , m_trash(mainThread, std::move(mover))
    , m_fileMover(std::move(fileMover))
    , m_pendingCalls(std::make_unique<QObject>())
{
}

DBusWorkspace::~DBusWorkspace() = default;

void DBusWorkspace::openUrl(const std::string& absoluteUrl, OpenCompletion completionHandler)
{
    if (!isOpenable(absoluteUrl)) {
        completionHandler(false);
        return;
    }
    m_opener(
        absoluteUrl,
        [own = QPointer<QObject>(m_pendingCalls.get()),
         completion = std::move(completionHandler)](bool isOpened) {
            if (own != nullptr) {
                completion(isOpened);
            }
        });
}

void DBusWorkspace::reveal(const Url& item, OpenCompletion completionHandler)
{
    if (item.empty()) {
        completionHandler(false);
        return;
    }
    const std::string folder = item.isDirectory() ? item.absoluteString() : parentUrl(item);
    if (!m_bus.isConnected()) {
        openUrl(folder, std::move(completionHandler));
        return;
    }
    // NOLINTNEXTLINE(cppcoreguidelines-owning-memory): the parent owns it
    auto* const watcher
        = new QDBusPendingCallWatcher(m_bus.asyncCall(showRequest(item)), m_pendingCalls.get());
    QObject::connect(
        watcher,
        &QDBusPendingCallWatcher::finished,
        m_pendingCalls.get(),
        [this, folder, completion = std::move(completionHandler)](
            QDBusPendingCallWatcher* finished) {
            if (finished->isError()) {
                openUrl(folder, completion);
            } else {
                completion(true);
            }
            finished->deleteLater();
        });
}

void DBusWorkspace::recycleURLs(std::vector<Url> urls, RecycleCompletion completionHandler)
{
    m_trash.recycle(std::move(urls), std::move(completionHandler));
}

void DBusWorkspace::recycleFile(
    const FileIdentity& file, std::vector<Url> places, RecycleCompletion completionHandler)
{
    m_trash.perform(
        [mover = m_fileMover, file, places = std::move(places)] { return mover(file, places); },
        std::move(completionHandler));
}

} // namespace tessera
