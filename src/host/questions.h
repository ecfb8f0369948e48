#pragma once
#include <optional>
#include <string>

namespace zentrik {

class Host;

// Asks for a number; a text that begins with none counts as 0. Nothing where the answer is empty.
std::optional<double> askNumber(Host& host, const std::string& prompt, const std::string& title,
                                const std::string& preset);

}  // namespace zentrik
