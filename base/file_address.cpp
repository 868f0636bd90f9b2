#include "base/file_address.h"

#include <algorithm>

namespace ornavel {
namespace {

constexpr TextView hexadecimal_digits = u"0123456789abcdef";

bool is_letter(char16_t unit) { return (unit >= u'A' && unit <= u'Z') || (unit >= u'a' && unit <= u'z'); }

/// The value of two digits; npos where they are none.
std::size_t value_of(TextView digits) {
    const Text lower = lower_case(digits);
    const auto first = hexadecimal_digits.find(lower[0]), second = hexadecimal_digits.find(lower[1]);
    return first == TextView::npos || second == TextView::npos ? TextView::npos : first * 16 + second;
}

/// Beyond ASCII nobody knows in which encoding an escape was written: it stays.
Text without_escapes(TextView address) {
    Text plain;
    for (std::size_t at = 0; at < address.size(); ++at) {
        const bool may_be_escape = address[at] == u'%' && at + 2 < address.size();
        const std::size_t value = may_be_escape ? value_of(address.substr(at + 1, 2)) : TextView::npos;
        if (value < 0x80) at += 2;
        plain += value < 0x80 ? static_cast<char16_t>(value) : address[at];
    }
    return replace_all(plain, u"&amp;", u"&");
}

} // namespace

bool names_drive(TextView path) { return path.size() >= 2 && is_letter(path[0]) && path[1] == u':'; }

Text path_of_address(TextView address) {
    Text path = without_escapes(address);
    std::ranges::replace(path, u'/', u'\\');
    if (!same_name(TextView(path).substr(0, 5), u"file:")) return path;
    path.erase(0, std::min(path.find_first_not_of(u'\\', 5), path.size()));
    return names_drive(path) ? path : u"\\\\" + path;
}

} // namespace ornavel
