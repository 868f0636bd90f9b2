#pragma once

#include "settings/store.h"
#include "win32/key_watch.h"

#include <map>

namespace ornavel::win32 {

/// The user's settings in the registry, where the add-in's other programs and administrators find them. Only
/// values of the type "string" count; for a setting that is a path also those of the type "expandable
/// string", with the environment's values in them. The keys of the sections stay open from one reading to the
/// next: a key that is made or removed meanwhile is noticed at once, one that is renamed at the clock's next
/// tick.
class RegistryStore final : public settings::Store {
public:
    std::optional<Text> find(TextView section, TextView key) const noexcept override;
    bool save(TextView section, TextView key, TextView value) noexcept override;
    bool remove(TextView section, TextView key) noexcept override;
    std::optional<Stored> find_stored(TextView section, TextView key) const noexcept override;
    bool save_with_variables(TextView section, TextView key, TextView value) noexcept override;

private:
    struct NameOrder {
        using is_transparent = void;
        bool operator()(TextView left, TextView right) const { return name_before(left, right); }
    };
    using Keys = std::map<Text, RegistryKey, NameOrder>;

    /// Nothing where the section has no key.
    const RegistryKey* key_of(TextView section) const;
    void forget(TextView section);

    mutable KeyWatch watch_{u"Software\\VB and VBA Program Settings"};
    mutable Keys keys_;
};

} // namespace ornavel::win32
