#pragma once

#include "base/errors.h"

#include <windows.h>

#include <optional>
#include <utility>

namespace ornavel::win32 {

/// The key was removed while it was open; another may stand in its place.
class KeyRemoved : public Failure {
public:
    KeyRemoved() : Failure(u"The registry key was removed") {}
};

/// An open key of the user's part of the registry. Whatever fails throws Failure, unless it says otherwise.
class RegistryKey {
public:
    /// Makes the key and those above it that are missing.
    static RegistryKey create(TextView path);
    /// Nothing when there is no such key, or it can't be read.
    static std::optional<RegistryKey> open(TextView path, REGSAM access = KEY_READ);

    RegistryKey(RegistryKey&& other) noexcept : key_(std::exchange(other.key_, nullptr)) {}
    RegistryKey& operator=(RegistryKey&& other) noexcept {
        std::swap(key_, other.key_);
        return *this;
    }
    ~RegistryKey() {
        if (key_) RegCloseKey(key_);
    }

    /// A text as it is stored; where it expands, with the names of environment variables in it.
    struct StoredText {
        Text text;
        bool expands;
    };
    /// Nothing when the value is absent or no text. A text ends at its first NUL. Throws KeyRemoved.
    std::optional<StoredText> stored_text(TextView name) const;
    /// The same for a text that does not expand; nothing when the key is gone.
    std::optional<Text> text(TextView name) const;
    void set(TextView name, TextView text);
    void set(TextView name, DWORD number);
    /// A text with the names of environment variables in it.
    void set_expanding(TextView name, TextView text);
    /// One that is not there is removed already.
    void remove(TextView name);

    /// Has the event set when a key below this one is made, removed or renamed next; whether that can be had.
    bool tell_changes_of_names(HANDLE event) const;

    /// Whether the key holds neither keys nor values.
    bool empty() const;
    std::optional<Text> first_subkey() const;

private:
    explicit RegistryKey(HKEY key) : key_(key) {}
    void set_text(TextView name, TextView text, DWORD type);

    HKEY key_;
};

/// Removes a key with all that it holds; one that is not there is removed already.
void remove_key(TextView path);

/// Removes a key that holds nothing; any other stays.
void remove_empty_key(TextView path);

} // namespace ornavel::win32
