#pragma once

#include <string>
#include <string_view>

namespace ornavel::rehearsal {

/// The text with what the machine itself decides put behind one word each: "(date)" for a moment in one of
/// the forms that the add-in writes, "(system)" for the lines of a report about the system.
std::string comparable_text(std::string_view text);

} // namespace ornavel::rehearsal
