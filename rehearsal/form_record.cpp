#include "rehearsal/form_record.h"

#include "base/encoding.h"

namespace ornavel::rehearsal {
namespace {

using forms::Control;
using forms::ControlKind;

constexpr const char* kind_names[] = {"Form",       "CommandButton", "CheckBox", "ComboBox", "ListBox",
                                      "TextBox",    "Label",         "Frame",    "Image",    "Menu",
                                      "WebBrowser", "ProgressBar",   "TabStrip", "Toolbar",  "ListView"};

Json items_of(const Control& control) {
    Json json = Json::array();
    for (const auto& item : control.items) json.push_back(to_json(item));
    return json;
}

Json control_record(const Control& control) {
    Json json{{"kind", kind_name(control.kind)}};
    if (has_caption(control.kind)) json["caption"] = to_json(readable_caption(control));
    json["tool tip"] = to_json(control.tool_tip);
    json["visible"] = control.visible;
    json["enabled"] = control.enabled;
    if (control.kind == ControlKind::check_box) json["ticked"] = control.ticked;
    if (control.kind == ControlKind::text_box || control.kind == ControlKind::combo_box)
        json["text"] = to_json(control.text);
    if (control.kind == ControlKind::combo_box || control.kind == ControlKind::list_box) {
        json["items"] = items_of(control);
        json["index"] = control.index;
    }
    if (control.kind == ControlKind::progress_bar) json["value"] = control.value;
    if (control.kind == ControlKind::web_browser) json["page"] = to_json(control.page);
    return json;
}

Json own_properties(const forms::Form& form) {
    const auto& place = form.properties.place;
    return {{"caption", to_json(form.properties.caption)},
            {"left", place.left},
            {"top", place.top},
            {"width", place.width},
            {"height", place.height},
            {"topmost", form.topmost}};
}

/// The form itself counts among its controls, so that what changes of it has a place.
Json all_controls(const forms::Form& form) {
    Json json = Json::object();
    Json& own = json[to_utf8(form.name())] = Json{{"kind", "Form"}};
    own.update(own_properties(form));
    own["visible"] = true;
    own["enabled"] = true;
    for (const auto& control : form.controls()) json[to_utf8(control.name)] = control_record(control);
    return json;
}

} // namespace

const char* kind_name(ControlKind kind) { return kind_names[static_cast<std::size_t>(kind)]; }

Json form_record(const forms::Form& form) {
    Json record{{"form", to_json(form.name())}};
    record.update(own_properties(form));
    record["controls"] = all_controls(form);
    record["at close"] = Json::object();
    return record;
}

Json changed_controls(const Json& record, const forms::Form& form) {
    Json changed = Json::object();
    const Json now = all_controls(form);
    for (const auto& [name, control] : now.items())
        for (const auto& [member, value] : control.items())
            if (record["controls"][name][member] != value) changed[name][member] = value;
    return changed;
}

void refuse_answer(const UserEntry& entry) {
    if (entry.has_answer) throw forms::UnusableStep(u"a form has no answer");
}

void take_step(const Step& step, forms::FormUser user) {
    switch (step.kind) {
    case Step::Kind::click:
        return user.click(step.control);
    case Step::Kind::double_click:
        return user.double_click(step.control);
    case Step::Kind::set:
        return user.set_text(step.control, step.text);
    case Step::Kind::select:
        return user.select(step.control, step.first);
    case Step::Kind::tick:
        return user.tick(step.control, step.ticked);
    case Step::Kind::resize:
        return user.resize(step.first, step.second);
    case Step::Kind::move:
        return user.move(step.first, step.second);
    case Step::Kind::close:
        return user.close();
    }
}

} // namespace ornavel::rehearsal
