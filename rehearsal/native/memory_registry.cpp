#include "rehearsal/native/memory_registry.h"

namespace ornavel::rehearsal {

std::optional<RegistryValue> MemoryRegistry::find(TextView key, TextView name) const {
    const auto values = keys_.find(key);
    if (values == keys_.end()) return {};
    const auto value = values->second.find(name);
    if (value == values->second.end()) return {};
    return value->second;
}

void MemoryRegistry::set(TextView key, TextView name, RegistryValue value) {
    keys_[Text(key)][Text(name)] = std::move(value);
}

bool MemoryRegistry::remove_key(TextView key) {
    const Text below = Text(key) + u'\\';
    for (const auto& [other, values] : keys_)
        if (other.size() > below.size() && same_name(TextView(other).substr(0, below.size()), below))
            return false;
    return keys_.erase(Text(key)) > 0;
}

} // namespace ornavel::rehearsal
