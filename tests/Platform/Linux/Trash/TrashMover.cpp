// SPDX-License-Identifier: MIT
// trashmover HOME STATE FOLDER COUNT: moves the items 0 to COUNT - 1 of a folder to the trash and
// back until it is killed, each time under its other name: "1 b" for "1" and the other way round.
// What is in the trash it knows from the journal alone.
#include "Platform/Linux/Trash/FreedesktopTrash.h"
#include "TrashedNow.h"

#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <memory>
#include <string>
#include <string_view>

namespace {

using tessera::FreedesktopTrash;
using tessera::TrashedItem;
using tessera::TrashJournal;
using tessera::Url;

constexpr const char* kOtherName = " b";

void recycleAll(const FreedesktopTrash& trash, const std::string& folder, int count)
{
    for (int i = 0; i < count; ++i) {
        for (const char* mark : {"", kOtherName}) {
            (void)trash.recycle({{Url(folder + '/' + std::to_string(i) + mark, false), 1}});
        }
    }
}

std::string otherNameOf(std::string name)
{
    if (name.ends_with(kOtherName)) {
        name.resize(name.size() - std::string_view(kOtherName).size());
        return name;
    }
    return name + kOtherName;
}

void putAllBack(const FreedesktopTrash& trash, const TrashJournal& journal)
{
    for (const TrashedItem& item : tessera::test::trashedNow(journal)) {
        const std::string name(item.from.lastPathComponent());
        (void)trash.putBack({item, otherNameOf(name)});
    }
}

} // namespace

int main(int argc, char** argv)
{
    if (argc != 5) {
        return EXIT_FAILURE;
    }
    const std::string home = argv[1];
    const auto journal = std::make_shared<TrashJournal>(argv[2]);
    const FreedesktopTrash trash({::geteuid(), home + "/.local/share/Trash", {home}}, journal);
    journal->shorten();
    putAllBack(trash, *journal);
    std::puts("ready");
    std::fflush(stdout);
    while (true) {
        recycleAll(trash, argv[3], std::atoi(argv[4]));
        putAllBack(trash, *journal);
    }
}
