#pragma once
#include "basics/numbers.h"
#include "host/host.h"

#include <optional>
#include <string>

namespace zentrik {

// A message under the program's name.
inline void tell(Host& host, const std::string& text, BoxIcon icon = BoxIcon::exclamation) {
    host.messageBox(text, "Zentrik", icon);
}

// Asks for a number; a text that begins with none counts as 0. Nothing where the answer is empty.
inline std::optional<double> askNumber(Host& host, const std::string& prompt, const std::string& title,
                                       const std::string& preset) {
    const std::string answer = host.numberBox(prompt, title, preset);
    if (answer.empty()) return std::nullopt;
    return leadingNumber(answer);
}

}  // namespace zentrik
