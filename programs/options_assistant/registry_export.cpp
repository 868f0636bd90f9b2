#include "programs/options_assistant/registry_export.h"

#include "programs/options_assistant/draft.h"
#include "settings/descriptions.h"
#include "settings/reg_settings.h"

#include <algorithm>

namespace ornavel::programs {
namespace {

using namespace settings;

/// Beside the user's own signature fields. The profiles themselves are in no file.
constexpr const Key* of_one_person[] = {&user::SignatureList, &user::vCard, &user::vCardPath,
                                        &user::vCardSelected, &user::vCardPathSelected};

bool is_about_one_person(const Description& description) {
    const bool is_field = description.group == Group::signature_fields && description.owner == Owner::user;
    // The colour is the letterhead's.
    if (is_field) return !is_same(description.key, admin::SigBGColor);
    return std::ranges::any_of(of_one_person, [&](const Key* key) { return is_same(*key, description.key); });
}

bool is_wanted(const Description& description, TextView value, Exported which) {
    if (which == Exported::differing) return value != description.key.default_value;
    if (which == Exported::all) return true;
    return description.owner != Owner::state && !is_about_one_person(description);
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

std::vector<RegKey> exported(const Store& store, Exported which) {
    std::vector<RegKey> keys;
    for (const Description& description : descriptions()) {
        const Key& key = description.key;
        const auto stored = stored_in(store, key);
        if (!stored || !is_wanted(description, stored->text, which)) continue;
        const Text path = Text(registry_area) + u"\\" + Text(key.section);
        if (keys.empty() || keys.back().path != path) keys.push_back({.path = path});
        if (!holds(keys.back(), key.name)) keys.back().values.push_back(value_of(key, *stored));
    }
    return keys;
}

} // namespace ornavel::programs
