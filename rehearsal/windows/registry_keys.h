#pragma once

#include "rehearsal/machine.h"

#include <windows.h>

namespace ornavel::rehearsal {

/// A key as the registry's functions take it: its root and the path below.
struct KeyAddress {
    HKEY root;
    Text path;
};

/// The address of a full key such as "HKEY_CURRENT_USER\Software". Throws Unusable for any other.
KeyAddress address_of(TextView key);

/// A key that is open for as long as this is kept, or none.
class OpenKey {
public:
    OpenKey(const KeyAddress& address, REGSAM access);
    ~OpenKey();
    OpenKey(const OpenKey&) = delete;
    OpenKey& operator=(const OpenKey&) = delete;
    HKEY get() const { return key_; }
    explicit operator bool() const { return key_ != nullptr; }

private:
    HKEY key_ = nullptr;
};

/// The values that a scenario can hold: numbers and texts.
ByName<RegistryValue> values_of(HKEY key);
std::vector<Text> subkeys_of(HKEY key);
/// When the key, its values or the list of its subkeys changed last, and what time it is: in units of 100 ns.
std::uint64_t last_written(HKEY key);
std::uint64_t ticks_now();
/// Makes the key when it is missing. Throws Unusable where that is not allowed.
void write_value(const KeyAddress& address, TextView name, const RegistryValue& value);
void remove_value(const KeyAddress& address, TextView name);
/// With all keys below it.
void remove_tree(const KeyAddress& address);

} // namespace ornavel::rehearsal
