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
    std::set<int> refused_turns;    ///< of the writes, counted from 1: they would go well another time

    std::optional<Text> find(TextView section, TextView key) const noexcept override {
        return stored.find(section, key);
    }
    bool save(TextView section, TextView key, TextView value) noexcept override {
        return takes(key) && stored.save(section, key, value);
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
