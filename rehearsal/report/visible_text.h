#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace ornavel::rehearsal::report {

/// The words that a reader of the HTML sees, in order. Markup parts words; comments, styles, scripts and the
/// title are not seen.
std::vector<std::string> visible_words(std::string_view html);

/// The words of a plain text.
std::vector<std::string> words_of(std::string_view text);

/// The first words of a text that are not in another one, in their order, a few of them; empty where all are
/// there. Words that the other text writes together, or apart, are there.
std::string missing_words(const std::vector<std::string>& text, const std::vector<std::string>& other);

} // namespace ornavel::rehearsal::report
