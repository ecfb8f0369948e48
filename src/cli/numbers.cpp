#include "cli/numbers.h"

#include "basics/text.h"
#include "cli/failure.h"

#include <cmath>

namespace zentrik::cli {

std::optional<double> readNumber(std::string_view text) {
    const auto value = readAll<double>(text);
    return value && std::isfinite(*value) ? value : std::nullopt;
}

std::optional<std::int64_t> readWhole(std::string_view text) { return readAll<std::int64_t>(text); }

std::vector<std::string> split(std::string_view text, char mark) {
    std::vector<std::string> parts;
    for (;;) {
        const std::size_t end = text.find(mark);
        parts.emplace_back(text.substr(0, end));
        if (end == std::string_view::npos) return parts;
        text.remove_prefix(end + 1);
    }
}

std::vector<std::int32_t> readList(std::string_view text, std::int32_t last, const std::string& what) {
    std::vector<std::int32_t> numbers;
    const auto add = [&](std::int64_t from, std::int64_t to) {
        for (std::int64_t i = from; i <= to; ++i) numbers.push_back(static_cast<std::int32_t>(i));
    };
    if (text == "all") {
        add(1, last);
        return numbers;
    }
    for (const std::string& part : split(text, ',')) {
        const std::size_t dots = part.find("..");
        const auto from = readWhole(std::string_view(part).substr(0, dots));
        const auto to = dots == std::string::npos ? from : readWhole(std::string_view(part).substr(dots + 2));
        if (!from || !to || *from > *to)
            throw Failure{wrongUse,
                          "\"" + std::string(text) + "\" is no list of " + what + ", such as 3,5..9."};
        if (*from < 1 || *to > last)
            throw Failure{wrongUse, "There is no " + what + " " + std::to_string(*from < 1 ? *from : *to) +
                                        ": they go from 1 to " + std::to_string(last) + "."};
        add(*from, *to);
    }
    return numbers;
}

}  // namespace zentrik::cli
