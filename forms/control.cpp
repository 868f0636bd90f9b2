#include "forms/control.h"

#include <algorithm>

namespace ornavel::forms {

void Control::choose(TextView wanted) {
    const auto found = std::ranges::find(items, wanted);
    text = wanted;
    index = found == items.end() ? -1 : static_cast<int>(found - items.begin());
}

void Control::select(int wanted) {
    const bool exists = wanted >= 0 && static_cast<std::size_t>(wanted) < items.size();
    index = exists ? wanted : -1;
    if (kind == ControlKind::list_box) return;
    text = exists ? items[static_cast<std::size_t>(wanted)] : Text();
}

void Control::visit(TextView address) {
    page = address;
    ++visits;
}

bool has_caption(ControlKind kind) {
    switch (kind) {
    case ControlKind::form:
    case ControlKind::command_button:
    case ControlKind::check_box:
    case ControlKind::label:
    case ControlKind::frame:
    case ControlKind::menu:
        return true;
    default:
        return false;
    }
}

Text readable_caption(const Control& control) {
    if (control.kind == ControlKind::form) return control.caption;
    Text read;
    bool marked = false;
    for (const char16_t unit : control.caption) {
        marked = unit == u'&' && !marked;
        if (!marked) read += unit;
    }
    return read;
}

std::optional<char16_t> access_key_of(const Control& control) {
    if (!has_caption(control.kind)) return {};
    bool marked = false;
    for (const char16_t unit : lower_case(control.caption)) {
        if (marked && unit != u'&') return unit;
        marked = unit == u'&' && !marked;
    }
    return {};
}

Text with_access_key(TextView text, char16_t letter) {
    Text caption;
    bool marked = false;
    for (const char16_t unit : text) {
        if (unit == u'&' || (unit == letter && !marked)) caption += u'&';
        marked |= unit == letter;
        caption += unit;
    }
    return caption;
}

} // namespace ornavel::forms
