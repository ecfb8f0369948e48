#include "cli/close_names.h"

#include <algorithm>
#include <numeric>
#include <utility>

namespace zentrik::cli {

namespace {

// How many letters must be put in, left out or changed.
std::size_t distance(const std::string& a, const std::string& b) {
    std::vector<std::size_t> row(b.size() + 1);
    std::iota(row.begin(), row.end(), std::size_t{0});
    for (std::size_t i = 1; i <= a.size(); ++i) {
        std::size_t diagonal = std::exchange(row[0], i);
        for (std::size_t j = 1; j <= b.size(); ++j) {
            const std::size_t changed = diagonal + (a[i - 1] == b[j - 1] ? 0 : 1);
            diagonal = std::exchange(row[j], std::min({row[j] + 1, row[j - 1] + 1, changed}));
        }
    }
    return row.back();
}

}  // namespace

std::string plainName(const std::string& name) {
    std::string plain;
    for (const char c : name) {
        if (c >= 'A' && c <= 'Z') plain += static_cast<char>(c + ('a' - 'A'));
        if ((c >= 'a' && c <= 'z') || (c >= '0' && c <= '9')) plain += c;
    }
    return plain;
}

std::string closeNames(const std::string& mistyped, const std::vector<std::string>& names) {
    const std::string wanted = plainName(mistyped);
    std::string text;
    for (const std::string& name : names) {
        const std::string plain = plainName(name);
        const bool part = wanted.size() > 2 && plain.find(wanted) != std::string::npos;
        if (!part && distance(wanted, plain) > 1 + wanted.size() / 4) continue;
        text += (text.empty() ? " Did you mean " : ", ") + name;
    }
    return text.empty() ? "" : text + "?";
}

}  // namespace zentrik::cli
