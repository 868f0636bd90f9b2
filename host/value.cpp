#include "host/value.h"

#include "base/encoding.h"

#include <cmath>
#include <limits>
#include <optional>

namespace ornavel::host {
namespace {

[[noreturn]] void mismatch() { throw Error(u"Type mismatch"); }

std::optional<std::int32_t> whole_number(TextView text) {
    const bool negative = text.starts_with(u'-');
    const TextView digits = text.substr(negative ? 1 : 0);
    if (digits.empty() || digits.find_first_not_of(u"0123456789") != TextView::npos) return {};
    const int value = numeric_value(digits);
    return negative ? -value : value;
}

std::int32_t rounded(double number) {
    if (!(std::abs(number) <= std::numeric_limits<std::int32_t>::max())) mismatch();
    return static_cast<std::int32_t>(std::lrint(number));
}

struct ToText {
    Text operator()(Empty) const { return {}; }
    Text operator()(bool flag) const { return flag ? u"True" : u"False"; }
    Text operator()(std::int32_t number) const { return to_text(number); }
    Text operator()(double number) const { return to_text(rounded(number)); }
    Text operator()(Text& text) const { return std::move(text); }
    Text operator()(const auto&) const { mismatch(); }
};

struct ToNumber {
    std::int32_t operator()(Empty) const { return 0; }
    std::int32_t operator()(bool flag) const { return flag ? -1 : 0; }
    std::int32_t operator()(std::int32_t number) const { return number; }
    std::int32_t operator()(double number) const { return rounded(number); }
    std::int32_t operator()(const Text& text) const {
        if (const auto number = whole_number(text)) return *number;
        mismatch();
    }
    std::int32_t operator()(const auto&) const { mismatch(); }
};

std::string hexadecimal(std::int32_t code) {
    constexpr std::string_view digits = "0123456789ABCDEF";
    std::string text = "0x";
    for (int shift = 28; shift >= 0; shift -= 4)
        text += digits[static_cast<std::uint32_t>(code) >> shift & 15];
    return text;
}

} // namespace

Error::Error(TextView description, Text member, std::int32_t code)
    : Failure(description,
              member.empty() ? std::string() : to_utf8(member) + " failed with " + hexadecimal(code)),
      member_(std::move(member)), code_(code) {}

Text as_text(Value value) { return std::visit(ToText{}, value); }

std::int32_t as_number(const Value& value) { return std::visit(ToNumber{}, value); }

bool as_flag(const Value& value) {
    if (const auto* text = std::get_if<Text>(&value)) {
        if (same_name(*text, u"True")) return true;
        if (same_name(*text, u"False")) return false;
    }
    return as_number(value) != 0;
}

ObjectPtr as_object(const Value& value) {
    auto object = as_object_or_nothing(value);
    if (!object) throw Error(u"Object variable not set");
    return object;
}

ObjectPtr as_object_or_nothing(const Value& value) {
    if (std::holds_alternative<Empty>(value)) return nullptr;
    if (const auto* object = std::get_if<ObjectPtr>(&value)) return *object;
    mismatch();
}

} // namespace ornavel::host
