#include "host/questions.h"

#include "basics/numbers.h"
#include "host/host.h"

namespace zentrik {

std::optional<double> askNumber(Host& host, const std::string& prompt, const std::string& title,
                                const std::string& preset) {
    const std::string answer = host.numberBox(prompt, title, preset);
    if (answer.empty()) return std::nullopt;
    return leadingNumber(answer);
}

}  // namespace zentrik
