#include "rehearsal/reader/parts.h"

#include <algorithm>

namespace ornavel::rehearsal {
namespace {

bool is_full_path(TextView path) {
    const bool drive = path.size() > 3 && lower_case(path.substr(0, 1)) >= u"a" &&
                       lower_case(path.substr(0, 1)) <= u"z" && path.substr(1, 2) == u":\\";
    const bool share = path.size() > 4 && path.starts_with(u"\\\\");
    return (drive || share) && path.find_first_of(u"/*?\"<>|", 2) == TextView::npos &&
           path.find(u"\\\\", 2) == TextView::npos;
}

std::string read_other_file(const JsonPlace& place) {
    try {
        return load_file(place.bytes());
    } catch (const Unusable&) {
        place.refuse("no such file");
    }
}

std::string read_contents(const JsonPlace& place) {
    if (place.is_text()) return place.bytes();
    if (!place.is_object() || place.size() != 1)
        place.refuse("expected a text, {\"base64\": …} or {\"from\": …}");
    std::string bytes;
    place.fields({
        {"base64",
         [&](const JsonPlace& at) {
             const auto decoded = decode_base64(at.bytes());
             if (!decoded) at.refuse("not base64");
             bytes = *decoded;
         }},
        {"from", [&](const JsonPlace& at) { bytes = read_other_file(at); }},
    });
    return bytes;
}

ExpandText read_expand_text(const JsonPlace& place) {
    ExpandText expand;
    if (place.size() != 1) place.refuse("expected {\"expand\": …}");
    place.fields({{"expand", [&](const JsonPlace& at) { expand.text = at.text(); }}});
    return expand;
}

SettingValue read_setting_value(const JsonPlace& place) {
    if (place.is_object()) return read_expand_text(place);
    return place.text();
}

RegistryValue read_registry_value(const JsonPlace& place) {
    if (place.is_text()) return place.text();
    if (place.is_object()) return read_expand_text(place);
    return static_cast<std::uint32_t>(place.number(0, 0xFFFFFFFF));
}

constexpr TextView hives[] = {u"HKEY_CLASSES_ROOT", u"HKEY_CURRENT_USER", u"HKEY_LOCAL_MACHINE",
                              u"HKEY_USERS", u"HKEY_CURRENT_CONFIG"};

bool is_registry_key(const Text& key) {
    const auto end = key.find(u'\\');
    return end != Text::npos && end + 1 < key.size() &&
           std::any_of(std::begin(hives), std::end(hives),
                       [&](TextView hive) { return same_name(hive, TextView(key).substr(0, end)); });
}

} // namespace

SettingsTree read_settings(const JsonPlace& place) {
    SettingsTree sections;
    place.each_member([&](const Text& section, const JsonPlace& keys) {
        auto& entry = sections.emplace_back(section, Named<SettingValue>{});
        keys.each_member([&](const Text& key, const JsonPlace& value) {
            entry.second.emplace_back(key, read_setting_value(value));
        });
    });
    return sections;
}

Named<std::string> read_files(const JsonPlace& place) {
    Named<std::string> files;
    place.each_member([&](const Text& path, const JsonPlace& contents) {
        if (!is_full_path(path) || path.ends_with(u'\\')) contents.refuse("expected a full Windows path");
        files.emplace_back(path, read_contents(contents));
    });
    for (const auto& [path, bytes] : files)
        for (const auto& [inner, inner_bytes] : files)
            if (inner.size() > path.size() + 1 && inner[path.size()] == u'\\' &&
                same_name(TextView(inner).substr(0, path.size()), path))
                place.refuse("a file can't hold another file");
    return files;
}

std::vector<Text> read_folders(const JsonPlace& place, const Named<std::string>& files) {
    std::vector<Text> folders;
    place.each_element([&](const JsonPlace& at) {
        Text path = at.text();
        if (!is_full_path(path)) at.refuse("expected a full Windows path");
        if (path.ends_with(u'\\')) path.pop_back();
        for (const auto& [file, bytes] : files)
            if (same_name(file, path)) at.refuse("there is a file of that name");
        folders.push_back(std::move(path));
    });
    return folders;
}

Named<Named<RegistryValue>> read_registry(const JsonPlace& place) {
    Named<Named<RegistryValue>> keys;
    place.each_member([&](const Text& key, const JsonPlace& values) {
        if (!is_registry_key(key)) values.refuse("expected a registry key");
        auto& entry = keys.emplace_back(key, Named<RegistryValue>{});
        values.each_member([&](const Text& name, const JsonPlace& value) {
            entry.second.emplace_back(name, read_registry_value(value));
        });
    });
    return keys;
}

} // namespace ornavel::rehearsal
