#include "programs/options_assistant/registry_files.h"

#include "settings/descriptions.h"
#include "settings/reg_settings.h"

namespace ornavel::programs {
namespace {

using namespace settings;

Text shown(const std::optional<Text>& value) { return value ? u"\"" + *value + u"\"" : Text(u"(not set)"); }

class Importing {
public:
    explicit Importing(const Draft& draft) : draft_(draft) {}

    void take(const RegKey& key) {
        const auto section = section_of(key.path);
        if (!section) return leave_out(key.path, u"it does not belong to Ornavel");
        if (key.removed) return leave_out(key.path, u"whole sections are not removed");
        for (const RegValue& value : key.values) take(*section, value);
    }
    Import result() {
        Import import{std::move(changes_), std::move(lines_)};
        import.lines.insert(import.lines.end(), left_out_.begin(), left_out_.end());
        return import;
    }
    void leave_out(TextView what, TextView why) {
        left_out_.push_back(u"Not imported: " + Text(what) + u" (" + Text(why) + u")");
    }

private:
    void take(const Text& section, const RegValue& value) {
        const Text name = section + u" / " + value.name;
        const Key* const key = find_key(section, value.name);
        if (!key) return leave_out(name, u"Ornavel knows no such setting");
        const bool expands = value.kind == RegValue::Kind::expand_text;
        if (value.kind == RegValue::Kind::other || (expands && key->kind != SettingKind::path))
            return leave_out(name, u"its value is no text");
        const bool removed = value.kind == RegValue::Kind::removed;
        change(*key, removed ? std::nullopt : std::optional(Store::Stored{value.value, expands}));
    }

    /// Of two values for one setting the last one counts.
    void change(const Key& key, const std::optional<Store::Stored>& value) {
        const auto now = draft_.find(key);
        if (now == value) return;
        const auto text_of = [](const auto& stored) {
            return stored ? std::optional(stored->text) : std::nullopt;
        };
        lines_.push_back(Text(key.name) + u": " + shown(text_of(now)) + u" becomes " + shown(text_of(value)));
        changes_.push_back({key, text_of(value), value && value->has_variables});
    }

    const Draft& draft_;
    std::vector<Change> changes_;
    std::vector<Text> lines_, left_out_;
};

bool is_for_others(const Description& description) {
    return description.owner != Owner::state && description.group != Group::signature_fields;
}

bool is_wanted(const Description& description, const Draft& draft, Exported which) {
    if (which == Exported::differing) return draft.differs_from_default(description.key);
    return which == Exported::all || is_for_others(description);
}

RegValue value_of(const Key& key, const Store::Stored& stored) {
    return {.name = Text(key.name),
            .kind = stored.has_variables ? RegValue::Kind::expand_text : RegValue::Kind::text,
            .value = stored.text};
}

bool holds(const RegKey& section, TextView name) {
    for (const RegValue& value : section.values)
        if (same_name(value.name, name)) return true;
    return false;
}

} // namespace

Import import_of(const RegFile& file, const Draft& draft) {
    Importing importing(draft);
    for (const RegKey& key : file.keys) importing.take(key);
    for (const RegComplaint& complaint : file.complaints)
        importing.leave_out(u"line " + to_text(static_cast<long long>(complaint.at.line)),
                            complaint.description);
    return importing.result();
}

std::vector<RegKey> exported(const Draft& draft, Exported which) {
    std::vector<RegKey> keys;
    for (const Description& description : descriptions()) {
        const Key& key = description.key;
        const auto stored = draft.find(key);
        if (!stored || !is_wanted(description, draft, which)) continue;
        const Text path = Text(registry_area) + u"\\" + Text(key.section);
        if (keys.empty() || keys.back().path != path) keys.push_back({.path = path});
        if (!holds(keys.back(), key.name)) keys.back().values.push_back(value_of(key, *stored));
    }
    return keys;
}

} // namespace ornavel::programs
