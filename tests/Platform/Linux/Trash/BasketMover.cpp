// SPDX-License-Identifier: MIT
// basketmover HOME STATE FOLDER: until it is killed, chooses all that is in a folder, changes what
// is called "stays ...", moves all to the trash as one step, and undoes, redoes and undoes that.
// Ends with a message when a step does not do all that it should.
#include "ChosenItem.h"
#include "Platform/Linux/Trash/FreedesktopTrash.h"
#include "TrashedNow.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cstddef>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <memory>
#include <string>
#include <vector>

namespace {

using tessera::FreedesktopTrash;
using tessera::ItemToRecycle;
using tessera::PutBackObstacle;
using tessera::PutBackResult;
using tessera::RecycleResult;
using tessera::TrashedItem;
using tessera::TrashJournal;
using tessera::test::chosenItem;

constexpr const char* kStays = "stays ";

[[noreturn]] void giveUp(const std::string& message)
{
    std::fprintf(stderr, "%s\n", message.c_str());
    std::_Exit(EXIT_FAILURE);
}

void require(bool isSo, const std::string& message)
{
    if (!isSo) {
        giveUp(message);
    }
}

std::vector<ItemToRecycle> chooseAll(const std::string& folder)
{
    const tessera::FileTime scanned = tessera::test::afterTheTick();
    std::vector<ItemToRecycle> items;
    for (const auto& entry : std::filesystem::directory_iterator(folder)) {
        items.push_back(chosenItem(entry.path().string(), scanned));
    }
    return items;
}

/// Has what stays written, its rights set by its other name, and its name taken by another item.
void changeWhatStays(const std::string& folder)
{
    const auto path = [&folder](const std::string& name) { return folder + '/' + kStays + name; };
    const auto exchange = [&path](const std::string& a, const std::string& b) {
        return ::renameat2(AT_FDCWD, path(a).c_str(), AT_FDCWD, path(b).c_str(), RENAME_EXCHANGE);
    };
    require(::utimensat(AT_FDCWD, path("written").c_str(), nullptr, 0) == 0, "not written");
    require(::chmod(path("linked").c_str(), 0600) == 0, "no rights set");
    require(exchange("file", "other file") == 0, "files not exchanged");
    require(exchange("folder", "other folder") == 0, "folders not exchanged");
}

void changeContentOf(const std::string& folder)
{
    const std::string added = folder + "/added";
    if (!std::filesystem::remove(added)) {
        std::filesystem::create_directory(added);
    }
}

std::ptrdiff_t stayingAmong(const std::vector<ItemToRecycle>& items)
{
    return std::ranges::count_if(items, [](const ItemToRecycle& item) {
        return item.url.lastPathComponent().starts_with(kStays);
    });
}

std::vector<TrashedItem> recycleAll(
    const FreedesktopTrash& trash, const std::vector<ItemToRecycle>& items)
{
    const RecycleResult result = trash.recycle(items);
    const auto staying = static_cast<std::size_t>(stayingAmong(items));
    require(result.notMoved.size() == staying, "not moved: " + result.error);
    require(result.trashed.size() == items.size() - staying, "moved: " + result.error);
    require(result.journalError.empty(), result.journalError);
    return result.trashed;
}

/// What moves the very items again.
std::vector<ItemToRecycle> putAllBack(
    const FreedesktopTrash& trash, const std::vector<TrashedItem>& items)
{
    std::vector<ItemToRecycle> again;
    for (const TrashedItem& item : items) {
        const PutBackResult result = trash.putBack({item});
        require(result.obstacle == PutBackObstacle::None, result.error);
        again.emplace_back(result.place);
        again.back().identity = result.item.identity;
        again.back().birth = result.item.birth;
    }
    return again;
}

} // namespace

int main(int argc, char** argv)
{
    if (argc != 4) {
        return EXIT_FAILURE;
    }
    const std::string home = argv[1];
    const std::string folder = argv[3];
    const auto journal = std::make_shared<TrashJournal>(argv[2]);
    const FreedesktopTrash trash({::geteuid(), home + "/.local/share/Trash", {home}}, journal);
    journal->shorten();
    (void)putAllBack(trash, tessera::test::trashedNow(*journal));
    std::puts("ready");
    std::fflush(stdout);
    while (true) {
        const std::vector<ItemToRecycle> chosen = chooseAll(folder);
        changeWhatStays(folder);
        changeContentOf(folder + "/folder");
        const std::vector<ItemToRecycle> again = putAllBack(trash, recycleAll(trash, chosen));
        (void)putAllBack(trash, recycleAll(trash, again));
    }
}
