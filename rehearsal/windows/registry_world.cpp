#include "rehearsal/windows/registry_world.h"

#include "base/errors.h"
#include "rehearsal/windows/registry_keys.h"
#include "win32/registry.h"
#include "win32/wide.h"

#include <map>

namespace ornavel::rehearsal {
namespace {

constexpr TextView user_root = u"HKEY_CURRENT_USER\\";
constexpr TextView settings_key = u"Software\\VB and VBA Program Settings\\Ornavel";
constexpr TextView left_out[] = {u"Software\\Classes", u"Software\\Wine", u"Volatile Environment",
                                 settings_key,
                                 u"Software\\Microsoft\\Office\\Outlook\\Addins\\Ornavel.Connect"};

struct KeyContents {
    ByName<RegistryValue> values;
    std::vector<Text> subkeys;
};

bool is_left_out(TextView path) {
    for (const TextView key : left_out)
        if (same_name(path, key)) return true;
    return false;
}

Text below(Text key, TextView name) {
    if (!key.empty()) key += u'\\';
    return key.append(name);
}

struct KnownKey {
    KeyContents contents;
    std::uint64_t written = 0; ///< when the key was written last
    bool is_settled = false;   ///< written long before it was read, so that a write since then shows
};

/// A key's contents, read again only where it was written since the last time: nearly all keys stay as they
/// are from one rehearsal to the next, and reading them all takes longer than most rehearsals.
const KeyContents& contents_of(const Text& path, HKEY key) {
    static std::map<Text, KnownKey> known_keys;
    KnownKey& known = known_keys[path];
    const std::uint64_t written = last_written(key);
    if (!known.is_settled || known.written != written) {
        constexpr std::uint64_t second = 10'000'000;
        known = {{values_of(key), subkeys_of(key)}, written, written + second < ticks_now()};
    }
    return known.contents;
}

/// Keys of the user's part, from a path below its root on.
void collect(const Text& path, ByName<ByName<RegistryValue>>& keys) {
    if (is_left_out(path)) return;
    const OpenKey key({HKEY_CURRENT_USER, path}, KEY_READ);
    if (!key) return;
    const KeyContents& contents = contents_of(path, key.get());
    if (!path.empty()) keys[Text(user_root).append(path)] = contents.values;
    for (const Text& name : contents.subkeys) collect(below(path, name), keys);
}

std::optional<ByName<RegistryValue>> values_at(TextView key) {
    const OpenKey open(address_of(key), KEY_READ);
    if (!open) return {};
    return values_of(open.get());
}

RegistryValue registry_value(const SettingValue& value) {
    return std::visit([](const auto& text) -> RegistryValue { return text; }, value);
}

/// A number is no setting.
std::optional<SettingValue> setting_value(const RegistryValue& value) {
    if (const auto* text = std::get_if<Text>(&value)) return *text;
    if (const auto* expand = std::get_if<ExpandText>(&value)) return *expand;
    return {};
}

void restore(const KeyAddress& key, const ByName<RegistryValue>& before, const ByName<RegistryValue>& after) {
    for (const auto& [name, value] : after)
        if (!before.contains(name)) remove_value(key, name);
    for (const auto& [name, value] : before) write_value(key, name, value);
}

} // namespace

RegistryWorld::RegistryWorld() {
    win32::remove_key(settings_key);
    collect({}, before_);
}

std::optional<RegistryValue> RegistryWorld::find(TextView key, TextView name) const {
    const auto values = values_at(key);
    if (!values) return {};
    const auto value = values->find(name);
    if (value == values->end()) return {};
    return value->second;
}

/// Of a key that is not there the keys above it are noted too: they are made with it.
void RegistryWorld::note_before(TextView key) {
    if (same_name(key.substr(0, user_root.size()), user_root)) return;
    for (TextView at = key; at.find(u'\\') != TextView::npos; at = at.substr(0, at.find_last_of(u'\\'))) {
        const bool is_there = found_before_.try_emplace(Text(at), values_at(at)).first->second.has_value();
        if (is_there) return;
    }
}

void RegistryWorld::set(TextView key, TextView name, RegistryValue value) {
    note_before(key);
    write_value(address_of(key), name, value);
}

bool RegistryWorld::remove_key(TextView key) {
    note_before(key);
    const auto [root, path] = address_of(key);
    return RegDeleteKeyW(root, win32::wide(path).c_str()) == ERROR_SUCCESS;
}

void RegistryWorld::change_settings(const SettingsTree& settings) {
    for (const auto& [section, keys] : settings) {
        const KeyAddress address{HKEY_CURRENT_USER, below(Text(settings_key), section)};
        win32::RegistryKey::create(address.path);
        for (const auto& [key, value] : keys) write_value(address, key, registry_value(value));
    }
}

void RegistryWorld::add_to(Snapshot& snapshot) const {
    collect({}, snapshot.registry);
    for (const auto& [key, values] : found_before_)
        if (auto now = values_at(key)) snapshot.registry[key] = std::move(*now);
    const OpenKey settings({HKEY_CURRENT_USER, Text(settings_key)}, KEY_READ);
    if (!settings) return;
    for (const Text& section : subkeys_of(settings.get())) {
        const OpenKey key({HKEY_CURRENT_USER, below(Text(settings_key), section)}, KEY_READ);
        for (const auto& [name, value] : values_of(key.get()))
            if (auto setting = setting_value(value)) snapshot.settings[section][name] = std::move(*setting);
    }
}

void RegistryWorld::put_back() {
    attempt([&] {
        win32::remove_key(settings_key);
        ByName<Values> after;
        collect({}, after);
        for (const auto& [key, values] : after)
            if (!before_.contains(key)) remove_tree(address_of(key));
        for (const auto& [key, values] : before_)
            if (after[key] != values) restore(address_of(key), values, after[key]);
        for (const auto& [key, values] : found_before_) {
            if (!values)
                remove_tree(address_of(key));
            else
                restore(address_of(key), *values, values_at(key).value_or(Values{}));
        }
    });
}

} // namespace ornavel::rehearsal
