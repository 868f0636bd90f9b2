#include "rehearsal/windows/registry_world.h"

#include "base/errors.h"
#include "win32/registry.h"
#include "win32/wide.h"

namespace ornavel::rehearsal {
namespace {

constexpr TextView user_root = u"HKEY_CURRENT_USER\\";
constexpr TextView settings_key = u"Software\\VB and VBA Program Settings\\Ornavel";
constexpr TextView left_out[] = {u"Software\\Classes", u"Software\\Wine", u"Volatile Environment",
                                 settings_key,
                                 u"Software\\Microsoft\\Office\\Outlook\\Addins\\Ornavel.Connect"};

/// The path below the user's root. Any other root is out of a rehearsal's reach.
Text below_user(TextView key) {
    if (!same_name(key.substr(0, user_root.size()), user_root))
        throw Unusable(to_utf8(key) + ": only keys of HKEY_CURRENT_USER can be rehearsed");
    return Text(key.substr(user_root.size()));
}

class OpenKey {
public:
    OpenKey(TextView path, REGSAM access) {
        if (RegOpenKeyExW(HKEY_CURRENT_USER, win32::wide(path).c_str(), 0, access, &key_) != ERROR_SUCCESS)
            key_ = nullptr;
    }
    ~OpenKey() {
        if (key_) RegCloseKey(key_);
    }
    OpenKey(const OpenKey&) = delete;
    OpenKey& operator=(const OpenKey&) = delete;
    HKEY get() const { return key_; }
    explicit operator bool() const { return key_ != nullptr; }

private:
    HKEY key_ = nullptr;
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

bool is_left_out(TextView path) {
    for (const TextView key : left_out)
        if (same_name(path, key)) return true;
    return false;
}

Text below(Text key, TextView name) {
    if (!key.empty()) key += u'\\';
    return key.append(name);
}

void collect(const Text& path, ByName<ByName<RegistryValue>>& keys) {
    if (is_left_out(path)) return;
    const OpenKey key(path, KEY_READ);
    if (!key) return;
    if (!path.empty()) keys[Text(user_root).append(path)] = values_of(key.get());
    for (const Text& name : subkeys_of(key.get())) collect(below(path, name), keys);
}

void write(HKEY key, TextView name, const RegistryValue& value) {
    const std::wstring wide_name = win32::wide(name);
    if (const auto* number = std::get_if<std::uint32_t>(&value)) {
        RegSetValueExW(key, wide_name.c_str(), 0, REG_DWORD, reinterpret_cast<const BYTE*>(number),
                       sizeof *number);
        return;
    }
    const auto* expand = std::get_if<ExpandText>(&value);
    const std::wstring text = win32::wide(expand ? expand->text : std::get<Text>(value));
    RegSetValueExW(key, wide_name.c_str(), 0, expand ? REG_EXPAND_SZ : REG_SZ,
                   reinterpret_cast<const BYTE*>(text.c_str()),
                   static_cast<DWORD>((text.size() + 1) * sizeof(wchar_t)));
}

} // namespace

RegistryWorld::RegistryWorld() {
    win32::remove_key(settings_key);
    collect({}, before_);
}

std::optional<RegistryValue> RegistryWorld::find(TextView key, TextView name) const {
    const OpenKey open(below_user(key), KEY_READ);
    if (!open) return {};
    const auto values = values_of(open.get());
    const auto value = values.find(name);
    if (value == values.end()) return {};
    return value->second;
}

void RegistryWorld::set(TextView key, TextView name, RegistryValue value) {
    const Text path = below_user(key);
    win32::RegistryKey::create(path);
    write(OpenKey(path, KEY_WRITE).get(), name, value);
}

bool RegistryWorld::remove_key(TextView key) {
    return RegDeleteKeyW(HKEY_CURRENT_USER, win32::wide(below_user(key)).c_str()) == ERROR_SUCCESS;
}

void RegistryWorld::change_settings(const SettingsTree& settings) {
    for (const auto& [section, keys] : settings) {
        auto stored = win32::RegistryKey::create(below(Text(settings_key), section));
        for (const auto& [key, value] : keys) stored.set(key, value);
    }
}

void RegistryWorld::add_to(Snapshot& snapshot) const {
    collect({}, snapshot.registry);
    const OpenKey settings(settings_key, KEY_READ);
    if (!settings) return;
    for (const Text& section : subkeys_of(settings.get())) {
        const OpenKey key(below(Text(settings_key), section), KEY_READ);
        for (const auto& [name, value] : values_of(key.get()))
            if (const auto* text = std::get_if<Text>(&value)) snapshot.settings[section][name] = *text;
    }
}

void RegistryWorld::put_back() {
    attempt([&] {
        win32::remove_key(settings_key);
        ByName<ByName<RegistryValue>> after;
        collect({}, after);
        for (const auto& [key, values] : after)
            if (!before_.contains(key)) win32::remove_key(below_user(key));
        for (const auto& [key, values] : before_) {
            if (after[key] == values) continue;
            for (const auto& [name, value] : after[key])
                if (!values.contains(name))
                    RegDeleteValueW(OpenKey(below_user(key), KEY_WRITE).get(), win32::wide(name).c_str());
            for (const auto& [name, value] : values) set(key, name, value);
        }
    });
}

} // namespace ornavel::rehearsal
