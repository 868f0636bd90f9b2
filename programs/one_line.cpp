#include "programs/one_line.h"

#include <algorithm>

namespace ornavel::programs {
namespace {

bool begins_a_pair(char16_t unit) { return unit >= 0xD800 && unit < 0xDC00; }
bool ends_a_pair(char16_t unit) { return unit >= 0xDC00 && unit < 0xE000; }

} // namespace

Text in_one_line(TextView value, std::size_t longest) {
    std::size_t length = std::min(value.size(), longest);
    if (length < value.size() && begins_a_pair(value[length - 1]) && ends_a_pair(value[length])) --length;
    Text line = replace_all(Text(value.substr(0, length)), line_end, u" ");
    for (char16_t& unit : line)
        if (unit < u' ') unit = u' ';
    return length < value.size() ? line + u"\u2026" : line;
}

} // namespace ornavel::programs
