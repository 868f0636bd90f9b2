#include "forms/captions.h"

#include <algorithm>
#include <cmath>

namespace ornavel::forms {
namespace {

constexpr double largest_identifier = 32767;

/// Takes decimal digits from the front of the text; shifts them into the value. Gives back how many there
/// were.
int take_digits(TextView& text, double& value) {
    int count = 0;
    for (; !text.empty() && text.front() >= u'0' && text.front() <= u'9'; ++count) {
        value = value * 10 + (text.front() - u'0');
        text.remove_prefix(1);
    }
    return count;
}

bool take_one_of(TextView& text, TextView wanted) {
    if (text.empty() || !contains(wanted, text.substr(0, 1))) return false;
    text.remove_prefix(1);
    return true;
}

bool take_sign(TextView& text) {
    if (take_one_of(text, u"-")) return true;
    take_one_of(text, u"+");
    return false;
}

/// The power of ten behind an "e"; nothing when its digits are missing. Without an "e" it is 0.
std::optional<double> take_exponent(TextView& text) {
    if (!take_one_of(text, u"eE")) return 0;
    const bool negative = take_sign(text);
    double exponent = 0;
    if (take_digits(text, exponent) == 0) return {};
    return negative ? -exponent : exponent;
}

std::optional<double> number_of(TextView text) {
    const bool negative = take_sign(text);
    double value = 0;
    const int whole = take_digits(text, value);
    const int fraction = take_one_of(text, u".") ? take_digits(text, value) : 0;
    const auto exponent = take_exponent(text);
    if (whole + fraction == 0 || !exponent || !text.empty()) return {};
    const double shift = *exponent - fraction;
    value = shift < 0 ? value / std::pow(10, -shift) : value * std::pow(10, shift);
    return negative ? -value : value;
}

/// Replaces the target by the text whose number the source holds.
void replace(TextView source, Text& target, const StringTable& table) {
    attempt([&] {
        const auto id = text_identifier(source);
        if (!id) return;
        if (auto text = table.find(*id)) target = std::move(*text);
    });
}

void load_parts(Control& control, const StringTable& table) {
    for (Part& part : control.parts) {
        switch (control.kind) {
        case ControlKind::tab_strip:
            replace(part.tag, part.caption, table);
            replace(part.tool_tip, part.tool_tip, table);
            break;
        case ControlKind::toolbar:
            replace(part.tag, part.tool_tip, table);
            break;
        case ControlKind::list_view:
            replace(part.tag, part.text, table);
            break;
        default:
            break;
        }
    }
}

void load_control(Control& control, const StringTable& table) {
    switch (control.kind) {
    case ControlKind::menu:
        replace(control.caption, control.caption, table);
        return;
    case ControlKind::tab_strip:
    case ControlKind::toolbar:
    case ControlKind::list_view:
        load_parts(control, table);
        return;
    default:
        if (has_caption(control.kind)) replace(control.tag, control.caption, table);
        replace(control.tool_tip, control.tool_tip, table);
    }
}

} // namespace

std::optional<int> text_identifier(TextView text) {
    const Text trimmed = trim(text);
    const auto number = number_of(trimmed);
    // A half goes to the even number: that is the rounding the processor starts with.
    if (!number || !(std::abs(std::nearbyint(*number)) <= largest_identifier)) return {};
    return static_cast<int>(std::nearbyint(*number));
}

void load_captions(Form& form, const StringTable& table) noexcept {
    replace(form.properties.tag, form.properties.caption, table);
    for (Control& control : form.controls()) load_control(control, table);
}

} // namespace ornavel::forms
