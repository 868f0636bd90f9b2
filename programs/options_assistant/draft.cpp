#include "programs/options_assistant/draft.h"

#include "settings/modes.h"

#include <algorithm>

namespace ornavel::programs {

using namespace settings;

bool is_same(const Key& one, const Key& other) {
    return same_name(one.section, other.section) && same_name(one.name, other.name);
}

std::optional<Store::Stored> stored_in(const Store& store, const Key& key) {
    auto stored = store.find_stored(key.section, key.name);
    if (stored && stored->has_variables && key.kind != SettingKind::path) stored.reset();
    return stored;
}

Change change_to(const Key& key, const std::optional<Store::Stored>& value) {
    if (!value) return {key, std::nullopt};
    return {key, value->text, value->has_variables};
}

std::optional<Store::Stored> Draft::find(const Key& key) const {
    for (const Change& change : changes_) {
        if (!is_same(change.key, key)) continue;
        if (!change.value) return {};
        return Store::Stored{*change.value, change.has_variables};
    }
    return stored_in(store_, key);
}

bool Draft::changes(const Key& key) const {
    return std::ranges::any_of(changes_, [&](const Change& change) { return is_same(change.key, key); });
}

Text Draft::value(const Key& key) const {
    const auto found = find(key);
    return found ? found->text : Text(value_where_absent(key));
}

bool Draft::differs_from_default(const Key& key) const {
    const auto found = find(key);
    return found && found->text != key.default_value;
}

void Draft::set(const Key& key, const std::optional<Store::Stored>& value) {
    forget(key);
    const auto before = stored_in(store_, key);
    const Text text_before = before ? before->text : Text(value_where_absent(key));
    if (value ? value->text == text_before : !before) return;
    changes_.push_back(change_to(key, value));
}

void Draft::forget(const Key& key) {
    std::vector<Change> others;
    for (const Change& change : changes_)
        if (!is_same(change.key, key)) others.push_back(change);
    changes_.swap(others);
}

} // namespace ornavel::programs
