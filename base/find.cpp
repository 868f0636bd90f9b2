#include "base/find.h"

#include <algorithm>
#include <array>
#include <bit>

#if defined(__i386__) || defined(__x86_64__)
#define ORNAVEL_SSE2 1
#include <emmintrin.h>
#endif

namespace ornavel {
namespace {

constexpr auto nowhere = TextView::npos;

bool same(char16_t unit, char16_t sought, char16_t fold) {
    return static_cast<char16_t>(unit | fold) == sought;
}

bool begins_at(TextView text, std::size_t at, const Pair& pair) {
    if (!same(text[at], pair.first, pair.first_fold)) return false;
    if (at + 1 == text.size()) return pair.second_fold == any_unit;
    return same(text[at + 1], pair.second, pair.second_fold);
}

std::size_t find_one_by_one(TextView text, std::size_t from, std::span<const Pair> pairs) {
    for (std::size_t at = from; at < text.size(); ++at)
        if (std::ranges::any_of(pairs, [&](const Pair& pair) { return begins_at(text, at, pair); }))
            return at;
    return nowhere;
}

#ifdef ORNAVEL_SSE2
// Processors of the time may lack SSE2: only these functions are compiled for it, and only called where it
// is.

constexpr std::size_t lanes = 8;

struct WidePair {
    __m128i first, second, first_fold, second_fold;
};

[[gnu::target("sse2")]] __m128i wide(char16_t unit) { return _mm_set1_epi16(static_cast<short>(unit)); }

[[gnu::target("sse2")]] __m128i load(const char16_t* units) {
    return _mm_loadu_si128(reinterpret_cast<const __m128i*>(units));
}

/// All ones in each lane where the pair begins.
[[gnu::target("sse2")]] __m128i beginnings(__m128i units, __m128i next_units, const WidePair& pair) {
    return _mm_and_si128(_mm_cmpeq_epi16(_mm_or_si128(units, pair.first_fold), pair.first),
                         _mm_cmpeq_epi16(_mm_or_si128(next_units, pair.second_fold), pair.second));
}

/// Bits 2i and 2i+1 are set where a pair begins at units[i]; reads nine units.
template <std::size_t count>
[[gnu::target("sse2")]] unsigned beginnings_in_block(const char16_t* units, const WidePair* pairs,
                                                     std::size_t number) {
    const __m128i here = load(units), next = load(units + 1);
    __m128i found = beginnings(here, next, pairs[0]);
    for (std::size_t i = 1; i < (count != 0 ? count : number); ++i)
        found = _mm_or_si128(found, beginnings(here, next, pairs[i]));
    return static_cast<unsigned>(_mm_movemask_epi8(found));
}

template <std::size_t count>
[[gnu::target("sse2")]] std::size_t find_in_blocks(TextView text, std::size_t from, const WidePair* pairs,
                                                   std::size_t number) {
    const char16_t* units = text.data();
    const std::size_t last_block = text.size() - lanes - 1;
    std::size_t at = from;
    for (; at <= last_block; at += lanes)
        if (const unsigned found = beginnings_in_block<count>(units + at, pairs, number))
            return at + static_cast<unsigned>(std::countr_zero(found)) / 2;
    // The last block overlaps the one before, in which no pair begins.
    const unsigned found = beginnings_in_block<count>(units + last_block, pairs, number);
    return found != 0 ? last_block + static_cast<unsigned>(std::countr_zero(found)) / 2 : nowhere;
}

[[gnu::target("sse2")]] std::size_t find_wide(TextView text, std::size_t from, std::span<const Pair> pairs) {
    std::array<WidePair, most_pairs> wide_pairs;
    for (std::size_t i = 0; i < pairs.size(); ++i)
        wide_pairs[i] = {wide(pairs[i].first), wide(pairs[i].second), wide(pairs[i].first_fold),
                         wide(pairs[i].second_fold)};
    const auto found = pairs.size() == 1 ? find_in_blocks<1>(text, from, wide_pairs.data(), 1)
                                         : find_in_blocks<0>(text, from, wide_pairs.data(), pairs.size());
    return found != nowhere ? found : find_one_by_one(text, text.size() - 1, pairs);
}

bool has_sse2() {
#ifdef __x86_64__
    return true;
#else
    static const bool supported = __builtin_cpu_supports("sse2");
    return supported;
#endif
}
#endif

/// Where `begins` holds for one of the places at which the pair stands.
template <typename Begins>
std::size_t find_where(TextView text, std::size_t from, const Pair& pair, const Begins& begins) {
    auto at = find_pair(text, from, {&pair, 1});
    while (at != nowhere && !begins(text.substr(at))) at = find_pair(text, at + 1, {&pair, 1});
    return at;
}

char16_t fold_of(char16_t unit) { return unit >= u'a' && unit <= u'z' ? either_case : char16_t{0}; }

} // namespace

std::size_t find_pair(TextView text, std::size_t from, std::span<const Pair> pairs) noexcept {
    if (from >= text.size() || pairs.empty()) return nowhere;
#ifdef ORNAVEL_SSE2
    if (text.size() - from > lanes && has_sse2()) return find_wide(text, from, pairs);
#endif
    return find_one_by_one(text, from, pairs);
}

std::size_t find_text(TextView text, TextView part, std::size_t from) noexcept {
    if (part.empty()) return nowhere;
    const bool alone = part.size() == 1;
    const Pair pair{part[0], alone ? any_unit : part[1], 0, alone ? any_unit : char16_t{0}};
    return find_where(text, from, pair, [&](TextView rest) { return rest.starts_with(part); });
}

bool begins_in_either_case(TextView text, TextView lower_part) noexcept {
    return text.size() >= lower_part.size() &&
           std::equal(lower_part.begin(), lower_part.end(), text.begin(),
                      [](char16_t sought, char16_t unit) { return same(unit, sought, fold_of(sought)); });
}

std::size_t find_in_either_case(TextView text, TextView lower_part, std::size_t from) noexcept {
    if (lower_part.empty()) return nowhere;
    const bool alone = lower_part.size() == 1;
    const Pair pair{lower_part[0], alone ? any_unit : lower_part[1], fold_of(lower_part[0]),
                    alone ? any_unit : fold_of(lower_part[1])};
    return find_where(text, from, pair,
                      [&](TextView rest) { return begins_in_either_case(rest, lower_part); });
}

} // namespace ornavel
