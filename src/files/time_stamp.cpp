#include "files/time_stamp.h"

#include <algorithm>
#include <charconv>
#include <chrono>

namespace zentrik {

namespace {

using namespace std::chrono;

std::string padded(std::int64_t number, std::size_t digits) {
    const std::string text = std::to_string(number);
    return std::string(digits - std::min(digits, text.size()), '0') + text;
}

// The number in some digits of a stamp; -1 when there is something else.
int numberAt(std::string_view text, std::size_t at, std::size_t digits) {
    int number = 0;
    const char* from = text.data() + at;
    const auto result = std::from_chars(from, from + digits, number);
    return result.ptr == from + digits && *from != '-' ? number : -1;
}

}  // namespace

std::int64_t millisecondsNow() {
    return duration_cast<milliseconds>(system_clock::now().time_since_epoch()).count();
}

std::string stampText(std::int64_t count) {
    constexpr std::int64_t last = 253402300799999;  // of the year 9999
    const milliseconds since(std::clamp<std::int64_t>(count, 0, last));
    const auto day = floor<days>(since);
    const year_month_day date{sys_days(day)};
    const hh_mm_ss time(since - day);
    return padded(static_cast<int>(date.year()), 4) + padded(static_cast<unsigned>(date.month()), 2) +
           padded(static_cast<unsigned>(date.day()), 2) + "-" + padded(time.hours().count(), 2) +
           padded(time.minutes().count(), 2) + padded(time.seconds().count(), 2) + "-" +
           padded(time.subseconds().count(), 3);
}

std::optional<std::int64_t> stampOf(std::string_view text) {
    if (text.size() != stampLength || text[8] != '-' || text[15] != '-') return {};
    const auto number = [&](std::size_t at, std::size_t digits) { return numberAt(text, at, digits); };
    const int parts[] = {number(9, 2), number(11, 2), number(13, 2), number(16, 3)};
    constexpr int limits[] = {24, 60, 60, 1000};
    for (std::size_t i = 0; i < std::size(parts); ++i)
        if (parts[i] < 0 || parts[i] >= limits[i]) return {};
    const int month = number(4, 2), dayOfMonth = number(6, 2);
    const year_month_day date{year(number(0, 4)), std::chrono::month(static_cast<unsigned>(month)),
                              day(static_cast<unsigned>(dayOfMonth))};
    if (month < 0 || dayOfMonth < 0 || !date.ok() || date.year() < year(1970)) return {};
    const milliseconds since = sys_days(date).time_since_epoch() + hours(parts[0]) + minutes(parts[1]) +
                               seconds(parts[2]) + milliseconds(parts[3]);
    return since.count();
}

}  // namespace zentrik
