#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace ornavel {

/// Every text of the system: UTF-16 units, exactly as the mail client hands them over. A lone surrogate is
/// a unit like any other. Positions and lengths count units.
using Text = std::u16string;
using TextView = std::u16string_view;

inline constexpr TextView line_end = u"\r\n";

/// A text that would grow beyond this many units (64 Mi) is a Failure, so that no rule can exhaust memory.
inline constexpr std::size_t largest_text = std::size_t{64} << 20;

/// ASCII letters only: lengths never change, so positions found in the copy are valid in the original.
Text lower_case(TextView text);
Text upper_case(TextView text);

/// Names of settings, sections and files: compared as the registry does, without case.
bool same_name(TextView left, TextView right);

/// Orders names without case: the order of every file list.
bool name_before(TextView left, TextView right);

/// Blanks only; tabs and line ends stay.
Text trim(TextView text);

bool contains(TextView text, TextView part);

/// Replaces every occurrence, case-sensitively, in one pass from the first unit. An empty search text leaves
/// the text as it is. Throws Failure when the result would exceed largest_text.
Text replace_all(Text text, TextView search, TextView replacement);

/// The pieces between the separators; a text without one is a single piece. The separator is not empty.
std::vector<Text> split(TextView text, TextView separator);

/// Lines end at CR LF, LF or CR; a final line end makes no further empty line, an unterminated last line
/// counts.
std::vector<Text> lines_of(TextView text);

/// The longest run of decimal digits after leading blanks, else 0; larger numbers stop at 2147483647.
int numeric_value(TextView text);
/// The same with a minus in front where the text has one: a coordinate may be negative.
int signed_value(TextView text);

Text to_text(long long number);
/// With a zero in front of a single digit.
Text two_digits(int number);

} // namespace ornavel
