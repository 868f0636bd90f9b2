#pragma once

#include "settings/catalogue.h"

#include <map>
#include <optional>

namespace ornavel::settings {

/// The per-user store of named strings. Section and key names compare without case. Nothing throws: what
/// can't be read is absent, what can't be written changes nothing and answers false.
class Store {
public:
    /// A text as it is stored. Variables are names between per cent signs, such as %APPDATA%.
    struct Stored {
        Text text;
        bool has_variables = false;
        bool operator==(const Stored&) const = default;
    };

    virtual ~Store() = default;
    /// The stored value, which may be empty; nothing when it is absent.
    virtual std::optional<Text> find(TextView section, TextView key) const noexcept = 0;
    virtual bool save(TextView section, TextView key, TextView value) noexcept = 0;
    /// The value without anything in place of its variables; a store that knows none has texts only.
    virtual std::optional<Stored> find_stored(TextView section, TextView key) const noexcept {
        auto value = find(section, key);
        return value ? std::optional(Stored{std::move(*value)}) : std::nullopt;
    }
    /// Saves a path whose variables stand for something each time it is read.
    virtual bool save_with_variables(TextView section, TextView key, TextView value) noexcept {
        return save(section, key, value);
    }
    /// Afterwards the value is absent; one that is absent already is removed.
    virtual bool remove(TextView section, TextView key) noexcept = 0;
};

/// The stored value, or the key's default.
Text read(const Store& store, const TextKey& key);
Text read(const Store& store, const PathKey& key);

/// The stored value, or a default other than the catalogue's.
Text read(const Store& store, const TextKey& key, TextView fallback);
Text read(const Store& store, const PathKey& key, TextView fallback);

/// Whether the value is exactly "True"; "true" is off.
bool is_on(const Store& store, const SwitchKey& key) noexcept;

/// Whether the value is exactly "False". A value that is no switch's is neither on nor off.
bool is_off(const Store& store, const SwitchKey& key) noexcept;

/// Whether the value is exactly "1"; "True" ticks nothing.
bool is_ticked(const Store& store, const TickKey& key) noexcept;

/// The digits that the value begins with, as numeric_value takes them.
int read_number(const Store& store, const NumberKey& key) noexcept;

/// The same with the minus in front that a coordinate may have.
int read_coordinate(const Store& store, const NumberKey& key) noexcept;

bool save(Store& store, const Key& key, TextView value) noexcept;

/// A store that lives as long as the program.
class MemoryStore final : public Store {
public:
    struct NameOrder {
        using is_transparent = void;
        bool operator()(TextView left, TextView right) const { return name_before(left, right); }
    };
    using Section = std::map<Text, Text, NameOrder>;

    std::optional<Text> find(TextView section, TextView key) const noexcept override;
    bool save(TextView section, TextView key, TextView value) noexcept override;
    bool remove(TextView section, TextView key) noexcept override;

    const std::map<Text, Section, NameOrder>& sections() const { return sections_; }

private:
    std::map<Text, Section, NameOrder> sections_;
};

} // namespace ornavel::settings
