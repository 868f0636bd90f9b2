#include "rehearsal/notes.h"

#include "base/encoding.h"
#include "base/nearest.h"
#include "settings/catalogue.h"

#include <algorithm>

namespace ornavel::rehearsal {
namespace {

std::string in_quotes(TextView text) { return "\"" + to_utf8(text) + "\""; }

std::string did_you_mean(const std::string& suggestion) { return "; did you mean " + suggestion + "?"; }

std::vector<Text> sections() {
    std::vector<Text> names;
    for (const auto& key : settings::catalogue())
        if (std::ranges::find(names, key.section) == names.end()) names.emplace_back(key.section);
    return names;
}

bool is_known_section(TextView section) {
    return std::ranges::any_of(settings::catalogue(),
                               [&](const auto& key) { return same_name(key.section, section); });
}

/// The catalogue's names in a section, or all of them for a section of the user's own.
std::vector<Text> names_for(TextView section) {
    const bool known = is_known_section(section);
    std::vector<Text> names;
    for (const auto& key : settings::catalogue())
        if (!known || same_name(key.section, section)) names.emplace_back(key.name);
    return names;
}

/// The words behind a name that the section does not have: another section that has it, or a name much like
/// it.
std::string meant(TextView section, TextView name) {
    for (const auto& key : settings::catalogue())
        if (same_name(key.name, name) && !same_name(key.section, section))
            return did_you_mean(in_quotes(key.name) + " in " + in_quotes(key.section));
    const auto near = nearest(name, names_for(section));
    return near ? did_you_mean(in_quotes(*near)) : "";
}

class Notes {
public:
    std::vector<std::string> lines;

    void look_at(const SettingsTree& settings, const std::string& path) {
        for (const auto& [section, keys] : settings) {
            const std::string place = path + "." + to_utf8(section);
            if (const auto near = nearest(section, sections()); near && !is_known_section(section)) {
                lines.push_back(place + ": no such section" + did_you_mean(in_quotes(*near)));
                continue;
            }
            const auto names = names_for(section);
            for (const auto& [key, value] : keys)
                if (std::ranges::none_of(names,
                                         [&key = key](const Text& name) { return same_name(name, key); }))
                    lines.push_back(place + "." + to_utf8(key) + ": no such setting" + meant(section, key));
        }
    }

    void look_at_unused(const std::vector<UserEntry>& entries, const Json& windows) {
        std::vector<Text> met_nobody;
        std::size_t used = 0;
        for (const Json& window : windows) {
            if (window.value("unexpected", false))
                met_nobody.push_back(from_utf8(window.front().get<std::string>()));
            else
                ++used;
        }
        for (std::size_t i = used; i < entries.size(); ++i) {
            const auto near = nearest(entries[i].at, met_nobody);
            lines.push_back(entries[i].path + ": " + in_quotes(entries[i].at) + " did not appear" +
                            (near ? did_you_mean(in_quotes(*near)) : ""));
        }
    }
};

/// Whether somewhere in what is expected a window is to come unexpected.
bool expects_the_unexpected(const Json& expected) {
    if (!expected.is_structured()) return false;
    if (expected.is_object() && expected.value("unexpected", Json()) == true) return true;
    return std::ranges::any_of(expected, expects_the_unexpected);
}

} // namespace

std::vector<std::string> notes_on(const Scenario& scenario, const Json& outcome) {
    Notes notes;
    notes.look_at(scenario.settings, "settings");
    for (const Act& act : scenario.acts) notes.look_at(act.settings, act.path + ".set");
    const bool deliberate = scenario.expect && expects_the_unexpected(*scenario.expect);
    if (!deliberate && outcome.at("error").is_null())
        notes.look_at_unused(scenario.user, outcome.at("windows"));
    return std::move(notes.lines);
}

} // namespace ornavel::rehearsal
