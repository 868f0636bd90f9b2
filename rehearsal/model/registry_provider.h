#pragma once

#include "rehearsal/model/node.h"

namespace ornavel::rehearsal {

/// The management provider's way to the machine's registry. Its methods give back 0 when they succeed.
struct RegistryProviderNode final : Node {
    const Class& what() const override;
};

} // namespace ornavel::rehearsal
