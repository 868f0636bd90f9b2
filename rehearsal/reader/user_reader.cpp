#include "rehearsal/reader/parts.h"

#include <algorithm>
#include <regex>

namespace ornavel::rehearsal {
namespace {

struct StepShape {
    const char* name;
    Step::Kind kind;
    std::size_t size;
    void (*read)(Step&, const JsonPlace&);
};

void read_control(Step& step, const JsonPlace& at) { step.control = at.element(1).text(); }

void read_pair(Step& step, const JsonPlace& at) {
    step.first = at.element(1).small_number();
    step.second = at.element(2).small_number();
}

constexpr StepShape step_shapes[] = {
    {"click", Step::Kind::click, 2, read_control},
    {"double click", Step::Kind::double_click, 2, read_control},
    {"set", Step::Kind::set, 3,
     [](Step& step, const JsonPlace& at) {
         read_control(step, at);
         step.text = at.element(2).text();
     }},
    {"select", Step::Kind::select, 3,
     [](Step& step, const JsonPlace& at) {
         read_control(step, at);
         step.first = at.element(2).small_number(0);
     }},
    {"tick", Step::Kind::tick, 3,
     [](Step& step, const JsonPlace& at) {
         read_control(step, at);
         step.ticked = at.element(2).flag();
     }},
    {"resize", Step::Kind::resize, 3, read_pair},
    {"move", Step::Kind::move, 3, read_pair},
    {"close", Step::Kind::close, 1, [](Step&, const JsonPlace&) {}},
};

UserEntry read_entry(const JsonPlace& place) {
    UserEntry entry;
    entry.path = place.path();
    place.fields({
        {"at", [&](const JsonPlace& at) { entry.at = at.text(); }},
        {"answer",
         [&](const JsonPlace& at) {
             entry.has_answer = true;
             if (!at.json().is_null()) entry.answer = at.text();
         }},
        {"do",
         [&](const JsonPlace& at) {
             at.each_element([&](const JsonPlace& step) { entry.steps.push_back(read_step(step)); });
         }},
    });
    if (!place.json().contains("at")) place.refuse("at: missing");
    return entry;
}

} // namespace

Step read_step(const JsonPlace& place) {
    if (!place.is_array() || place.size() == 0) place.refuse("expected a step such as [\"close\"]");
    const auto name = place.element(0).bytes();
    const auto shape = std::find_if(std::begin(step_shapes), std::end(step_shapes),
                                    [&](const StepShape& entry) { return entry.name == name; });
    if (shape == std::end(step_shapes)) place.element(0).refuse("unknown step");
    if (place.size() != shape->size)
        place.refuse("\"" + name + "\" takes " + std::to_string(shape->size - 1) + " values");
    Step step;
    step.kind = shape->kind;
    shape->read(step, place);
    return step;
}

std::vector<UserEntry> read_user(const JsonPlace& place) {
    std::vector<UserEntry> entries;
    place.each_element([&](const JsonPlace& at) { entries.push_back(read_entry(at)); });
    return entries;
}

void check_expectation(const JsonPlace& place) {
    if (place.is_array()) place.each_element(check_expectation);
    if (!place.is_object()) return;
    for (const auto& [name, value] : place.json().items()) check_expectation(place.member(name));
    if (place.size() != 1 || !place.json().contains("matches") || !place.member("matches").is_text()) return;
    try {
        std::regex(place.member("matches").bytes());
    } catch (const std::regex_error&) {
        place.member("matches").refuse("not a regular expression");
    }
}

} // namespace ornavel::rehearsal
