#pragma once

#include <string>
#include <string_view>

namespace ornavel::rehearsal {

/// The part of a UTF-8 text around a position, some words long, with "…" where it was cut.
std::string around(std::string_view text, std::size_t position);

/// The first place in a text where the longest beginning of a part stands, and how long that is.
struct Beginning {
    std::size_t place, length;
};
Beginning longest_beginning(std::string_view part, std::string_view text);

} // namespace ornavel::rehearsal
