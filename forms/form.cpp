#include "forms/form.h"

#include <algorithm>
#include <utility>

namespace ornavel::forms {
namespace {

// Title bar and borders of Windows 2000 at 96 dots to the inch, while no window has told its own.
constexpr Size usual_frame{90, 375}, usual_sizable_frame{120, 405};

void run(const Form::Handler& handler) {
    if (handler) handler();
}

} // namespace

Form::Form(Control own, std::vector<Control> controls)
    : properties(std::move(own)), controls_(std::move(controls)) {
    properties.kind = ControlKind::form;
}

Size Form::frame() const { return frame_.value_or(sizable ? usual_sizable_frame : usual_frame); }

Size Form::room_of(const Bounds& place) const {
    return {place.width - frame().width, place.height - frame().height};
}

Bounds Form::large_enough(Bounds place) const {
    place.width = std::max(place.width, least_size().width);
    place.height = std::max(place.height, least_size().height);
    return place;
}

void Form::take_place(const Bounds& place) {
    shown_room_.reset();
    properties.place = large_enough(place);
    run(on_resize);
    // Arranging its controls may have shown the form that it needs more room than before.
    const Bounds larger = large_enough(properties.place);
    if (larger == properties.place) return;
    properties.place = larger;
    run(on_resize);
}

void Form::make_room(Size room) {
    properties.place.width = room.width + frame().width;
    properties.place.height = room.height + frame().height;
}

void Form::take_frame(Size told) {
    if (told == frame()) return;
    const Size before = room_of(properties.place);
    frame_ = told;
    if (sizable || keeps_size) return take_place(properties.place);
    make_room(before);
}

void Form::take_room(Size room) {
    shown_room_ = room;
    run(on_resize);
}

Control* Form::find(TextView control) { return const_cast<Control*>(std::as_const(*this).find(control)); }

const Control* Form::find(TextView control) const {
    const auto found =
        std::ranges::find_if(controls_, [&](const Control& each) { return same_name(each.name, control); });
    return found == controls_.end() ? nullptr : &*found;
}

Control& Form::operator[](TextView control) {
    if (Control* found = find(control)) return *found;
    throw Failure(name() + u" has no control " + Text(control));
}

void Form::on(TextView control, Event event, Handler handler) {
    handlers_[{(*this)[control].name, event}] = std::move(handler);
}

void Form::load() {
    if (std::exchange(loaded_, true)) return;
    run(on_load);
}

void Form::unload() {
    if (!std::exchange(loaded_, false)) return;
    run(on_unload);
}

void Form::fire(TextView control, Event event) {
    const auto found = handlers_.find({(*this)[control].name, event});
    if (found != handlers_.end()) run(found->second);
}

} // namespace ornavel::forms
