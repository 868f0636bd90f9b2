#include "forms/form.h"

#include <algorithm>
#include <utility>

namespace ornavel::forms {
namespace {

void run(const Form::Handler& handler) {
    if (handler) handler();
}

} // namespace

Form::Form(Control own, std::vector<Control> controls)
    : properties(std::move(own)), controls_(std::move(controls)) {
    properties.kind = Kind::form;
}

Control* Form::find(TextView control) {
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
