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
    text = exists ? items[static_cast<std::size_t>(wanted)] : Text();
}

void Control::clear_items() {
    items.clear();
    select(-1);
}

void Control::visit(TextView address) {
    page = address;
    ++visits;
}

bool has_caption(Kind kind) {
    switch (kind) {
    case Kind::form:
    case Kind::command_button:
    case Kind::check_box:
    case Kind::label:
    case Kind::frame:
    case Kind::menu:
        return true;
    default:
        return false;
    }
}

} // namespace ornavel::forms
