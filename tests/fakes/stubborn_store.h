#pragma once

#include "settings/store.h"

namespace ornavel {

/// Settings in memory, of which one can't be written.
class StubbornStore final : public settings::Store {
public:
    settings::MemoryStore stored;
    Text refused; ///< the name of that one; empty for none

    std::optional<Text> find(TextView section, TextView key) const noexcept override {
        return stored.find(section, key);
    }
    bool save(TextView section, TextView key, TextView value) noexcept override {
        return key != refused && stored.save(section, key, value);
    }
    bool remove(TextView section, TextView key) noexcept override {
        return key != refused && stored.remove(section, key);
    }
};

} // namespace ornavel
