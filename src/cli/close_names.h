#pragma once
#include <string>
#include <vector>

namespace zentrik::cli {

// Letters and digits alone, in lower case: what counts when names are compared.
std::string plainName(const std::string& name);

// " Did you mean ..., ... ?" with the names that a mistyped one may stand for, or the empty text.
std::string closeNames(const std::string& mistyped, const std::vector<std::string>& names);

}  // namespace zentrik::cli
