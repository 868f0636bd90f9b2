#include "rehearsal/comparable_text.h"

#include <algorithm>

namespace ornavel::rehearsal {
namespace {

// How moments look: 0 is a digit, 9 one or two of them, @ the name of a month, A and a letters, x the A or P
// in front of the M. Every other character stands for itself.
constexpr std::string_view shapes[] = {
    "00-00-0000 00:00:00", // a line of a log
    "@ 9, 0000",           // the stamp on a message
    "9/9/0000 9:00:00 xM", // a row of the usage log
    "Aaa-00-00 00:00 xM",  // a note on a contact
};

constexpr std::string_view months[] = {"January", "February", "March",     "April",   "May",      "June",
                                       "July",    "August",   "September", "October", "November", "December"};

bool is_between(char unit, char first, char last) { return unit >= first && unit <= last; }

/// How many characters at the start of the text one sign of a shape stands for; 0 where it doesn't fit.
std::size_t taken_by(char sign, std::string_view text) {
    if (text.empty()) return 0;
    const char unit = text[0];
    switch (sign) {
    case '0':
        return is_between(unit, '0', '9');
    case '9':
        return !is_between(unit, '0', '9') ? 0 : text.size() > 1 && is_between(text[1], '0', '9') ? 2 : 1;
    case 'A':
        return is_between(unit, 'A', 'Z');
    case 'a':
        return is_between(unit, 'a', 'z');
    case 'x':
        return unit == 'A' || unit == 'P';
    case '@': {
        const auto month = std::ranges::find_if(months, [&](auto name) { return text.starts_with(name); });
        return month == std::end(months) ? 0 : month->size();
    }
    default:
        return unit == sign;
    }
}

std::size_t taken_by(std::string_view shape, std::string_view text) {
    std::size_t length = 0;
    for (const char sign : shape) {
        const std::size_t taken = taken_by(sign, text.substr(length));
        if (taken == 0) return 0;
        length += taken;
    }
    return length;
}

std::size_t length_of_moment(std::string_view text) {
    for (const auto shape : shapes)
        if (const std::size_t length = taken_by(shape, text)) return length;
    return 0;
}

/// From the system's name to the end of the last line that counts kilobytes.
std::size_t length_of_system(std::string_view text) {
    constexpr std::string_view beginnings[] = {"\nWindows 32s ", "\nWindows 95 ", "\nWindows NT "};
    if (std::ranges::none_of(beginnings, [&](auto beginning) { return text.starts_with(beginning); }))
        return 0;
    const auto end = text.ends_with('K') ? text.size() - 1 : text.rfind("K\r\n");
    return end == std::string_view::npos ? 0 : end + 1;
}

} // namespace

std::string comparable_text(std::string_view text) {
    std::string result;
    while (!text.empty()) {
        const std::size_t moment = length_of_moment(text), system = length_of_system(text);
        if (moment > 0)
            result += "(date)";
        else if (system > 0)
            result += "(system)";
        else
            result += text[0];
        text.remove_prefix(std::max({moment, system, std::size_t{1}}));
    }
    return result;
}

} // namespace ornavel::rehearsal
