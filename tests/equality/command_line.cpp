#include "tests/equality/command_line.h"

#include "base/encoding.h"
#include "settings/reg_settings.h"

#include <algorithm>
#include <cstdio>

namespace ornavel::equality {
namespace {

using namespace rehearsal;

bool is_plain_act(const Act& act) {
    using enum Act::Kind;
    return act.kind == connect || act.kind == start || act.kind == update || act.kind == send ||
           act.kind == shutdown || act.kind == disconnect;
}

bool chooses(const UserEntry& entry) {
    return std::ranges::any_of(entry.steps, [](const Step& step) {
        return step.kind == Step::Kind::select || step.kind == Step::Kind::set ||
               step.control == u"cmdNext" || step.control == u"cmdSignNext";
    });
}

settings::RegValue::Kind kind_of(const SettingValue& value) {
    using enum settings::RegValue::Kind;
    return std::holds_alternative<ExpandText>(value) ? expand_text : text;
}

/// Only the machine itself knows what stands behind %NAME%.
bool has_variable(const SettingsTree& sections) {
    for (const auto& [section, values] : sections)
        for (const auto& [name, value] : values)
            if (kind_of(value) == settings::RegValue::Kind::expand_text && contains(stored_text(value), u"%"))
                return true;
    return false;
}

bool survives(const Text& text) { return from_utf8(to_utf8(text)) == text; }

std::string obstacle_in(const Scenario& scenario, const Item& item) {
    const auto sends = std::ranges::count(scenario.acts, Act::Kind::send, &Act::kind);
    if (sends != 1) return "it has no send, or several";
    if (!std::ranges::all_of(scenario.acts, is_plain_act))
        return "something else happens before or after the send";
    if (!scenario.fail.empty()) return "something fails";
    if (std::ranges::any_of(scenario.user, chooses)) return "the user chooses something in a form";
    if (has_variable(scenario.settings)) return "a path names an environment variable";
    if (!item.links.empty()) return "the message is linked to contacts";
    if (item.html_body.empty() && item.is_word_mail) return "the message is in a document of Word";
    if (!survives(item.html_body) || !survives(item.body))
        return "the message holds half a pair of surrogates";
    const TextView version = scenario.host.version;
    const bool known =
        version.starts_with(u"9.") || version.starts_with(u"10.") || version.starts_with(u"11.");
    return known ? "" : "the mail client is of another version";
}

std::string settings_file(const SettingsTree& sections) {
    std::vector<settings::RegKey> keys;
    for (const auto& [section, values] : sections) {
        keys.push_back({Text(settings::registry_area) + u"\\" + section});
        for (const auto& [name, value] : values)
            keys.back().values.push_back({name, kind_of(value), stored_text(value)});
    }
    return settings::write_reg_file(keys, windows_1252());
}

std::string with_mark(const Text& text) { return "\xEF\xBB\xBF" + to_utf8(text); }

std::string moment(const LocalTime& time) {
    char text[32];
    std::snprintf(text, sizeof text, "%04d-%02d-%02dT%02d:%02d:%02d", time.year, time.month, time.day,
                  time.hour, time.minute, time.second);
    return text;
}

const char* editor_name(const Item& item) {
    if (!item.is_word_mail && item.editor_type == 4) return "html"; // for the composer there is no difference
    constexpr const char* names[] = {"html", "plain", "html", "rich", "word"};
    return item.editor_type >= 0 && item.editor_type <= 4 ? names[item.editor_type] : "html";
}

void add_message(const Item& item, MemoryDisk& disk, std::vector<std::string>& words) {
    const bool html = !item.html_body.empty();
    const std::string file = html ? "X:\\message.htm" : "X:\\message.txt";
    disk.write(from_utf8(file), with_mark(html ? item.html_body : item.body));
    disk.write(u"X:\\body.txt", with_mark(item.body));
    words.insert(words.end(), {"--message", file, "--body", "X:\\body.txt", "--editor", editor_name(item),
                               "--subject", to_utf8(item.subject)});
    for (const RecipientEntry& recipient : item.recipients)
        words.insert(words.end(), {"--to", to_utf8(recipient.address)});
}

} // namespace

Expressed express(const Scenario& scenario, MemoryDisk& disk) {
    const auto sent = std::ranges::find(scenario.acts, Act::Kind::send, &Act::kind);
    if (sent == scenario.acts.end()) return {{}, "it has no send, or several"};
    const Item& item = scenario.items.at(static_cast<std::size_t>(sent->number));
    if (std::string why = obstacle_in(scenario, item); !why.empty()) return {{}, std::move(why)};

    for (const Text& folder : scenario.folders) disk.create_folder(folder);
    disk.create_folder(u"X:");
    for (const auto& [path, bytes] : scenario.files) {
        disk.create_folder(TextView(path).substr(0, path.find_last_of(u'\\')));
        disk.write(path, bytes);
    }
    disk.write(u"X:\\settings.reg", settings_file(scenario.settings));
    const std::string version = to_utf8(scenario.host.version);
    std::vector<std::string> words{"compose",
                                   "--settings",
                                   "X:\\settings.reg",
                                   "--host",
                                   version.substr(0, version.find('.')),
                                   "--clock",
                                   moment(scenario.clock),
                                   "-o",
                                   "X:\\out.html"};
    add_message(item, disk, words);
    return {std::move(words), {}};
}

} // namespace ornavel::equality
