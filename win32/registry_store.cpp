#include "win32/registry_store.h"

#include "win32/environment.h"

namespace ornavel::win32 {
namespace {

Text path_of(TextView section) { return u"Software\\VB and VBA Program Settings\\Ornavel\\" + Text(section); }

} // namespace

const RegistryKey* RegistryStore::key_of(TextView section) const {
    if (watch_.has_something_changed()) keys_.clear();
    if (const auto known = keys_.find(section); known != keys_.end()) return &known->second;
    auto key = RegistryKey::open(path_of(section));
    return key ? &keys_.emplace(Text(section), std::move(*key)).first->second : nullptr;
}

std::optional<settings::Store::Stored> RegistryStore::find_stored(TextView section,
                                                                  TextView key) const noexcept {
    std::optional<RegistryKey::StoredText> stored;
    const auto look = [&] {
        if (const auto* values = key_of(section)) stored = values->stored_text(key);
    };
    std::optional<Stored> value;
    attempt([&] {
        try {
            look();
        } catch (const KeyRemoved&) {
            keys_.clear();
            look();
        }
        if (stored) value = Stored{std::move(stored->text), stored->expands};
    });
    return value;
}

std::optional<Text> RegistryStore::find(TextView section, TextView key) const noexcept {
    auto stored = find_stored(section, key);
    std::optional<Text> value;
    attempt([&] {
        if (!stored) return;
        if (!stored->has_variables)
            value = std::move(stored->text);
        else if (settings::is_path(section, key))
            value = expanded(stored->text);
    });
    return value;
}

bool RegistryStore::save(TextView section, TextView key, TextView value) noexcept {
    return attempt([&] {
        RegistryKey::create(path_of(section)).set(key, value);
        // What was just saved is read next, also where the open key is no longer the section's.
        forget(section);
    });
}

bool RegistryStore::save_with_variables(TextView section, TextView key, TextView value) noexcept {
    return attempt([&] {
        RegistryKey::create(path_of(section)).set_expanding(key, value);
        forget(section);
    });
}

bool RegistryStore::remove(TextView section, TextView key) noexcept {
    return attempt([&] {
        if (auto open = RegistryKey::open(path_of(section), KEY_SET_VALUE)) open->remove(key);
        forget(section);
    });
}

void RegistryStore::forget(TextView section) {
    if (const auto open = keys_.find(section); open != keys_.end()) keys_.erase(open);
}

} // namespace ornavel::win32
