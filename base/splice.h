#pragma once

#include "base/text.h"

#include <cstdint>
#include <span>

namespace ornavel {

/// At each of the places `removed` units give way to the replacement, in the text itself: nothing is copied
/// but what moves. The places ascend, and what is removed at one ends before the next. Throws TextTooLarge,
/// and leaves the text as it is, when the result would exceed largest_text.
void splice(Text& text, std::span<const std::uint32_t> places, std::size_t removed, TextView replacement);

/// Replaces every occurrence as replace_all does, in the text itself; a text that throws stays as it is.
void substitute(Text& text, TextView search, TextView replacement);

} // namespace ornavel
