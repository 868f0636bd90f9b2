#include "forms/form_user.h"

#include <algorithm>

namespace ornavel::forms {
namespace {

bool is_list(const Control& control) {
    return control.kind == ControlKind::combo_box || control.kind == ControlKind::list_box;
}

} // namespace

void FormUser::require_open() const {
    if (!form_.is_loaded()) throw UnusableStep(form_.name() + u" is closed");
}

Control& FormUser::reach(TextView name) {
    require_open();
    Control* control = form_.find(name);
    if (!control) throw UnusableStep(form_.name() + u" has no control " + Text(name));
    if (!control->visible) throw UnusableStep(control->name + u" is hidden");
    if (!control->enabled) throw UnusableStep(control->name + u" is disabled");
    return *control;
}

Control& FormUser::reach(TextView name, ControlKind kind) {
    Control& control = reach(name);
    if (control.kind != kind) throw UnusableStep(control.name + u" is a control of another kind");
    return control;
}

void FormUser::click(TextView name) {
    Control& control = reach(name);
    if (control.kind == ControlKind::check_box) control.ticked = !control.ticked;
    form_.fire(name, Event::click);
}

void FormUser::double_click(TextView name) {
    reach(name);
    form_.fire(name, Event::double_click);
}

void FormUser::drop_down(TextView name) {
    reach(name, ControlKind::combo_box);
    form_.fire(name, Event::drop_down);
}

void FormUser::set_text(TextView name, TextView text) {
    Control& control = reach(name);
    if (is_list(control)) return choose(control, text);
    if (reach(name, ControlKind::text_box).locked) throw UnusableStep(control.name + u" can't be changed");
    control.text = text;
    form_.fire(name, Event::change);
}

void FormUser::choose(Control& control, TextView text) {
    // Lists that are filled only when the user opens them must be full before the entry is looked for.
    if (control.kind == ControlKind::combo_box) drop_down(control.name);
    const auto entry = std::ranges::find(control.items, text);
    const bool takes_words = control.kind == ControlKind::combo_box && !control.fixed_entries;
    if (entry == control.items.end() && !takes_words)
        throw UnusableStep(control.name + u" has no entry " + Text(text));
    if (control.kind == ControlKind::combo_box)
        control.choose(text);
    else
        control.select(static_cast<int>(entry - control.items.begin()));
    form_.fire(control.name, control.index < 0 ? Event::change : Event::click);
}

void FormUser::select(TextView name, int index) {
    Control& control = reach(name);
    if (!is_list(control)) throw UnusableStep(control.name + u" is a control of another kind");
    if (control.kind == ControlKind::combo_box) drop_down(name);
    if (index < 0 || static_cast<std::size_t>(index) >= control.items.size())
        throw UnusableStep(control.name + u" has no entry " + to_text(index));
    control.select(index);
    form_.fire(name, Event::click);
}

void FormUser::tick(TextView name, bool ticked) {
    if (reach(name, ControlKind::check_box).ticked == ticked)
        throw UnusableStep(Text(name) + u" is " + (ticked ? u"ticked" : u"not ticked") + u" already");
    click(name);
}

void FormUser::resize(int width, int height) {
    require_open();
    const Bounds& place = form_.properties.place;
    form_.take_place({place.left, place.top, width, height});
}

void FormUser::move(int left, int top) {
    require_open();
    form_.properties.place.left = left;
    form_.properties.place.top = top;
}

void FormUser::close() {
    require_open();
    if (!form_.may_close || form_.may_close()) form_.unload();
}

} // namespace ornavel::forms
