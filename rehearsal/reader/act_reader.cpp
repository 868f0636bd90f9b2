#include "rehearsal/reader/parts.h"

#include <algorithm>

namespace ornavel::rehearsal {
namespace {

using Kind = Act::Kind;

struct ActShape {
    const char* name;
    Kind kind;
    void (*read)(Act&, const JsonPlace&); ///< null for an act that its name says whole
};

/// Connecting without a mode is the start-up's.
void read_start_up_mode(Act& act, const JsonPlace&) { act.number = 1; }
void read_number(Act& act, const JsonPlace& at) { act.number = at.small_number(); }
void read_index(Act& act, const JsonPlace& at) { act.number = at.small_number(0); }
void read_text(Act& act, const JsonPlace& at) { act.text = at.text(); }

void read_tag(Act& act, const JsonPlace& at) {
    act.text = at.is_text() ? at.text() : to_text(static_cast<long long>(at.number()));
}

void read_tray(Act& act, const JsonPlace& at) {
    if (at.is_text()) return read_text(act, at);
    if (!at.is_object() || at.size() != 1) at.refuse("expected a caption or {\"entry\": …}");
    act.kind = Kind::tray_entry;
    at.fields({{"entry", [&](const JsonPlace& key) { act.text = key.text(); }}});
}

struct PageButton {
    const char* name;
    PageStep::Kind kind;
    bool closes;
};

constexpr PageButton page_buttons[] = {
    {"apply", PageStep::Kind::apply, false},
    {"ok", PageStep::Kind::ok, true},
    {"cancel", PageStep::Kind::cancel, true},
};

PageStep read_page_button(const JsonPlace& at, bool is_last) {
    for (const PageButton& button : page_buttons) {
        if (at.bytes() != button.name) continue;
        if (button.closes && !is_last) at.refuse("it closes the dialog, so nothing can follow");
        return {.kind = button.kind};
    }
    at.refuse("expected \"apply\", \"ok\", \"cancel\" or a step");
}

PageStep read_page_step(const JsonPlace& at) {
    PageStep step{.step = read_step(at)};
    if (step.step.control.empty()) at.refuse("a page has no frame of its own");
    return step;
}

void read_page(Act& act, const JsonPlace& at) {
    at.each_element([&](const JsonPlace& step) {
        const bool is_last = act.page.size() + 1 == at.size();
        act.page.push_back(step.is_text() ? read_page_button(step, is_last) : read_page_step(step));
    });
}

constexpr ActShape bare_acts[] = {
    {"connect", Kind::connect, read_start_up_mode},
    {"start", Kind::start, nullptr},
    {"update", Kind::update, nullptr},
    {"options", Kind::options, nullptr},
    {"shutdown", Kind::shutdown, nullptr},
};

constexpr ActShape valued_acts[] = {
    {"connect", Kind::connect, read_number},
    {"send", Kind::send, read_index},
    {"click", Kind::click, read_tag},
    {"dress", Kind::dress, read_index},
    {"new explorer", Kind::new_explorer,
     [](Act& act, const JsonPlace& at) { act.number = static_cast<int>(at.number(0, 1000)); }},
    {"close explorer", Kind::close_explorer, read_index},
    {"tray", Kind::tray, read_tray},
    {"tray message", Kind::tray_message, read_number},
    {"prompt", Kind::prompt, read_text},
    {"disconnect", Kind::disconnect, read_number},
    {"set", Kind::set, [](Act& act, const JsonPlace& at) { act.settings = read_settings(at); }},
    {"page", Kind::page, read_page},
    {"clock", Kind::clock, [](Act& act, const JsonPlace& at) { act.time = at.time(); }},
    {"run", Kind::run, read_text},
};

template <std::size_t count>
const ActShape& find_shape(const ActShape (&known)[count], const std::string& name, const JsonPlace& place) {
    const auto shape = std::find_if(std::begin(known), std::end(known),
                                    [&](const ActShape& entry) { return entry.name == name; });
    if (shape == std::end(known)) place.refuse("unknown act \"" + name + "\"");
    return *shape;
}

struct FailShape {
    const char* name;
    Failing::Kind kind;
};

constexpr FailShape fail_shapes[] = {
    {"member", Failing::Kind::member},
    {"read file", Failing::Kind::read_file},
    {"write file", Failing::Kind::write_file},
    {"delete file", Failing::Kind::delete_file},
    {"read setting", Failing::Kind::read_setting},
    {"save setting", Failing::Kind::save_setting},
    {"launch", Failing::Kind::launch},
};

bool is_member_name(TextView text) {
    const auto dot = text.find(u'.');
    return dot != TextView::npos && dot > 0 && dot + 1 < text.size() &&
           text.find(u'.', dot + 1) == TextView::npos;
}

/// Follows the explorer windows through the acts: which numbers exist, and which are open.
class OpenExplorers {
public:
    explicit OpenExplorers(int count) : open_(static_cast<std::size_t>(count), true) {}
    void add(int count) { open_.resize(open_.size() + static_cast<std::size_t>(count), true); }
    bool close(int number) {
        const auto index = static_cast<std::size_t>(number);
        if (index >= open_.size() || !open_[index]) return false;
        open_[index] = false;
        return true;
    }

private:
    std::vector<bool> open_;
};

} // namespace

Failing read_failing(const JsonPlace& place) {
    Failing failing;
    int subjects = 0;
    place.must_be_object();
    for (const auto& [name, value] : place.json().items()) {
        const JsonPlace at = place.member(name);
        const auto shape = std::ranges::find(fail_shapes, name, &FailShape::name);
        if (shape != std::end(fail_shapes)) {
            failing.kind = shape->kind;
            failing.subject = at.text();
            if (++subjects > 1) at.refuse("only one thing can fail in an entry");
            if (failing.kind == Failing::Kind::member && !is_member_name(failing.subject))
                at.refuse("expected Object.Member");
        } else if (name == "use") {
            failing.use = at.small_number(1);
        } else if (name == "says") {
            failing.says = at.text();
        } else {
            at.refuse("unknown member");
        }
    }
    if (subjects == 0) place.refuse("member: missing");
    return failing;
}

Act read_act(const JsonPlace& place) {
    Act act;
    act.given = place.json();
    act.path = place.path();
    if (place.is_text()) {
        const auto& shape = find_shape(bare_acts, place.bytes(), place);
        act.kind = shape.kind;
        if (shape.read) shape.read(act, place);
        return act;
    }
    const bool runs = place.is_object() && place.json().contains("run");
    if (runs && place.json().contains("arguments")) act.arguments = place.member("arguments").text();
    const std::size_t members = runs && place.json().contains("arguments") ? 2 : 1;
    if (!place.is_object() || place.size() != members) place.refuse("expected an act");
    const std::string name = runs ? "run" : place.json().items().begin().key();
    const auto& shape = find_shape(valued_acts, name, place);
    act.kind = shape.kind;
    shape.read(act, place.member(name));
    return act;
}

void check_acts(const Scenario& scenario, const std::string& source) {
    OpenExplorers explorers(scenario.host.explorers);
    for (const Act& act : scenario.acts) {
        const JsonPlace place(act.given, source, act.path);
        const bool of_an_item = act.kind == Kind::send || act.kind == Kind::dress;
        if (of_an_item && static_cast<std::size_t>(act.number) >= scenario.items.size())
            place.refuse("no such item");
        if (act.kind == Kind::new_explorer) explorers.add(act.number);
        if (act.kind == Kind::close_explorer && !explorers.close(act.number))
            place.refuse("no such explorer");
    }
}

/// Under Wine drive C is the rehearsal's own; any other belongs to this machine.
void check_addin_folder(const JsonPlace& scenario) {
    if (!scenario.json().contains("computer") || !scenario.json()["computer"].contains("addin folder"))
        return;
    const JsonPlace folder = scenario.member("computer").member("addin folder");
    if (!same_name(folder.text().substr(0, 3), u"C:\\"))
        folder.refuse("another drive than C works only with --binding native");
}

void check_native_only(const JsonPlace& scenario) {
    const auto refuse = [](const JsonPlace& place) {
        place.refuse("native only: works only with --binding native");
    };
    const Json& json = scenario.json();
    if (json.contains("clock")) refuse(scenario.member("clock"));
    if (json.contains("computer"))
        for (const auto& [name, value] : json["computer"].items())
            if (name != "addin folder") refuse(scenario.member("computer").member(name));
    check_addin_folder(scenario);
    if (json.contains("fail"))
        scenario.member("fail").each_element([&](const JsonPlace& entry) {
            if (!entry.json().contains("member")) refuse(entry);
        });
    scenario.member("do").each_element([&](const JsonPlace& act) {
        if (act.is_object() && (act.json().contains("clock") || act.json().contains("prompt"))) refuse(act);
    });
}

} // namespace ornavel::rehearsal
