#pragma once

#include "settings/store.h"

#include <set>

namespace ornavel {

/// Settings in memory, of which one can't be written, or none any more.
class StubbornStore final : public settings::Store {
public:
    settings::MemoryStore stored;
    Text refused;                   ///< the name of that one; empty for none
    std::optional<int> writes_left; ///< nothing: there is no end of them
    std::set<Text> with_variables;  ///< the names of the texts that hold some
    std::set<int> refused_turns;    ///< of the writes, counted from 1: they would go well another time

    std::optional<Text> find(TextView section, TextView key) const noexcept override {
        return with_variables.contains(Text(key)) && !settings::is_path(section, key)
                   ? std::nullopt
                   : stored.find(section, key);
    }
    std::optional<Stored> find_stored(TextView section, TextView key) const noexcept override {
        const auto value = stored.find(section, key);
        return value ? std::optional(Stored{*value, with_variables.contains(Text(key))}) : std::nullopt;
    }
    bool save(TextView section, TextView key, TextView value) noexcept override {
        const bool is_saved = takes(key) && stored.save(section, key, value);
        if (is_saved) with_variables.erase(Text(key));
        return is_saved;
    }
    bool save_with_variables(TextView section, TextView key, TextView value) noexcept override {
        return save(section, key, value) && with_variables.emplace(key).second;
    }
    bool remove(TextView section, TextView key) noexcept override {
        return takes(key) && stored.remove(section, key);
    }

private:
    bool takes(TextView key) noexcept {
        return !refused_turns.contains(++turn_) && key != refused && (!writes_left || (*writes_left)-- > 0);
    }

    int turn_ = 0;
};

} // namespace ornavel
