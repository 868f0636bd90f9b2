#include "base/text.h"

#include "base/find.h"
#include "base/splice.h"

#include <algorithm>
#include <limits>

namespace ornavel {
namespace {

constexpr char16_t lower(char16_t unit) {
    return unit >= u'A' && unit <= u'Z' ? static_cast<char16_t>(unit + 32) : unit;
}

constexpr char16_t upper(char16_t unit) {
    return unit >= u'a' && unit <= u'z' ? static_cast<char16_t>(unit - 32) : unit;
}

} // namespace

Text lower_case(TextView text) {
    Text result(text);
    std::ranges::transform(result, result.begin(), lower);
    return result;
}

Text upper_case(TextView text) {
    Text result(text);
    std::ranges::transform(result, result.begin(), upper);
    return result;
}

bool same_name(TextView left, TextView right) { return std::ranges::equal(left, right, {}, upper, upper); }

bool name_before(TextView left, TextView right) {
    const std::size_t common = std::min(left.size(), right.size());
    for (std::size_t i = 0; i < common; ++i) {
        // Every setting that is read comes by here; nearly all units are equal as they stand.
        if (left[i] == right[i]) continue;
        const char16_t one = upper(left[i]), other = upper(right[i]);
        if (one != other) return one < other;
    }
    return left.size() < right.size();
}

Text trim(TextView text) {
    const auto first = text.find_first_not_of(u' ');
    if (first == TextView::npos) return {};
    return Text(text.substr(first, text.find_last_not_of(u' ') - first + 1));
}

bool contains(TextView text, TextView part) {
    return part.empty() || find_text(text, part) != TextView::npos;
}

Text replace_all(Text text, TextView search, TextView replacement) {
    substitute(text, search, replacement);
    return text;
}

std::vector<Text> split(TextView text, TextView separator) {
    std::vector<Text> pieces;
    std::size_t begin = 0;
    for (auto at = find_text(text, separator); at != TextView::npos; at = find_text(text, separator, begin)) {
        pieces.emplace_back(text.substr(begin, at - begin));
        begin = at + separator.size();
    }
    pieces.emplace_back(text.substr(begin));
    return pieces;
}

std::vector<Text> lines_of(TextView text) {
    std::vector<Text> lines;
    while (!text.empty()) {
        const auto end = text.find_first_of(line_end);
        lines.emplace_back(text.substr(0, end));
        if (end == TextView::npos) break;
        text.remove_prefix(end + (text.substr(end).starts_with(line_end) ? 2 : 1));
    }
    return lines;
}

int numeric_value(TextView text) {
    text.remove_prefix(std::min(text.find_first_not_of(u' '), text.size()));
    long long value = 0;
    for (const char16_t unit : text) {
        if (unit < u'0' || unit > u'9') break;
        value = std::min<long long>(value * 10 + (unit - u'0'), std::numeric_limits<int>::max());
    }
    return static_cast<int>(value);
}

int signed_value(TextView text) {
    const auto sign = text.find_first_not_of(u' ');
    const bool negative = sign != TextView::npos && text[sign] == u'-';
    return negative ? -numeric_value(text.substr(sign + 1)) : numeric_value(text);
}

Text to_text(long long number) {
    const std::string digits = std::to_string(number);
    return {digits.begin(), digits.end()};
}

Text two_digits(int number) { return (number < 10 ? u"0" : u"") + to_text(number); }

} // namespace ornavel
