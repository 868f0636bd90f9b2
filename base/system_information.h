#pragma once

#include "base/text.h"

#include <cstdint>

namespace ornavel {

/// As the platform's version query gives it. platform: 0, 1 or 2 (Windows 32s, Windows 95, Windows NT).
struct OperatingSystem {
    int platform = 0, major = 0, minor = 0, build = 0;
};

/// In bytes.
struct Memory {
    std::uint64_t total_physical = 0, available_physical = 0, total_virtual = 0, available_virtual = 0;
};

/// What the platform says of the machine. Every member may throw Failure.
class SystemInformation {
public:
    virtual ~SystemInformation() = default;
    virtual OperatingSystem operating_system() const = 0;
    /// The number of the processor's type: 386, 486, 586, …
    virtual int processor_type() const = 0;
    virtual Memory memory() const = 0;
    virtual Text computer_name() const = 0;
    /// The account that is logged on.
    virtual Text user_name() const = 0;
    /// Whom the system was installed for; empty where nobody said.
    virtual Text registered_owner() const = 0;
    virtual Text registered_organization() const = 0;
};

} // namespace ornavel
