// SPDX-License-Identifier: MIT
#include "History/TrashJournalText.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <chrono>
#include <cstdio>
#include <optional>
#include <utility>

namespace tessera {

namespace {

using std::chrono::seconds;
using std::chrono::sys_days;
using std::chrono::sys_seconds;

/// Two paths of the longest kind with each byte as an escape, and some numbers.
constexpr std::size_t kMaxLineBytes = 32'768;

/// A journal that was cut off now and then has less of them.
constexpr std::uint64_t kMostBytesOfNoUse = 65'536;

constexpr std::string_view kBeginning = "trash";
constexpr std::string_view kEnd = ".";
constexpr std::string_view kUnknown = "-";

/// How a state is written.
struct StateWord {
    TrashState state;
    bool hasPlace;
    std::string_view word;
};

constexpr std::array<StateWord, 5> kStates{
    {{TrashState::Moved, false, "moved"},
     {TrashState::Moved, true, "returning"},
     {TrashState::NotMoved, false, "stayed"},
     {TrashState::PutBack, true, "back"},
     {TrashState::Gone, false, "gone"}}};

std::string timeText(std::int64_t time)
{
    constexpr std::int64_t kLast = 253'402'300'799; // 9999-12-31T23:59:59Z
    const sys_seconds at{seconds(std::clamp<std::int64_t>(time, 0, kLast))};
    const auto day = std::chrono::floor<std::chrono::days>(at);
    const std::chrono::year_month_day date(day);
    const std::chrono::hh_mm_ss clock(at - day);
    std::array<char, sizeof("YYYY-MM-DDThh:mm:ssZ") + 8> text{};
    const int length = std::snprintf(
        text.data(),
        text.size(),
        "%04d-%02u-%02uT%02d:%02d:%02dZ",
        static_cast<int>(date.year()),
        static_cast<unsigned>(date.month()),
        static_cast<unsigned>(date.day()),
        static_cast<int>(clock.hours().count()),
        static_cast<int>(clock.minutes().count()),
        static_cast<int>(clock.seconds().count()));
    return {text.data(), static_cast<std::size_t>(length)};
}

template <typename Number>
std::optional<Number> numberIn(std::string_view text)
{
    Number number{};
    const char* const end = text.data() + text.size();
    const auto [reached, error] = std::from_chars(text.data(), end, number);
    return error == std::errc() && reached == end ? std::optional(number) : std::nullopt;
}

std::string textOf(const std::optional<std::uint64_t>& number)
{
    return number ? std::to_string(*number) : std::string(kUnknown);
}

std::optional<std::int64_t> timeIn(std::string_view text)
{
    constexpr std::string_view kForm = "0000-00-00T00:00:00Z";
    const auto hasForm
        = [](char c, char form) { return form == '0' ? c >= '0' && c <= '9' : c == form; };
    if (!std::equal(text.begin(), text.end(), kForm.begin(), kForm.end(), hasForm)) {
        return std::nullopt;
    }
    const auto part = [text](std::size_t start, std::size_t length) {
        return numberIn<unsigned>(text.substr(start, length)).value_or(0);
    };
    const std::chrono::year_month_day date(
        std::chrono::year(static_cast<int>(part(0, 4))),
        std::chrono::month(part(5, 2)),
        std::chrono::day(part(8, 2)));
    if (!date.ok()) {
        return std::nullopt;
    }
    const seconds clock = std::chrono::hours(part(11, 2)) + std::chrono::minutes(part(14, 2))
        + seconds(part(17, 2));
    return (sys_days(date) + clock).time_since_epoch().count();
}

/// The words between single spaces; none when the line does not end as whole lines do.
std::vector<std::string_view> wordsOf(std::string_view line)
{
    std::vector<std::string_view> words;
    for (std::size_t start = 0; start <= line.size();) {
        const std::size_t end = std::min(line.find(' ', start), line.size());
        words.push_back(line.substr(start, end - start));
        start = end + 1;
    }
    if (words.back() != kEnd) {
        return {};
    }
    words.pop_back();
    return words;
}

std::optional<TrashRecord> recordIn(const std::vector<std::string_view>& words)
{
    constexpr std::size_t kWords = 9;
    if (words.size() != kWords || words[0] != kBeginning) {
        return std::nullopt;
    }
    const auto number = numberIn<std::uint64_t>(words[1]);
    const auto time = timeIn(words[2]);
    const auto bytes = numberIn<std::uint64_t>(words[3]);
    const auto device = numberIn<std::uint64_t>(words[4]);
    const auto inode = numberIn<std::uint64_t>(words[5]);
    const auto birth = numberIn<std::uint64_t>(words[6]);
    auto from = Url::fromAbsoluteString(words[7]);
    auto to = Url::fromAbsoluteString(words[8]);
    if (!number || *number == 0 || !time || (!bytes && words[3] != kUnknown) || !device || !inode
        || (!birth && words[6] != kUnknown) || !from || !to) {
        return std::nullopt;
    }
    TrashRecord record;
    record.item = {*std::move(from), *std::move(to), {*device, *inode}, *number, birth};
    record.time = *time;
    record.bytes = bytes;
    return record;
}

const StateWord* stateCalled(std::string_view word)
{
    const auto* const found = std::find_if(
        kStates.begin(), kStates.end(), [word](const auto& state) { return state.word == word; });
    return found == kStates.end() ? nullptr : found;
}

} // namespace

std::string trashBeginningLine(const TrashRecord& record)
{
    const TrashedItem& item = record.item;
    std::string line(kBeginning);
    for (const std::string& word :
         {std::to_string(item.number),
          timeText(record.time),
          textOf(record.bytes),
          std::to_string(item.identity.device),
          std::to_string(item.identity.inode),
          textOf(item.birth),
          item.from.absoluteString(),
          item.to.absoluteString(),
          std::string(kEnd)}) {
        line.append(" ").append(word);
    }
    return line + '\n';
}

std::string trashStateLine(std::uint64_t number, TrashState state, const Url& place)
{
    const bool hasPlace
        = state == TrashState::PutBack || (state == TrashState::Moved && !place.empty());
    for (const StateWord& known : kStates) {
        if (known.state == state && known.hasPlace == hasPlace) {
            const std::string where = hasPlace ? ' ' + place.absoluteString() : std::string();
            return std::string(known.word).append(" ").append(std::to_string(number)) + where
                + " .\n";
        }
    }
    return {};
}

void TrashJournalReader::feed(std::string_view bytes)
{
    while (!bytes.empty()) {
        const std::size_t end = bytes.find('\n');
        const std::string_view part = bytes.substr(0, end);
        m_isLineTooLong = m_isLineTooLong || m_line.size() + part.size() > kMaxLineBytes;
        if (m_isLineTooLong) {
            m_bytesOfNoUse += part.size();
        } else {
            m_line.append(part);
        }
        if (end == std::string_view::npos) {
            return;
        }
        if (!m_isLineTooLong) {
            takeLine(m_line);
        }
        m_isLineTooLong = false;
        m_line.clear();
        bytes.remove_prefix(end + 1);
    }
}

bool TrashJournalReader::isWasteful() const
{
    return m_dropped > 0 || m_bytesOfNoUse > kMostBytesOfNoUse;
}

void TrashJournalReader::takeLine(std::string_view line)
{
    const std::vector<std::string_view> words = wordsOf(line);
    if (std::optional<TrashRecord> record = recordIn(words)) {
        add(*std::move(record));
    } else if (!addState(words)) {
        m_bytesOfNoUse += line.size() + 1;
    }
}

void TrashJournalReader::add(TrashRecord record)
{
    m_places[record.item.number] = m_dropped + m_records.size();
    m_records.push_back(std::move(record));
    if (m_records.size() > kMostTrashRecords) {
        const auto first = m_places.find(m_records.front().item.number);
        if (first->second == m_dropped) {
            m_places.erase(first);
        }
        m_records.pop_front();
        ++m_dropped;
    }
}

bool TrashJournalReader::addState(const std::vector<std::string_view>& words)
{
    const StateWord* const state = words.empty() ? nullptr : stateCalled(words[0]);
    const std::size_t wanted = state != nullptr && state->hasPlace ? 3 : 2;
    const auto number = words.size() == wanted ? numberIn<std::uint64_t>(words[1]) : std::nullopt;
    auto place = wanted == 3 && number ? Url::fromAbsoluteString(words[2]) : std::optional(Url());
    if (state == nullptr || !number || !place) {
        return false;
    }
    const auto found = m_places.find(*number);
    if (found == m_places.end()) {
        return false;
    }
    TrashRecord& record = m_records[found->second - m_dropped];
    record.state = state->state;
    record.place = *std::move(place);
    return true;
}

} // namespace tessera
