#pragma once

#include "rehearsal/machine.h"

namespace ornavel::rehearsal {

/// The registry: of the current user's part all but the classes and Wine's own, of the other roots the keys
/// that a rehearsal writes or removes. What a rehearsal changes is put back at its end.
class RegistryWorld final : public Registry {
public:
    RegistryWorld();
    ~RegistryWorld() override { put_back(); }
    RegistryWorld(const RegistryWorld&) = delete;
    RegistryWorld& operator=(const RegistryWorld&) = delete;

    std::optional<RegistryValue> find(TextView key, TextView name) const override;
    void set(TextView key, TextView name, RegistryValue value) override;
    bool remove_key(TextView key) override;

    void change_settings(const SettingsTree& settings);
    void add_to(Snapshot& snapshot) const;
    void put_back();

private:
    using Values = ByName<RegistryValue>;

    void note_before(TextView key);

    ByName<Values> before_;                      ///< all of the user's part
    ByName<std::optional<Values>> found_before_; ///< of other roots; nothing for a key that was not there
};

} // namespace ornavel::rehearsal
