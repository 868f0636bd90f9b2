#include "forms/flow.h"

#include "forms/measures.h"

#include <algorithm>

namespace ornavel::forms {
namespace {

constexpr int row_height = button_size.height;

int width_of(Form& form, const Group& group) {
    const int label = group.label.empty() ? 0 : form[group.label].place.width + label_gap;
    return label + form[group.control].place.width;
}

/// In the middle of the row.
void stand(Control& control, int left, int top) {
    control.place.left = left;
    control.place.top = top + (row_height - control.place.height) / 2;
}

void stand(Form& form, const Group& group, int left, int top) {
    if (!group.label.empty()) {
        stand(form[group.label], left, top);
        left += form[group.label].place.width + label_gap;
    }
    stand(form[group.control], left, top);
}

} // namespace

int flow(Form& form, std::span<const Group> groups) {
    const int end = form.room().width - window_margin;
    int left = window_margin, top = window_margin;
    for (const Group& group : groups) {
        if (!form[group.control].visible) continue;
        const int width = width_of(form, group);
        const bool first = left == window_margin;
        if (!first && (group.begins_row || left + width > end)) {
            left = window_margin;
            top += row_height + control_gap;
        }
        stand(form, group, left, top);
        left += width + control_gap;
    }
    return top + row_height;
}

int widest(Form& form, std::span<const Group> groups) {
    int width = 0;
    for (const Group& group : groups)
        if (form[group.control].visible) width = std::max(width, width_of(form, group));
    return width + 2 * window_margin;
}

} // namespace ornavel::forms
