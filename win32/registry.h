#pragma once

#include "base/text.h"

#include <windows.h>

#include <optional>
#include <utility>

namespace ornavel::win32 {

/// An open key of the user's part of the registry. Whatever fails throws Failure, unless it says otherwise.
class RegistryKey {
public:
    /// Makes the key and those above it that are missing.
    static RegistryKey create(TextView path);
    /// Nothing when there is no such key, or it can't be read.
    static std::optional<RegistryKey> open(TextView path, REGSAM access = KEY_READ);

    RegistryKey(RegistryKey&& other) noexcept : key_(std::exchange(other.key_, nullptr)) {}
    ~RegistryKey() {
        if (key_) RegCloseKey(key_);
    }

    /// Nothing when the value is absent or of another type.
    std::optional<Text> text(TextView name) const;
    void set(TextView name, TextView text);
    void set(TextView name, DWORD number);

    /// Whether the key holds neither keys nor values.
    bool empty() const;
    std::optional<Text> first_subkey() const;

private:
    explicit RegistryKey(HKEY key) : key_(key) {}

    HKEY key_;
};

/// Removes a key with all that it holds; one that is not there is removed already.
void remove_key(TextView path);

/// Removes a key that holds nothing; any other stays.
void remove_empty_key(TextView path);

} // namespace ornavel::win32
