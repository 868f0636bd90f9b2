#pragma once

#include "base/errors.h"
#include "rehearsal/failures.h"
#include "rehearsal/journal.h"
#include "rehearsal/machine.h"
#include "rehearsal/turn.h"
#include "settings/store.h"

namespace ornavel::rehearsal {

/// Settings of either kind of text, as the registry holds them.
class MemorySettings {
public:
    /// environment: names and what they stand for, between per cent signs.
    explicit MemorySettings(Named<Text> environment) : environment_(std::move(environment)) {}

    /// As the real store reads them: an expandable text counts only where the setting is a path.
    std::optional<Text> find(TextView section, TextView key) const;
    void save(TextView section, TextView key, SettingValue value);
    void remove(TextView section, TextView key);

    std::optional<SettingValue> find_stored(TextView section, TextView key) const;

    const ByName<ByName<SettingValue>>& sections() const { return sections_; }

private:
    Text expanded(Text text) const;

    Named<Text> environment_;
    ByName<ByName<SettingValue>> sections_;
};

/// The settings as the add-in sees them: each use is noted, and fails where the scenario says so.
class RehearsedSettings final : public settings::Store {
public:
    RehearsedSettings(MemorySettings& store, Failures& failures, Journal& journal)
        : store_(store), failures_(failures), journal_(journal) {}

    std::optional<Text> find(TextView section, TextView key) const noexcept override {
        const MachinesTurn turn;
        std::optional<Text> value;
        attempt([&] {
            failures_.use(Failing::Kind::read_setting, key);
            value = failures_.given(store_.find(section, key));
            journal_.note(Deed::read_setting, named(section, key), value.value_or(Text()), value.has_value());
        });
        return value;
    }

    bool save(TextView section, TextView key, TextView value) noexcept override {
        const MachinesTurn turn;
        return attempt([&] {
            journal_.note(Deed::save_setting, named(section, key), value);
            failures_.use(Failing::Kind::save_setting, key);
            store_.save(section, key, Text(value));
        });
    }

    std::optional<Stored> find_stored(TextView section, TextView key) const noexcept override {
        const MachinesTurn turn;
        std::optional<Stored> value;
        attempt([&] {
            failures_.use(Failing::Kind::read_setting, key);
            if (const auto found = store_.find_stored(section, key))
                value = Stored{stored_text(*found), std::holds_alternative<ExpandText>(*found)};
            journal_.note(Deed::read_setting, named(section, key), value ? value->text : Text(),
                          value.has_value());
        });
        return value;
    }

    bool save_with_variables(TextView section, TextView key, TextView value) noexcept override {
        const MachinesTurn turn;
        return attempt([&] {
            journal_.note(Deed::save_setting, named(section, key), value);
            failures_.use(Failing::Kind::save_setting, key);
            store_.save(section, key, ExpandText{Text(value)});
        });
    }

    /// Counts as saving it.
    bool remove(TextView section, TextView key) noexcept override {
        const MachinesTurn turn;
        return attempt([&] {
            journal_.note(Deed::save_setting, named(section, key), {}, false);
            failures_.use(Failing::Kind::save_setting, key);
            store_.remove(section, key);
        });
    }

private:
    static Text named(TextView section, TextView key) { return Text(section) + u" / " + Text(key); }

    MemorySettings& store_;
    Failures& failures_;
    Journal& journal_;
};

} // namespace ornavel::rehearsal
