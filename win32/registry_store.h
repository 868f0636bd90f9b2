#pragma once

#include "settings/store.h"

namespace ornavel::win32 {

/// The user's settings in the registry, where the add-in's other programs and administrators find them. Only
/// values of the type "string" count.
class RegistryStore final : public settings::Store {
public:
    std::optional<Text> find(TextView section, TextView key) const noexcept override;
    void save(TextView section, TextView key, TextView value) noexcept override;
};

} // namespace ornavel::win32
