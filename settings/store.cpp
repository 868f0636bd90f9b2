#include "settings/store.h"

#include "base/errors.h"

namespace ornavel::settings {

Text read(const Store& store, const Key& key) { return read(store, key, key.default_value); }

Text read(const Store& store, const Key& key, TextView fallback) {
    return store.find(key.section, key.name).value_or(Text(fallback));
}

bool is_on(const Store& store, const Key& key) { return read(store, key) == u"True"; }

void save(Store& store, const Key& key, TextView value) { store.save(key.section, key.name, value); }

std::optional<Text> MemoryStore::find(TextView section, TextView key) const noexcept {
    std::optional<Text> value;
    attempt([&] {
        const auto values = sections_.find(section);
        if (values == sections_.end()) return;
        const auto entry = values->second.find(key);
        if (entry != values->second.end()) value = entry->second;
    });
    return value;
}

void MemoryStore::save(TextView section, TextView key, TextView value) noexcept {
    attempt([&] {
        Text copy(value);
        sections_.try_emplace(Text(section)).first->second.try_emplace(Text(key)).first->second.swap(copy);
    });
}

} // namespace ornavel::settings
