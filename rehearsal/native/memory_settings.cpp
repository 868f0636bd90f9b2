#include "rehearsal/native/memory_settings.h"

#include <algorithm>

namespace ornavel::rehearsal {

std::optional<SettingValue> MemorySettings::find_stored(TextView section, TextView key) const {
    const auto values = sections_.find(section);
    if (values == sections_.end()) return {};
    const auto entry = values->second.find(key);
    return entry == values->second.end() ? std::nullopt : std::optional(entry->second);
}

std::optional<Text> MemorySettings::find(TextView section, TextView key) const {
    const auto value = find_stored(section, key);
    if (!value) return {};
    if (const auto* text = std::get_if<Text>(&*value)) return *text;
    if (!settings::is_path(section, key)) return {};
    return expanded(stored_text(*value));
}

void MemorySettings::save(TextView section, TextView key, SettingValue value) {
    sections_.try_emplace(Text(section)).first->second.try_emplace(Text(key)).first->second =
        std::move(value);
}

void MemorySettings::remove(TextView section, TextView key) {
    const auto values = sections_.find(section);
    if (values == sections_.end()) return;
    if (const auto entry = values->second.find(key); entry != values->second.end())
        values->second.erase(entry);
    if (values->second.empty()) sections_.erase(values);
}

Text MemorySettings::expanded(Text text) const {
    for (auto begin = text.find(u'%'); begin != Text::npos;) {
        const auto end = text.find(u'%', begin + 1);
        if (end == Text::npos) break;
        const TextView name = TextView(text).substr(begin + 1, end - begin - 1);
        const auto known =
            std::ranges::find_if(environment_, [&](const auto& v) { return same_name(v.first, name); });
        if (known == environment_.end()) {
            begin = end;
            continue;
        }
        text.replace(begin, end + 1 - begin, known->second);
        begin = text.find(u'%', begin + known->second.size());
    }
    return text;
}

} // namespace ornavel::rehearsal
