#pragma once
#include <string>
#include <string_view>

namespace zentrik {

// What an address may hold as it stands, and the bytes of `plain`; every other byte is written %XX.
std::string percentEncoded(const std::string& text, std::string_view plain = {});

}  // namespace zentrik
