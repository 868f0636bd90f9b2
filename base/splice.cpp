#include "base/splice.h"

#include "base/errors.h"
#include "base/find.h"

#include <algorithm>
#include <cstring>

namespace ornavel {
namespace {

void move_units(char16_t* to, const char16_t* from, std::size_t count) {
    std::memmove(to, from, count * sizeof(char16_t));
}

/// From the first place on; what is kept moves to the left.
void splice_shorter(Text& text, std::span<const std::uint32_t> places, std::size_t removed,
                    TextView replacement) {
    char16_t* const units = text.data();
    char16_t* out = units + places.front();
    for (std::size_t i = 0; i < places.size(); ++i) {
        out = std::ranges::copy(replacement, out).out;
        const std::size_t begin = places[i] + removed;
        const std::size_t end = i + 1 < places.size() ? places[i + 1] : text.size();
        move_units(out, units + begin, end - begin);
        out += end - begin;
    }
    text.resize(static_cast<std::size_t>(out - units));
}

/// From the last place on; what is kept moves to the right.
void splice_longer(Text& text, std::span<const std::uint32_t> places, std::size_t removed,
                   TextView replacement) {
    std::size_t end = text.size();
    text.resize(end + places.size() * (replacement.size() - removed));
    char16_t* const units = text.data();
    char16_t* out = units + text.size();
    for (std::size_t i = places.size(); i-- > 0;) {
        const std::size_t begin = places[i] + removed;
        out -= end - begin;
        move_units(out, units + begin, end - begin);
        out -= replacement.size();
        std::ranges::copy(replacement, out);
        end = places[i];
    }
}

} // namespace

void splice(Text& text, std::span<const std::uint32_t> places, std::size_t removed, TextView replacement) {
    if (places.empty()) return;
    if (replacement.size() <= removed) return splice_shorter(text, places, removed, replacement);
    const std::uint64_t growth = std::uint64_t{places.size()} * (replacement.size() - removed);
    if (text.size() + growth > largest_text) throw TextTooLarge();
    splice_longer(text, places, removed, replacement);
}

void substitute(Text& text, TextView search, TextView replacement) {
    if (search.empty()) return;
    std::vector<std::uint32_t> places;
    for (auto at = find_text(text, search); at != Text::npos;
         at = find_text(text, search, at + search.size()))
        places.push_back(static_cast<std::uint32_t>(at));
    splice(text, places, search.size(), replacement);
}

} // namespace ornavel
