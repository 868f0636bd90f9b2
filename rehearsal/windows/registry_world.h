#pragma once

#include "rehearsal/machine.h"

namespace ornavel::rehearsal {

/// The current user's registry, without the classes and Wine's own part. What a rehearsal changes is put back
/// at its end.
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
    ByName<ByName<RegistryValue>> before_;
};

} // namespace ornavel::rehearsal
