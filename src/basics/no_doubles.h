#pragma once
#include <cstddef>

namespace zentrik {

// Whether two rows of a table give the same for a quality that tells rows apart. Rows which have none (a null
// pointer, an empty text) share nothing. For static_assert beside the table.
template <class Row, std::size_t count, class Quality>
constexpr bool anyShared(const Row (&rows)[count], Quality quality) {
    using Value = decltype(quality(rows[0]));
    Value values[count] = {};  // worked out once: a compiler counts the steps it takes
    for (std::size_t i = 0; i < count; ++i) values[i] = quality(rows[i]);
    for (std::size_t a = 0; a < count; ++a)
        for (std::size_t b = a + 1; b < count && values[a] != Value(); ++b)
            if (values[a] == values[b]) return true;
    return false;
}

}  // namespace zentrik
