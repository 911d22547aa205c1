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
    constexpr std::array<std::string_view, 4> kSchemes{
        "https://", "http://", "file:///", "trash:///"};
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

DBusWorkspace::TrashCalls callsOf(const FreedesktopTrash& trash)
{
    return {
        [trash](const std::vector<ItemToRecycle>& items) { return trash.recycle(items); },
        [trash](const FileIdentity& file, const std::vector<Url>& places) {
            return trash.recycleFile(file, places);
        },
        [trash](const PutBackRequest& request) { return trash.putBack(request); }};
}

} // namespace

DBusWorkspace::DBusWorkspace(
    QDBusConnection bus, MainThread& mainThread, std::shared_ptr<TrashJournal> journal)
    : DBusWorkspace(
        std::move(bus),
        ExternalOpener("xdg-open"),
        mainThread,
        callsOf(FreedesktopTrash(TrashUser::current(), std::move(journal))))
{
}

DBusWorkspace::DBusWorkspace(
    QDBusConnection bus, Opener opener, MainThread& mainThread, TrashCalls trash)
    : m_bus(std::move(bus))
    , m_opener(std::move(opener))
    , m_trash(mainThread, std::move(trash.recycle))
    , m_fileMover(std::move(trash.recycleFile))
    , m_putterBack(std::move(trash.putBack))
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

void DBusWorkspace::recycleURLs(
    std::vector<ItemToRecycle> items, RecycleCompletion completionHandler)
{
    m_trash.recycle(std::move(items), std::move(completionHandler));
}

void DBusWorkspace::recycleFile(
    const FileIdentity& file, std::vector<Url> places, RecycleCompletion completionHandler)
{
    m_trash.perform(
        BackgroundTrash::Move([mover = m_fileMover, file, places = std::move(places)] {
            return mover(file, places);
        }),
        std::move(completionHandler));
}

void DBusWorkspace::putBack(PutBackRequest request, PutBackCompletion completionHandler)
{
    m_trash.perform(
        BackgroundTrash::PutBack([putterBack = m_putterBack, request = std::move(request)] {
            return putterBack(request);
        }),
        std::move(completionHandler));
}

} // namespace tessera
