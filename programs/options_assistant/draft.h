#pragma once

#include "settings/changes.h"

namespace ornavel::programs {

/// The settings as they will be once they are saved: what the user has changed lies over what is stored.
class Draft {
public:
    explicit Draft(const settings::Store& store) : store_(store) {}

    /// Nothing where the setting is absent, or will be.
    std::optional<settings::Store::Stored> find(const settings::Key& key) const;
    /// What it reads as: its default where it is absent. Variables stand as they are stored.
    Text value(const settings::Key& key) const;
    bool differs_from_default(const settings::Key& key) const;

    /// Nothing makes the setting absent. What is stored already is no change.
    void set(const settings::Key& key, std::optional<settings::Store::Stored> value);
    /// What lies over the store.
    const std::vector<settings::Change>& changes() const { return changes_; }
    bool changes(const settings::Key& key) const;
    void forget() { changes_.clear(); }

private:
    const settings::Store& store_;
    std::vector<settings::Change> changes_;
};

} // namespace ornavel::programs
