#pragma once

#include "settings/changes.h"

namespace ornavel::programs {

/// Two spellings of one name are one setting.
bool is_same(const settings::Key& one, const settings::Key& other);

/// What is stored, as the add-in reads it: a text with variables counts in a path and is absent elsewhere.
/// Variables stand as they are stored.
std::optional<settings::Store::Stored> stored_in(const settings::Store& store, const settings::Key& key);

/// The change to this value; without one the setting becomes absent.
settings::Change change_to(const settings::Key& key, const std::optional<settings::Store::Stored>& value);

/// The settings as they will be once they are saved: what the user has changed lies over what is stored.
class Draft {
public:
    explicit Draft(const settings::Store& store) : store_(store) {}

    /// Nothing where the setting is absent, or will be.
    std::optional<settings::Store::Stored> find(const settings::Key& key) const;
    /// What it reads as, or counts as where it is absent. Variables stand as they are stored.
    Text value(const settings::Key& key) const;
    bool differs_from_default(const settings::Key& key) const;

    /// Nothing makes the setting absent. The text that is stored already is no change, nor is what one that
    /// is absent counts as.
    void set(const settings::Key& key, const std::optional<settings::Store::Stored>& value);
    /// What lies over the store.
    const std::vector<settings::Change>& changes() const { return changes_; }
    bool changes(const settings::Key& key) const;
    void forget(const settings::Key& key);
    void forget() { changes_.clear(); }

private:
    const settings::Store& store_;
    std::vector<settings::Change> changes_;
};

} // namespace ornavel::programs
