#include "rehearsal/excerpt.h"

#include <algorithm>

namespace ornavel::rehearsal {
namespace {

constexpr std::size_t shown_before = 40, shown_behind = 120;

bool is_inside_character(std::string_view text, std::size_t position) {
    return position < text.size() && (static_cast<unsigned char>(text[position]) & 0xC0) == 0x80;
}

} // namespace

std::string around(std::string_view text, std::size_t position) {
    std::size_t begin = position > shown_before ? position - shown_before : 0;
    std::size_t end = std::min(text.size(), position + shown_behind);
    while (is_inside_character(text, begin)) --begin;
    while (is_inside_character(text, end)) ++end;
    return (begin > 0 ? "…" : "") + std::string(text.substr(begin, end - begin)) +
           (end < text.size() ? "…" : "");
}

Beginning longest_beginning(std::string_view part, std::string_view text) {
    Beginning found{0, 0};
    for (std::size_t fails = part.size() + 1; found.length + 1 < fails;) {
        const std::size_t length = (found.length + fails) / 2;
        const auto place = text.find(part.substr(0, length));
        if (place == std::string_view::npos)
            fails = length;
        else
            found = {place, length};
    }
    return found;
}

} // namespace ornavel::rehearsal
