#include "files/time_stamp.h"

#include "basics/text.h"

#include <algorithm>
#include <chrono>
#include <cstdio>

namespace zentrik {

using namespace std::chrono;

std::int64_t millisecondsNow() {
    return duration_cast<milliseconds>(system_clock::now().time_since_epoch()).count();
}

std::string stampText(std::int64_t count) {
    constexpr std::int64_t last = 253402300799999;  // of the year 9999
    const milliseconds since(std::clamp<std::int64_t>(count, 0, last));
    const auto day = floor<days>(since);
    const year_month_day date{sys_days(day)};
    const hh_mm_ss time(since - day);
    char text[64];
    std::snprintf(text, sizeof text, "%04d%02u%02u-%02d%02d%02d-%03d", static_cast<int>(date.year()),
                  static_cast<unsigned>(date.month()), static_cast<unsigned>(date.day()),
                  static_cast<int>(time.hours().count()), static_cast<int>(time.minutes().count()),
                  static_cast<int>(time.seconds().count()), static_cast<int>(time.subseconds().count()));
    return text;
}

// What is no moment, or is written otherwise, does not come back as it was.
std::optional<std::int64_t> stampOf(std::string_view text) {
    if (text.size() != stampLength) return {};
    const auto number = [&](std::size_t at, std::size_t digits) {
        return readAll<int>(text.substr(at, digits)).value_or(0);
    };
    const year_month_day date{year(number(0, 4)), month(static_cast<unsigned>(number(4, 2))),
                              day(static_cast<unsigned>(number(6, 2)))};
    if (!date.ok()) return {};
    const milliseconds since = sys_days(date).time_since_epoch() + hours(number(9, 2)) +
                               minutes(number(11, 2)) + seconds(number(13, 2)) + milliseconds(number(16, 3));
    if (stampText(since.count()) != text) return {};
    return since.count();
}

}  // namespace zentrik
