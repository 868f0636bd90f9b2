#pragma once

#include "base/errors.h"
#include "rehearsal/failures.h"
#include "rehearsal/journal.h"
#include "settings/store.h"

namespace ornavel::rehearsal {

/// The settings as the add-in sees them: each use is noted, and fails where the scenario says so.
class RehearsedSettings final : public settings::Store {
public:
    RehearsedSettings(settings::MemoryStore& store, Failures& failures, Journal& journal)
        : store_(store), failures_(failures), journal_(journal) {}

    std::optional<Text> find(TextView section, TextView key) const noexcept override {
        std::optional<Text> value;
        attempt([&] {
            failures_.use(Failing::Kind::read_setting, key);
            value = failures_.given(store_.find(section, key));
            journal_.note(Deed::read_setting, named(section, key), value.value_or(Text()), value.has_value());
        });
        return value;
    }

    void save(TextView section, TextView key, TextView value) noexcept override {
        attempt([&] {
            journal_.note(Deed::save_setting, named(section, key), value);
            failures_.use(Failing::Kind::save_setting, key);
            store_.save(section, key, value);
        });
    }

private:
    static Text named(TextView section, TextView key) { return Text(section) + u" / " + Text(key); }

    settings::MemoryStore& store_;
    Failures& failures_;
    Journal& journal_;
};

} // namespace ornavel::rehearsal
