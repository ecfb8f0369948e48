#pragma once
// Loops over a large model wait for memory unless they ask ahead for what comes next.

#include <cstdint>

namespace zentrik {

// Has the record that many places behind this one in an array brought near. There need not be one.
// Records that are needed once only do not push others out of the larger caches.
enum class Needed { again, once };
template <Needed needed = Needed::again, class Record>
void prefetchAhead(const Record& record, std::uintptr_t places) {
    const auto address = reinterpret_cast<std::uintptr_t>(&record) + places * sizeof(Record);
    __builtin_prefetch(reinterpret_cast<const void*>(address), 0, needed == Needed::once ? 0 : 3);
}

}  // namespace zentrik
