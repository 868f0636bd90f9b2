#include "programs/options_assistant/draft.h"

#include <algorithm>

namespace ornavel::programs {

using namespace settings;

namespace {

/// Two spellings of one name are one setting.
bool is_same(const Key& one, const Key& other) {
    return same_name(one.section, other.section) && same_name(one.name, other.name);
}

} // namespace

std::optional<Store::Stored> Draft::find(const Key& key) const {
    for (const Change& change : changes_) {
        if (!is_same(change.key, key)) continue;
        if (!change.value) return {};
        return Store::Stored{*change.value, change.has_variables};
    }
    return store_.find_stored(key.section, key.name);
}

bool Draft::changes(const Key& key) const {
    return std::ranges::any_of(changes_, [&](const Change& change) { return is_same(change.key, key); });
}

Text Draft::value(const Key& key) const {
    const auto found = find(key);
    return found ? found->text : Text(key.default_value);
}

bool Draft::differs_from_default(const Key& key) const { return value(key) != key.default_value; }

void Draft::set(const Key& key, std::optional<Store::Stored> value) {
    std::vector<Change> others;
    for (const Change& change : changes_)
        if (!is_same(change.key, key)) others.push_back(change);
    changes_.swap(others);
    if (store_.find_stored(key.section, key.name) == value) return;
    if (value)
        changes_.push_back({key, value->text, value->has_variables});
    else
        changes_.push_back({key, std::nullopt});
}

} // namespace ornavel::programs
