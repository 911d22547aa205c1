// SPDX-License-Identifier: MIT
#include "Platform/Linux/Desktop/XbelContent.h"

#include <glib.h>

#include <algorithm>
#include <array>
#include <cstddef>
#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace tessera {

namespace {

/// Hashes instead of texts: a list of thousands of entries is compared at the start of the program.
using Hash = std::size_t;

/// Those that say which of several elements one is.
constexpr std::array<std::string_view, 4> kIdentities{"href", "owner", "name", "type"};
constexpr std::array<std::string_view, 4> kTimes{"added", "modified", "visited", "timestamp"};

Hash with(Hash before, std::string_view text)
{
    constexpr Hash kFactor = 0x9E3779B97F4A7C15;
    return (before ^ std::hash<std::string_view>()(text)) * kFactor;
}

std::string_view stripped(std::string_view text)
{
    constexpr std::string_view kBlanks = " \t\r\n";
    const std::size_t begin = text.find_first_not_of(kBlanks);
    return begin == std::string_view::npos
        ? std::string_view()
        : text.substr(begin, text.find_last_not_of(kBlanks) - begin + 1);
}

/// The same for every way to write the same time.
std::string comparable(std::string_view name, const char* value)
{
    if (std::ranges::find(kTimes, name) == kTimes.end()) {
        return value;
    }
    GTimeZone* const utc = g_time_zone_new_utc();
    GDateTime* const time = g_date_time_new_from_iso8601(value, utc);
    g_time_zone_unref(utc);
    if (time == nullptr) {
        return value;
    }
    std::string text = std::to_string(g_date_time_to_unix(time)) + '.'
        + std::to_string(g_date_time_get_microsecond(time));
    g_date_time_unref(time);
    return text;
}

struct Content {
    std::vector<Hash> facts;
    std::vector<Hash> around{0}; ///< the elements that the parser is in
};

Content& contentOf(gpointer data)
{
    return *static_cast<Content*>(data);
}

void takeElement(
    GMarkupParseContext* /*context*/,
    const gchar* name,
    const gchar** attributes,
    const gchar** values,
    gpointer data,
    GError** /*error*/)
{
    Content& content = contentOf(data);
    Hash self = with(content.around.back(), name);
    for (std::size_t i = 0; attributes[i] != nullptr; ++i) {
        if (std::ranges::find(kIdentities, attributes[i]) != kIdentities.end()) {
            self = with(self, values[i]);
        }
    }
    content.facts.push_back(self);
    for (std::size_t i = 0; attributes[i] != nullptr; ++i) {
        content.facts.push_back(
            with(with(self, attributes[i]), comparable(attributes[i], values[i])));
    }
    content.around.push_back(self);
}

void leaveElement(
    GMarkupParseContext* /*context*/, const gchar* /*name*/, gpointer data, GError** /*error*/)
{
    contentOf(data).around.pop_back();
}

void takeText(
    GMarkupParseContext* /*context*/,
    const gchar* text,
    gsize length,
    gpointer data,
    GError** /*error*/)
{
    const std::string_view shown = stripped({text, length});
    if (!shown.empty()) {
        contentOf(data).facts.push_back(with(contentOf(data).around.back(), shown));
    }
}

/// Comments and the like; the lines that every XML file may begin with say nothing.
void takeOther(
    GMarkupParseContext* context, const gchar* text, gsize length, gpointer data, GError** error)
{
    const std::string_view other(text, length);
    if (!other.starts_with("<?xml ") && !other.starts_with("<!DOCTYPE")) {
        takeText(context, text, length, data, error);
    }
}

/// Sorted; nothing when the text is no XML.
std::optional<std::vector<Hash>> factsOf(std::string_view text)
{
    constexpr GMarkupParser kParser{takeElement, leaveElement, takeText, takeOther, nullptr};
    Content content;
    GMarkupParseContext* const context
        = g_markup_parse_context_new(&kParser, G_MARKUP_TREAT_CDATA_AS_TEXT, &content, nullptr);
    const bool isWhole = g_markup_parse_context_parse(
                             context, text.data(), static_cast<gssize>(text.size()), nullptr)
            != FALSE
        && g_markup_parse_context_end_parse(context, nullptr) != FALSE;
    g_markup_parse_context_free(context);
    if (!isWhole) {
        return std::nullopt;
    }
    std::ranges::sort(content.facts);
    return std::move(content.facts);
}

} // namespace

bool saysAll(std::string_view copy, std::string_view original)
{
    const std::optional<std::vector<Hash>> said = factsOf(copy);
    const std::optional<std::vector<Hash>> meant = factsOf(original);
    return said && meant && std::ranges::includes(*said, *meant);
}

} // namespace tessera
