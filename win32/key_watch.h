#pragma once

#include "win32/handle.h"
#include "win32/registry.h"

#include <optional>

namespace ornavel::win32 {

/// Looks after the keys below a key of the user's: whether any was made, removed or renamed. It looks once
/// for each tick of the system's clock, which is some milliseconds long.
class KeyWatch {
public:
    explicit KeyWatch(TextView path);

    /// Whether that has happened since it was last asked, as far as can be told. Where there is no such key
    /// to look after it may always have.
    bool has_something_changed();

private:
    bool watch();

    Text path_;
    Handle event_;
    std::optional<RegistryKey> key_;
    DWORD last_look_;
    bool watching_ = false;
};

} // namespace ornavel::win32
