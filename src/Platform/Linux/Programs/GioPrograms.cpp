// SPDX-License-Identifier: MIT
#include "Platform/Linux/Programs/GioPrograms.h"

#include <gio/gio.h>

#include <algorithm>
#include <array>
#include <memory>
#include <string_view>
#include <utility>

namespace tessera::gio_programs {

namespace {

struct Release {
    void operator()(gpointer object) const { g_object_unref(object); }
    void operator()(GError* error) const { g_error_free(error); }
    void operator()(char* text) const { g_free(text); }
};

template <typename Type>
using Owned = std::unique_ptr<Type, Release>;

/// A list of programs, and what it holds.
struct ReleasePrograms {
    void operator()(GList* programs) const { g_list_free_full(programs, g_object_unref); }
};
using Programs = std::unique_ptr<GList, ReleasePrograms>;

constexpr const char* kText = "text/plain";

/// What other programs than the desktop run, or what tells it what to run.
constexpr std::array kRunByOthers{
    "application/x-desktop",
    "application/vnd.appimage",
    "application/x-iso9660-appimage",
    "application/x-sharedlib",
    "application/x-pie-executable",
    "application/x-ms-dos-executable",
    "application/vnd.microsoft.portable-executable",
    "application/x-msdownload",
    "application/x-msdos-program",
    "application/x-msi",
    "application/x-ms-shortcut",
    "application/x-bat",
    "application/java-archive",
    "application/x-java-archive",
    "application/x-java-jnlp-file",
};

bool isA(const std::string& type, const char* kind)
{
    return g_content_type_is_a(type.c_str(), kind) != FALSE;
}

/// A language's own program may say that it opens its scripts, and run them.
bool isScript(const std::string& type)
{
    return isA(type, "application/x-executable") && isA(type, kText);
}

HandOver outcomeOf(const GError& error)
{
    if (g_error_matches(&error, G_IO_ERROR, G_IO_ERROR_NOT_FOUND) != FALSE
        || g_error_matches(&error, G_IO_ERROR, G_IO_ERROR_NOT_DIRECTORY) != FALSE) {
        return HandOver::Gone;
    }
    return g_error_matches(&error, G_IO_ERROR, G_IO_ERROR_PERMISSION_DENIED) != FALSE
        ? HandOver::MayNotLook
        : HandOver::Failed;
}

std::string textOf(const char* text)
{
    return text == nullptr ? std::string() : std::string(text);
}

std::string iconOf(GAppInfo* program)
{
    GIcon* const icon = g_app_info_get_icon(program);
    if (icon == nullptr) {
        return {};
    }
    if (G_IS_THEMED_ICON(icon)) {
        return textOf(g_themed_icon_get_names(G_THEMED_ICON(icon))[0]);
    }
    if (!G_IS_FILE_ICON(icon)) {
        return {};
    }
    const Owned<char> path(g_file_get_path(g_file_icon_get_file(G_FILE_ICON(icon))));
    return textOf(path.get());
}

bool opensFiles(GAppInfo* program)
{
    return g_app_info_get_id(program) != nullptr && g_app_info_should_show(program) != FALSE
        && (g_app_info_supports_files(program) != FALSE
            || g_app_info_supports_uris(program) != FALSE);
}

void add(std::vector<ProgramChoice>& choices, GAppInfo* program, bool isForItem)
{
    if (!opensFiles(program)) {
        return;
    }
    const std::string id = textOf(g_app_info_get_id(program));
    if (std::ranges::find(choices, id, &ProgramChoice::id) == choices.end()) {
        choices.push_back(
            {id, textOf(g_app_info_get_display_name(program)), iconOf(program), isForItem});
    }
}

void addAll(std::vector<ProgramChoice>& choices, const Programs& programs, bool isForItem)
{
    for (const GList* at = programs.get(); at != nullptr; at = at->next) {
        add(choices, static_cast<GAppInfo*>(at->data), isForItem);
    }
}

HandOver launch(GAppInfo* program, const Url& item)
{
    std::string url = item.absoluteString();
    GList urls{url.data(), nullptr, nullptr};
    return g_app_info_launch_uris(program, &urls, nullptr, nullptr) != FALSE ? HandOver::Done
                                                                             : HandOver::Failed;
}

} // namespace

ItemLook lookAt(const std::string& path)
{
    const Owned<GFile> file(g_file_new_for_path(path.c_str()));
    GError* raised = nullptr;
    const Owned<GFileInfo> info(g_file_query_info(
        file.get(),
        G_FILE_ATTRIBUTE_STANDARD_CONTENT_TYPE,
        G_FILE_QUERY_INFO_NONE,
        nullptr,
        &raised));
    const Owned<GError> error(raised);
    if (info == nullptr) {
        return {error == nullptr ? HandOver::Failed : outcomeOf(*error)};
    }
    return {HandOver::Done, textOf(g_file_info_get_content_type(info.get()))};
}

bool isProgram(const std::string& contentType)
{
    return std::ranges::any_of(
               kRunByOthers, [&](const char* kind) { return isA(contentType, kind); })
        || (isA(contentType, "application/x-executable") && !isScript(contentType));
}

std::vector<ProgramChoice> programsFor(const std::string& contentType)
{
    std::vector<ProgramChoice> choices;
    const Owned<GAppInfo> usual(g_app_info_get_default_for_type(contentType.c_str(), FALSE));
    if (usual != nullptr) {
        add(choices, usual.get(), true);
    }
    addAll(choices, Programs(g_app_info_get_all_for_type(contentType.c_str())), true);
    const std::size_t forItem = choices.size();
    addAll(choices, Programs(g_app_info_get_all()), false);
    std::sort(
        choices.begin() + static_cast<std::ptrdiff_t>(forItem),
        choices.end(),
        [](const ProgramChoice& a, const ProgramChoice& b) {
            return g_utf8_collate(a.name.c_str(), b.name.c_str()) < 0;
        });
    return choices;
}

HandOver openByType(const Url& item, const std::string& contentType)
{
    if (isProgram(contentType)) {
        return HandOver::IsProgram;
    }
    const std::string type = isScript(contentType) ? kText : contentType;
    const Owned<GAppInfo> program(g_app_info_get_default_for_type(type.c_str(), FALSE));
    return program == nullptr ? HandOver::NoProgram : launch(program.get(), item);
}

HandOver openBy(const std::string& programId, const Url& item)
{
    const Programs all(g_app_info_get_all());
    for (const GList* at = all.get(); at != nullptr; at = at->next) {
        auto* const program = static_cast<GAppInfo*>(at->data);
        if (textOf(g_app_info_get_id(program)) == programId) {
            return launch(program, item);
        }
    }
    return HandOver::NoProgram;
}

std::string libraryVersion()
{
    return std::to_string(glib_major_version) + '.' + std::to_string(glib_minor_version) + '.'
        + std::to_string(glib_micro_version);
}

} // namespace tessera::gio_programs
