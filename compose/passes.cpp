#include "compose/passes.h"

#include "compose/one_scan.h"

#include <algorithm>
#include <cstring>

namespace ornavel::compose {
namespace {

constexpr TextView field_begin = u"[#";
constexpr std::size_t skipped = 3; // "Sig", which nearly every field's name begins with
constexpr std::size_t telling = 4; // the units after it, which tell the fields apart
constexpr std::size_t field_units = 2 + skipped + telling;

/// Moves what stands between the occurrences together; the replacement is no longer than the search text.
/// Gives back where the last occurrence ended.
std::size_t shrink(Text& text, TextView search, TextView replacement, std::size_t first) {
    char16_t* out = text.data() + first;
    std::size_t done = 0;
    for (auto at = first; at != TextView::npos;) {
        out = std::copy(replacement.begin(), replacement.end(), out);
        done = at + search.size();
        at = find_text(text, search, done);
        const auto kept = std::min(at, text.size()) - done;
        std::memmove(out, text.data() + done, kept * sizeof(char16_t));
        out += kept;
    }
    text.resize(static_cast<std::size_t>(out - text.data()));
    return done;
}

std::size_t count_from(TextView text, TextView search, std::size_t first) {
    std::size_t count = 0;
    for (auto at = first; at != TextView::npos; at = find_text(text, search, at + search.size())) ++count;
    return count;
}

std::size_t copy_replaced(TextView text, Text& out, TextView search, TextView replacement,
                          std::size_t first) {
    std::size_t done = 0;
    for (auto at = first; at != TextView::npos; at = find_text(text, search, done)) {
        out.append(text.substr(done, at - done)).append(replacement);
        done = at + search.size();
    }
    out.append(text.substr(done));
    return done;
}

} // namespace

Passes::Passes(std::span<const Pass> ordered) {
    rows_.reserve(ordered.size());
    for (const Pass& pass : ordered) {
        if (pass.search.empty()) {
            rows_.push_back({pass.search, pass.replacement, 0, 0});
            continue;
        }
        rows_.push_back({pass.search, pass.replacement, kind_of(pass.search), 0});
        kinds_ |= rows_.back().kind;
        longest_ = std::max(longest_, pass.search.size());
        for (const char16_t unit : pass.search)
            if (unit < living_.size()) living_[unit] = true;
        add_pair(pass.search, rows_.back().kind);
    }
    for (std::size_t i = rows_.size(); i-- > 0;) {
        const bool alike = i + 1 < rows_.size() && rows_[i + 1].kind == rows_[i].kind;
        rows_[i].other = alike ? rows_[i + 1].other : i + 1;
    }
}

/// The kind of the field that the text begins with.
Passes::FieldKinds Passes::kind_at_front(TextView text) {
    if (text.size() < field_units || !text.starts_with(field_begin)) return no_field;
    std::uint64_t name;
    static_assert(sizeof name == telling * sizeof(char16_t));
    std::memcpy(&name, text.data() + field_begin.size() + skipped, sizeof name);
    return FieldKinds{1} << (((name * 0x9E3779B97F4A7C15U) >> 32) % 63);
}

Passes::FieldKinds Passes::kind_of(TextView search) {
    const auto field = search.find(field_begin);
    return field == TextView::npos ? no_field : kind_at_front(search.substr(field));
}

Passes::FieldKinds Passes::kinds_in(TextView text) const {
    constexpr Pair opening{field_begin[0], field_begin[1]};
    FieldKinds kinds = no_field;
    for (auto at = find_pair(text, 0, {&opening, 1}); at != TextView::npos;
         at = find_pair(text, at + 1, {&opening, 1}))
        kinds |= kind_at_front(text.substr(at));
    return kinds & kinds_;
}

/// A search text with a field is sought by the field's opening, any other by its own first units.
void Passes::add_pair(TextView search, FieldKinds kind) {
    if (kind == no_field) without_field_.push_back(search);
    const TextView sought = kind == no_field ? search : field_begin;
    const Pair pair =
        sought.size() == 1 ? Pair{sought[0], any_unit, 0, any_unit} : Pair{sought[0], sought[1]};
    const auto same = [&](const Pair& other) {
        return other.first == pair.first && other.second == pair.second &&
               other.second_fold == pair.second_fold;
    };
    if (std::ranges::none_of(pairs_, same)) pairs_.push_back(pair);
}

std::size_t Passes::make(Text& text, Text& spare, Trace& trace) const {
    FieldKinds present = kinds_in(text);
    for (std::size_t i = 0; i < rows_.size();) {
        const Row& row = rows_[i];
        if ((row.kind & present) == 0) {
            i = row.other;
            continue;
        }
        const auto first = row.search.size() <= text.size() ? find_text(text, row.search) : TextView::npos;
        if (first != TextView::npos) {
            if (!replace(text, spare, row, first, trace)) return i;
            present = kinds_in(text);
        }
        ++i;
    }
    return rows_.size();
}

bool Passes::replace(Text& text, Text& spare, const Row& row, std::size_t first, Trace& trace) {
    const std::size_t length = text.size();
    std::size_t done = 0;
    if (row.replacement.size() <= row.search.size()) {
        done = shrink(text, row.search, row.replacement, first);
    } else {
        const std::uint64_t count = count_from(text, row.search, first);
        const std::uint64_t size = length + count * (row.replacement.size() - row.search.size());
        if (size > largest_text) return false;
        spare.clear();
        spare.reserve(static_cast<std::size_t>(size));
        done = copy_replaced(text, spare, row.search, row.replacement, first);
        text.swap(spare);
    }
    trace.left = std::min(trace.left, first);
    trace.right = std::min(trace.right, length - done);
    trace.longest = std::max(trace.longest, text.size());
    return true;
}

std::size_t Passes::apply_in_order(Text& text) const {
    Text spare;
    Trace trace{text.size(), text.size(), text.size()};
    return make(text, spare, trace);
}

bool Passes::apply_all(Text& text) const {
    if (OneScan(*this).apply(text)) return true;
    Text copy = text;
    if (apply_in_order(copy) < rows_.size()) return false;
    text = std::move(copy);
    return true;
}

std::size_t Passes::apply(Text& text) const {
    if (OneScan(*this).apply(text)) return rows_.size();
    return apply_in_order(text);
}

} // namespace ornavel::compose
