#pragma once

#include "base/text.h"

#include <span>

namespace ornavel {

/// Two units in a row to look for. A fold is set in a unit of the text before the unit is compared.
struct Pair {
    char16_t first;
    char16_t second;
    char16_t first_fold = 0;
    char16_t second_fold = 0;
};

/// With this fold a small ASCII letter stands for both cases.
inline constexpr char16_t either_case = 0x20;
/// With this fold, and sought as itself, any unit will do, and so does the end of the text.
inline constexpr char16_t any_unit = 0xFFFF;

/// No more pairs than this are sought at once.
inline constexpr std::size_t most_pairs = 16;

/// Where the first of the pairs begins at or after a position, or npos. Reads the text once, whatever the
/// number of pairs.
std::size_t find_pair(TextView text, std::size_t from, std::span<const Pair> pairs) noexcept;

/// Where a text begins in another at or after a position, or npos. An empty one is nowhere.
std::size_t find_text(TextView text, TextView part, std::size_t from = 0) noexcept;

/// The same without regard to the case of ASCII letters. The part is in lower case and has no unit between
/// U+0040 and U+005F.
std::size_t find_in_either_case(TextView text, TextView lower_part, std::size_t from = 0) noexcept;

bool begins_in_either_case(TextView text, TextView lower_part) noexcept;

} // namespace ornavel
