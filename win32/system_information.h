#pragma once

#include "base/system_information.h"

namespace ornavel::win32 {

/// The machine and the account that the mail client runs under.
class WindowsInformation final : public SystemInformation {
public:
    OperatingSystem operating_system() const override;
    int processor_type() const override;
    Memory memory() const override;
    Text computer_name() const override;
    Text user_name() const override;
    Text registered_owner() const override;
    Text registered_organization() const override;
};

} // namespace ornavel::win32
