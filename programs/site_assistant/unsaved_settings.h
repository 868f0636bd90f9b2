#pragma once

#include "settings/changes.h"

namespace ornavel::programs {

/// The settings as they will be once the changes are written. What is saved here stays here.
class UnsavedSettings final : public settings::Store {
public:
    UnsavedSettings(const settings::Store& store, const std::vector<settings::Change>& changes)
        : store_(store) {
        for (const settings::Change& change : changes) {
            const settings::Key& key = change.key;
            unsaved_.save(key.section, key.name, change.value.value_or(Text(key.default_value)));
        }
    }

    std::optional<Text> find(TextView section, TextView key) const noexcept override {
        // A copy would take memory, which nothing here may fail for.
        if (auto value = unsaved_.find(section, key)) return value;
        return store_.find(section, key);
    }
    bool save(TextView section, TextView key, TextView value) noexcept override {
        return unsaved_.save(section, key, value);
    }
    bool remove(TextView, TextView) noexcept override { return false; }

private:
    const settings::Store& store_;
    settings::MemoryStore unsaved_;
};

} // namespace ornavel::programs
