#include "settings/reg_settings.h"

#include <algorithm>

namespace ornavel::settings {
namespace {

constexpr TextView short_root = u"HKCU\\", long_root = u"HKEY_CURRENT_USER\\";

Text with_long_root(const Text& path) {
    const bool is_short = same_name(TextView(path).substr(0, short_root.size()), short_root);
    return is_short ? Text(long_root) + path.substr(short_root.size()) : path;
}

bool stands_above_area(const Text& path) {
    return same_name(registry_area.substr(0, path.size() + 1), path + u"\\");
}

/// Whether a removed key takes the section with it.
bool takes_along(const Text& removed, TextView section) {
    if (removed.empty() || same_name(removed, section)) return true;
    return same_name(section.substr(0, removed.size() + 1), removed + u"\\");
}

bool counts(TextView section, const RegValue& value) {
    if (value.kind == RegValue::Kind::text) return true;
    return value.kind == RegValue::Kind::expand_text && is_path(section, value.name);
}

void take(std::vector<FileSetting>& settings, const Text& section, const RegValue& value) {
    std::erase_if(settings, [&](const FileSetting& setting) {
        return same_name(setting.section, section) && same_name(setting.name, value.name);
    });
    if (counts(section, value))
        settings.push_back(
            {section, value.name, value.value, value.kind == RegValue::Kind::expand_text, value.at});
}

} // namespace

std::optional<Text> section_of(const Text& path) {
    const Text whole = with_long_root(path);
    if (!same_name(TextView(whole).substr(0, registry_area.size()), registry_area)) return {};
    const TextView rest = TextView(whole).substr(registry_area.size());
    if (!rest.empty() && rest.front() != u'\\') return {};
    return Text(rest.substr(rest.empty() ? 0 : 1));
}

std::vector<FileSetting> settings_of(const RegFile& file) {
    std::vector<FileSetting> settings;
    for (const RegKey& key : file.keys) {
        const auto section = section_of(key.path);
        if (key.removed && stands_above_area(with_long_root(key.path))) settings.clear();
        if (!section) continue;
        if (key.removed)
            std::erase_if(settings,
                          [&](const auto& setting) { return takes_along(*section, setting.section); });
        else
            for (const RegValue& value : key.values) take(settings, *section, value);
    }
    return settings;
}

const Key* find_key(TextView section, TextView name) {
    const auto keys = catalogue();
    const auto key = std::ranges::find_if(keys, [&](const Key& known) {
        return same_name(known.section, section) && same_name(known.name, name);
    });
    return key == keys.end() ? nullptr : &*key;
}

} // namespace ornavel::settings
