#include "programs/options_assistant/registry_import.h"

#include "programs/one_line.h"
#include "programs/options_assistant/draft.h"
#include "programs/options_assistant/values.h"
#include "settings/reg_settings.h"

#include <algorithm>

namespace ornavel::programs {
namespace {

using namespace settings;

Text shown(const std::optional<Store::Stored>& value) {
    return value ? u"\"" + in_one_line(value->text) + u"\"" : Text(u"(not set)");
}

std::optional<Store::Stored> value_of(const Change& change) {
    if (!change.value) return {};
    return Store::Stored{*change.value, change.has_variables};
}

Text left_out_line(TextView what, TextView why) {
    return u"Not imported: " + Text(what) + u" (" + Text(why) + u")";
}

const Description* find_setting(TextView section, TextView name) {
    const Key* const key = find_key(section, name);
    if (!key) return nullptr;
    const auto is_it = [&](const Description& each) { return is_same(each.key, *key); };
    return &*std::ranges::find_if(descriptions(), is_it);
}

/// A setting with its last value in the file, or what keeps it from being imported.
struct Wanted {
    const Description* setting;
    std::optional<Store::Stored> value;
    std::optional<Text> objection;
};

Wanted wanted(const Description& setting, const RegValue& value) {
    const bool expands = value.kind == RegValue::Kind::expand_text;
    if (value.kind == RegValue::Kind::removed) return {&setting, {}, {}};
    if (value.kind == RegValue::Kind::other || (expands && setting.key.kind != SettingKind::path))
        return {&setting, {}, u"its value is no text"};
    return {&setting, Store::Stored{value.value, expands}, objection(setting, value.value)};
}

/// A value that is no text is nowhere stored.
bool is_stored(const Wanted& wanted, const Store& store) {
    const bool is_text = wanted.value || !wanted.objection;
    return is_text && stored_in(store, wanted.setting->key) == wanted.value;
}

Text refusal(const Wanted& wanted) {
    const Key& key = wanted.setting->key;
    const Text name = Text(key.section) + u" / " + Text(key.name);
    if (!wanted.value) return left_out_line(name, *wanted.objection);
    return left_out_line(name + u" = " + shown(wanted.value), *wanted.objection);
}

/// Of what is left out: a whole machine's registry has a hundred thousand keys.
constexpr std::size_t most_lines = 100;

class Importing {
public:
    void take(const RegKey& key) {
        const auto section = section_of(key.path);
        if (!section) return leave_out(key.path, u"it does not belong to Ornavel");
        if (key.removed) return leave_out(key.path, u"whole sections are not removed");
        for (const RegValue& value : key.values) take(*section, value);
    }
    void leave_out(TextView what, TextView why) {
        ++others_;
        if (first_others_.size() < most_lines) first_others_.push_back(left_out_line(in_one_line(what), why));
    }
    Import result(const Store& store) const;

private:
    void take(const Text& section, const RegValue& value) {
        const Description* const setting = find_setting(section, value.name);
        if (!setting) return leave_out(section + u" / " + value.name, u"Ornavel knows no such setting");
        std::erase_if(wanted_, [&](const Wanted& each) { return each.setting == setting; });
        wanted_.push_back(wanted(*setting, value));
    }

    void add_others(std::vector<Text>& lines) const;

    std::vector<Wanted> wanted_;
    std::vector<Text> first_others_;
    std::size_t others_ = 0;
};

Import Importing::result(const Store& store) const {
    Import import;
    for (const Wanted& each : wanted_) {
        if (is_stored(each, store)) continue;
        if (each.objection)
            import.left_out.push_back(refusal(each));
        else
            import.changes.push_back(change_to(each.setting->key, each.value));
    }
    add_others(import.left_out);
    return import;
}

/// Behind the settings that are refused.
void Importing::add_others(std::vector<Text>& lines) const {
    const std::size_t all = lines.size() + others_;
    lines.insert(lines.end(), first_others_.begin(), first_others_.end());
    if (all <= most_lines) return;
    lines.resize(most_lines);
    lines.push_back(u"And " + to_text(static_cast<long long>(all - most_lines)) +
                    u" more that were not imported");
}

} // namespace

Import import_of(const RegFile& file, const Store& store) {
    Importing importing;
    for (const RegKey& key : file.keys) importing.take(key);
    for (const RegComplaint& complaint : file.complaints)
        importing.leave_out(u"line " + to_text(static_cast<long long>(complaint.at.line)),
                            complaint.description);
    return importing.result(store);
}

std::vector<Text> lines_of(const Import& import, const Store& store) {
    std::vector<Text> lines;
    for (const Change& change : import.changes) {
        const auto now = stored_in(store, change.key);
        if (now == value_of(change)) continue;
        lines.push_back(Text(change.key.name) + u": " + shown(now) + u" becomes " + shown(value_of(change)));
    }
    lines.insert(lines.end(), import.left_out.begin(), import.left_out.end());
    return lines;
}

} // namespace ornavel::programs
