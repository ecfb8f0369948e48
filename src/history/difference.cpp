#include "history/difference.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cstring>
#include <limits>
#include <utility>

namespace zentrik {

namespace {

using Number = std::uint32_t;
constexpr Number endOfRecords = ~Number{0};

template <class Record>
auto fieldsOf(Record& record) {
    return std::tuple_cat(meaningOf(record), tracesOf(record));
}
template <class Record>
constexpr Number meaningMask = (Number{1}
                                << std::tuple_size_v<decltype(meaningOf(std::declval<Record&>()))>)-1;

bool same(float a, float b) { return std::bit_cast<Number>(a) == std::bit_cast<Number>(b); }
template <class T>
bool same(const T& a, const T& b) {
    return a == b;
}

// Calls visit(bit, a, b) for every pair of fields of two alike tuples of references, until it gives false.
template <class A, class B, class Visit>
void forEachPair(const A& a, const B& b, Visit visit) {
    static_assert(std::tuple_size_v<A> <= std::numeric_limits<Number>::digits, "a bit of the mask each");
    Number bit = 1;
    const auto step = [&](auto& x, auto& y) { return visit(std::exchange(bit, bit << 1), x, y); };
    [&]<std::size_t... i>(std::index_sequence<i...>) { (step(std::get<i>(a), std::get<i>(b)) && ...); }
    (std::make_index_sequence<std::tuple_size_v<A>>());
}
// The same for the fields that a mask names, and no further than the last of them.
template <class A, class B, class Visit>
void forEachPairOf(Number mask, const A& a, const B& b, Visit visit) {
    forEachPair(a, b, [&](Number bit, auto& x, auto& y) {
        if ((mask & bit) != 0) visit(x, y);
        return mask >= bit << 1;
    });
}

template <class T>
void put(Difference& out, const T& value) {
    static_assert(std::is_trivially_copyable_v<T>);
    out.append(reinterpret_cast<const char*>(&value), sizeof value);
}
void put(Difference& out, const std::string& text) {
    put(out, text.size());
    out += text;
}

// Takes values off the front of what was put.
class Taker {
public:
    explicit Taker(const Difference& from) : at_(from.data()) {}

    template <class T>
    void take(T& value) {
        std::memcpy(&value, at_, sizeof value);
        at_ += sizeof value;
    }
    void take(std::string& text) {
        std::size_t size = 0;
        take(size);
        text.assign(at_, size);
        at_ += size;
    }
    template <class T>
    T taken() {
        T value{};
        take(value);
        return value;
    }

private:
    const char* at_;
};

// Appends what differs between two tuples of fields. Gives the mask of the fields that do.
template <class Fields>
Number putFields(Difference& out, Number slot, const Fields& from, const Fields& to) {
    Number changed = 0;
    forEachPair(from, to, [&](Number bit, auto& a, auto& b) {
        changed |= same(a, b) ? 0 : bit;
        return true;
    });
    if (changed == 0) return 0;
    put(out, slot);
    put(out, changed);
    forEachPairOf(changed, from, to, [&](auto& a, auto& b) { put(out, a), put(out, b); });
    return changed;
}

template <class Fields>
void takeFields(Taker& in, Way way, const Fields& fields) {
    const auto changed = in.taken<Number>();
    forEachPairOf(changed, fields, fields, [&](auto& field, auto&) {
        auto other = field;
        way == Way::back ? (in.take(field), in.take(other)) : (in.take(other), in.take(field));
    });
}

// The settings, of which only the words are known here.
using Words = std::array<Number, sizeof(ProjectSettings) / sizeof(Number)>;
static_assert(std::is_trivially_copyable_v<ProjectSettings> && alignof(ProjectSettings) == alignof(Number));

Words wordsOf(const ProjectSettings& settings) { return std::bit_cast<Words>(settings); }

// What belongs to no record.
template <class From, class SomeWords>
auto globalsOf(From& contents, SomeWords& words) {
    const auto withWords = [&](auto&... word) {
        return std::tie(contents.ProjectTitle, contents.TimeDirection, word...);
    };
    return std::apply(withWords, words);
}

// A quick look that spares most records the comparison of their fields. Padding may differ where no field
// does.
template <class Record>
bool sameBytes(const Record& a, const Record& b) {
    if constexpr (std::is_trivially_copyable_v<Record>)
        return std::memcmp(&a, &b, sizeof a) == 0;
    else
        return false;
}

// Appends what differs between two arrays. True when it is more than traces.
template <class Record>
bool putRecords(Difference& out, const std::vector<Record>& from, const std::vector<Record>& to) {
    static const Record empty;
    bool meant = from.size() != to.size();
    put(out, from.size());
    put(out, to.size());
    const auto at = [](const std::vector<Record>& records, std::size_t i) -> const Record& {
        return i < records.size() ? records[i] : empty;
    };
    for (std::size_t i = 0; i < std::max(from.size(), to.size()); ++i) {
        const Record &a = at(from, i), &b = at(to, i);
        if (sameBytes(a, b)) continue;
        const Number changed = putFields(out, static_cast<Number>(i), fieldsOf(a), fieldsOf(b));
        meant |= (changed & meaningMask<const Record>) != 0;
    }
    put(out, endOfRecords);
    return meant;
}

template <class Record>
void takeRecords(Taker& in, Way way, std::vector<Record>& records) {
    const auto former = in.taken<std::size_t>(), later = in.taken<std::size_t>();
    records.resize(std::max(former, later));
    for (auto slot = in.taken<Number>(); slot != endOfRecords; slot = in.taken<Number>())
        takeFields(in, way, fieldsOf(records[slot]));
    records.resize(way == Way::back ? former : later);
}

}  // namespace

std::optional<Difference> differenceBetween(const Contents& from, const Contents& to) {
    Difference out;
    const bool nodes = putRecords(out, from.Nodes, to.Nodes);
    const bool links = putRecords(out, from.Links, to.Links);
    const Words former = wordsOf(from), later = wordsOf(to);
    const bool globals = putFields(out, 0, globalsOf(from, former), globalsOf(to, later)) != 0;
    if (!nodes && !links && !globals) return std::nullopt;
    if (!globals) put(out, endOfRecords);
    out.shrink_to_fit();
    return out;
}

void apply(const Difference& difference, Way way, Contents& contents) {
    Taker in(difference);
    takeRecords(in, way, contents.Nodes);
    takeRecords(in, way, contents.Links);
    if (in.taken<Number>() == endOfRecords) return;
    Words words = wordsOf(contents);
    takeFields(in, way, globalsOf(contents, words));
    static_cast<ProjectSettings&>(contents) = std::bit_cast<ProjectSettings>(words);
}

}  // namespace zentrik
