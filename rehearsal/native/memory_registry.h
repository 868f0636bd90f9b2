#pragma once

#include "rehearsal/machine.h"

namespace ornavel::rehearsal {

/// A registry in memory.
class MemoryRegistry final : public Registry {
public:
    std::optional<RegistryValue> find(TextView key, TextView name) const override;
    void set(TextView key, TextView name, RegistryValue value) override;
    bool remove_key(TextView key) override;

    void make_key(TextView key) { keys_[Text(key)]; }
    const ByName<ByName<RegistryValue>>& keys() const { return keys_; }

private:
    ByName<ByName<RegistryValue>> keys_;
};

} // namespace ornavel::rehearsal
