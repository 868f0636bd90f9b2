#include "win32/registry.h"

#include "win32/wide.h"

namespace ornavel::win32 {
namespace {

void check_key(LSTATUS status, TextView path) {
    if (status != ERROR_SUCCESS) fail(path, static_cast<DWORD>(status));
}

DWORD byte_count(const std::wstring& text) { return static_cast<DWORD>(text.size() * sizeof(wchar_t)); }

} // namespace

RegistryKey RegistryKey::create(TextView path) {
    HKEY key = nullptr;
    check_key(RegCreateKeyExW(HKEY_CURRENT_USER, wide(path).c_str(), 0, nullptr, 0, KEY_READ | KEY_WRITE,
                              nullptr, &key, nullptr),
              path);
    return RegistryKey(key);
}

std::optional<RegistryKey> RegistryKey::open(TextView path, REGSAM access) {
    HKEY key = nullptr;
    if (RegOpenKeyExW(HKEY_CURRENT_USER, wide(path).c_str(), 0, access, &key) != ERROR_SUCCESS) return {};
    return RegistryKey(key);
}

std::optional<RegistryKey::StoredText> RegistryKey::stored_text(TextView name) const {
    const std::wstring wanted = wide(name);
    std::wstring value(256, L'\0');
    DWORD type = REG_NONE;
    LSTATUS status = ERROR_MORE_DATA;
    DWORD size = 0;
    while (status == ERROR_MORE_DATA) {
        size = byte_count(value);
        status = RegQueryValueExW(key_, wanted.c_str(), nullptr, &type, reinterpret_cast<BYTE*>(value.data()),
                                  &size);
        if (status == ERROR_MORE_DATA) value.resize(size / sizeof(wchar_t) + 1);
    }
    if (status == ERROR_KEY_DELETED) throw KeyRemoved();
    if (status != ERROR_SUCCESS || (type != REG_SZ && type != REG_EXPAND_SZ)) return {};
    value.resize(size / sizeof(wchar_t));
    // The closing NUL is stored with the text, by some programs not at all, and by others with what was there
    // before.
    return StoredText{text_of(value.substr(0, value.find(L'\0'))), type == REG_EXPAND_SZ};
}

std::optional<Text> RegistryKey::text(TextView name) const {
    std::optional<Text> found;
    attempt([&] {
        if (auto stored = stored_text(name); stored && !stored->expands) found = std::move(stored->text);
    });
    return found;
}

bool RegistryKey::tell_changes_of_names(HANDLE event) const {
    return RegNotifyChangeKeyValue(key_, TRUE, REG_NOTIFY_CHANGE_NAME, event, TRUE) == ERROR_SUCCESS;
}

void RegistryKey::set(TextView name, TextView text) { set_text(name, text, REG_SZ); }

void RegistryKey::set_expanding(TextView name, TextView text) { set_text(name, text, REG_EXPAND_SZ); }

void RegistryKey::set_text(TextView name, TextView text, DWORD type) {
    std::wstring value = wide(text);
    value.push_back(L'\0');
    check_key(RegSetValueExW(key_, wide(name).c_str(), 0, type, reinterpret_cast<const BYTE*>(value.data()),
                             byte_count(value)),
              name);
}

void RegistryKey::set(TextView name, DWORD number) {
    check_key(RegSetValueExW(key_, wide(name).c_str(), 0, REG_DWORD, reinterpret_cast<const BYTE*>(&number),
                             sizeof number),
              name);
}

void RegistryKey::remove(TextView name) {
    const LSTATUS status = RegDeleteValueW(key_, wide(name).c_str());
    if (status != ERROR_FILE_NOT_FOUND) check_key(status, name);
}

bool RegistryKey::empty() const {
    DWORD keys = 0;
    DWORD values = 0;
    const LSTATUS status = RegQueryInfoKeyW(key_, nullptr, nullptr, nullptr, &keys, nullptr, nullptr, &values,
                                            nullptr, nullptr, nullptr, nullptr);
    return status == ERROR_SUCCESS && keys == 0 && values == 0;
}

std::optional<Text> RegistryKey::first_subkey() const {
    wchar_t name[256];
    DWORD length = ARRAYSIZE(name);
    const LSTATUS status = RegEnumKeyExW(key_, 0, name, &length, nullptr, nullptr, nullptr, nullptr);
    if (status != ERROR_SUCCESS) return {};
    return text_of({name, length});
}

void remove_key(TextView path) {
    while (true) {
        std::optional<Text> child;
        if (const auto key = RegistryKey::open(path)) child = key->first_subkey();
        if (!child) break;
        remove_key(Text(path) + u"\\" + *child);
    }
    const LSTATUS status = RegDeleteKeyW(HKEY_CURRENT_USER, wide(path).c_str());
    if (status != ERROR_FILE_NOT_FOUND) check_key(status, path);
}

void remove_empty_key(TextView path) {
    bool holds_nothing = false;
    if (const auto key = RegistryKey::open(path)) holds_nothing = key->empty();
    if (holds_nothing) remove_key(path);
}

} // namespace ornavel::win32
