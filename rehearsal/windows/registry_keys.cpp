#include "rehearsal/windows/registry_keys.h"

#include "base/encoding.h"
#include "win32/wide.h"

namespace ornavel::rehearsal {
namespace {

const std::pair<TextView, HKEY> roots[] = {
    {u"HKEY_CLASSES_ROOT", HKEY_CLASSES_ROOT},     {u"HKEY_CURRENT_USER", HKEY_CURRENT_USER},
    {u"HKEY_LOCAL_MACHINE", HKEY_LOCAL_MACHINE},   {u"HKEY_USERS", HKEY_USERS},
    {u"HKEY_CURRENT_CONFIG", HKEY_CURRENT_CONFIG},
};

Text without_end(const std::string& bytes) {
    std::wstring text(reinterpret_cast<const wchar_t*>(bytes.data()), bytes.size() / sizeof(wchar_t));
    text.resize(text.find_last_not_of(L'\0') + 1);
    return win32::text_of(text);
}

std::optional<RegistryValue> value_of(DWORD type, const std::string& bytes) {
    if (type == REG_DWORD && bytes.size() == sizeof(DWORD)) {
        std::uint32_t number = 0;
        bytes.copy(reinterpret_cast<char*>(&number), sizeof number);
        return number;
    }
    if (type == REG_SZ) return without_end(bytes);
    if (type == REG_EXPAND_SZ) return ExpandText{without_end(bytes)};
    return {};
}

std::uint64_t ticks_of(const FILETIME& time) {
    return (std::uint64_t{time.dwHighDateTime} << 32) | time.dwLowDateTime;
}

void write(HKEY key, const std::wstring& name, const RegistryValue& value) {
    if (const auto* number = std::get_if<std::uint32_t>(&value)) {
        RegSetValueExW(key, name.c_str(), 0, REG_DWORD, reinterpret_cast<const BYTE*>(number),
                       sizeof *number);
        return;
    }
    const auto* expand = std::get_if<ExpandText>(&value);
    const std::wstring text = win32::wide(expand ? expand->text : std::get<Text>(value));
    RegSetValueExW(key, name.c_str(), 0, expand ? REG_EXPAND_SZ : REG_SZ,
                   reinterpret_cast<const BYTE*>(text.c_str()),
                   static_cast<DWORD>((text.size() + 1) * sizeof(wchar_t)));
}

} // namespace

KeyAddress address_of(TextView key) {
    const auto end = key.find(u'\\');
    for (const auto& [name, root] : roots)
        if (end != TextView::npos && same_name(key.substr(0, end), name))
            return {root, Text(key.substr(end + 1))};
    throw Unusable(to_utf8(key) + ": no such part of the registry");
}

OpenKey::OpenKey(const KeyAddress& address, REGSAM access) {
    if (RegOpenKeyExW(address.root, win32::wide(address.path).c_str(), 0, access, &key_) != ERROR_SUCCESS)
        key_ = nullptr;
}

OpenKey::~OpenKey() {
    if (key_) RegCloseKey(key_);
}

ByName<RegistryValue> values_of(HKEY key) {
    ByName<RegistryValue> values;
    DWORD count = 0, longest_name = 0, longest_value = 0;
    RegQueryInfoKeyW(key, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, &count, &longest_name,
                     &longest_value, nullptr, nullptr);
    std::wstring name(longest_name + 1, L'\0');
    std::string bytes(longest_value, '\0');
    for (DWORD index = 0; index < count; ++index) {
        auto length = static_cast<DWORD>(name.size());
        auto size = static_cast<DWORD>(bytes.size());
        DWORD type = REG_NONE;
        RegEnumValueW(key, index, name.data(), &length, nullptr, &type, reinterpret_cast<BYTE*>(bytes.data()),
                      &size);
        if (auto value = value_of(type, bytes.substr(0, size)))
            values[win32::text_of({name.data(), length})] = std::move(*value);
    }
    return values;
}

std::vector<Text> subkeys_of(HKEY key) {
    std::vector<Text> names;
    wchar_t name[256];
    DWORD length = ARRAYSIZE(name);
    while (RegEnumKeyExW(key, static_cast<DWORD>(names.size()), name, &length, nullptr, nullptr, nullptr,
                         nullptr) == 0) {
        names.push_back(win32::text_of({name, length}));
        length = ARRAYSIZE(name);
    }
    return names;
}

std::uint64_t last_written(HKEY key) {
    FILETIME time{};
    RegQueryInfoKeyW(key, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr,
                     nullptr, &time);
    return ticks_of(time);
}

std::uint64_t ticks_now() {
    FILETIME now{};
    GetSystemTimeAsFileTime(&now);
    return ticks_of(now);
}

void write_value(const KeyAddress& address, TextView name, const RegistryValue& value) {
    HKEY key = nullptr;
    if (RegCreateKeyExW(address.root, win32::wide(address.path).c_str(), 0, nullptr, 0, KEY_WRITE, nullptr,
                        &key, nullptr) != ERROR_SUCCESS)
        throw Unusable(to_utf8(address.path) + ": this key of the registry can't be written");
    write(key, win32::wide(name), value);
    RegCloseKey(key);
}

void remove_value(const KeyAddress& address, TextView name) {
    if (const OpenKey key(address, KEY_WRITE); key) RegDeleteValueW(key.get(), win32::wide(name).c_str());
}

void remove_tree(const KeyAddress& address) {
    std::vector<Text> below;
    if (const OpenKey key(address, KEY_READ); key) below = subkeys_of(key.get());
    for (const Text& name : below) remove_tree({address.root, address.path + u'\\' + name});
    RegDeleteKeyW(address.root, win32::wide(address.path).c_str());
}

} // namespace ornavel::rehearsal
