#include "programs/mass_mailer/addresses.h"

#include <algorithm>

namespace ornavel::mass_mailer {
namespace {

constexpr std::size_t longest_address = 254;

bool is_control(char16_t unit) { return unit < 0x20 || unit == 0x7F; }

/// Letters of the western code page have capitals too, and addresses with umlauts exist.
char16_t small(char16_t unit) {
    const bool capital = (unit >= 'A' && unit <= 'Z') || (unit >= 0xC0 && unit <= 0xDE && unit != 0xD7);
    return capital ? static_cast<char16_t>(unit + 0x20) : unit;
}

bool is_dotted(TextView words) {
    return !words.empty() && !words.starts_with(u'.') && !words.ends_with(u'.') && !contains(words, u"..");
}

bool is_quoted(TextView words) {
    return words.size() > 2 && words.starts_with(u'"') && words.ends_with(u'"') &&
           words.substr(1, words.size() - 2).find(u'"') == TextView::npos;
}

bool is_user(TextView words) {
    return is_quoted(words) || (is_dotted(words) && words.find_first_of(u" \"()<>[]:@\\") == TextView::npos);
}

bool is_domain(TextView words) {
    const auto is_sign = [](char16_t unit) {
        return unit < 0x80 && !(unit >= 'a' && unit <= 'z') && !(unit >= 'A' && unit <= 'Z') &&
               !(unit >= '0' && unit <= '9') && unit != '-' && unit != '.';
    };
    return is_dotted(words) && !words.starts_with(u'-') && !words.ends_with(u'-') &&
           std::ranges::none_of(words, is_sign);
}

} // namespace

Text address_in(TextView cell) {
    Text address = trim(cell);
    const auto opening = address.rfind(u'<');
    if (opening == Text::npos || !address.ends_with(u'>')) return address;
    return trim(TextView(address).substr(opening + 1, address.size() - opening - 2));
}

TextView why_no_address(TextView address) {
    if (address.empty()) return u"There is no address";
    if (address.size() > longest_address) return u"No address is as long as this";
    if (std::ranges::any_of(address, is_control)) return u"An address has no such character";
    // The mail client would take these for the end of one address and the beginning of another.
    if (address.find_first_of(u",;") != TextView::npos) return u"There is more than one address";
    const auto sign = address.rfind(u'@');
    if (sign == TextView::npos) return u"An address has an \"@\"";
    if (!is_user(address.substr(0, sign)) || !is_domain(address.substr(sign + 1)))
        return u"This is no address";
    return {};
}

Text address_key(TextView address) {
    Text key;
    key.reserve(address.size());
    for (const char16_t unit : address)
        if (unit != ' ') key += small(unit);
    return key;
}

} // namespace ornavel::mass_mailer
