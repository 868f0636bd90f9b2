#include "settings/store.h"

#include "base/errors.h"

namespace ornavel::settings {
namespace {

Text value_of(const Store& store, const Key& key, TextView fallback) {
    return store.find(key.section, key.name).value_or(Text(fallback));
}

Text value_of(const Store& store, const Key& key) { return value_of(store, key, key.default_value); }

int number_in(const Store& store, const Key& key, int (*value_of)(TextView)) noexcept {
    const auto value = store.find(key.section, key.name);
    return value_of(value ? TextView(*value) : key.default_value);
}

/// Compares without building a text, for which there may be no memory.
bool is(const Store& store, const Key& key, TextView wanted) noexcept {
    const auto value = store.find(key.section, key.name);
    return (value ? TextView(*value) : key.default_value) == wanted;
}

} // namespace

Text read(const Store& store, const TextKey& key) { return value_of(store, key); }
Text read(const Store& store, const PathKey& key) { return value_of(store, key); }
Text read(const Store& store, const TextKey& key, TextView fallback) {
    return value_of(store, key, fallback);
}
Text read(const Store& store, const PathKey& key, TextView fallback) {
    return value_of(store, key, fallback);
}

bool is_on(const Store& store, const SwitchKey& key) noexcept { return is(store, key, on); }
bool is_off(const Store& store, const SwitchKey& key) noexcept { return is(store, key, off); }
bool is_ticked(const Store& store, const TickKey& key) noexcept { return is(store, key, u"1"); }
int read_number(const Store& store, const NumberKey& key) noexcept {
    return number_in(store, key, numeric_value);
}
int read_coordinate(const Store& store, const NumberKey& key) noexcept {
    return number_in(store, key, signed_value);
}

bool save(Store& store, const Key& key, TextView value) noexcept {
    return store.save(key.section, key.name, value);
}

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

bool MemoryStore::save(TextView section, TextView key, TextView value) noexcept {
    return attempt([&] {
        Text copy(value);
        sections_.try_emplace(Text(section)).first->second.try_emplace(Text(key)).first->second.swap(copy);
    });
}

bool MemoryStore::remove(TextView section, TextView key) noexcept {
    const auto values = sections_.find(section);
    if (values == sections_.end()) return true;
    if (const auto entry = values->second.find(key); entry != values->second.end())
        values->second.erase(entry);
    return true;
}

} // namespace ornavel::settings
