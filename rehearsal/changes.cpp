#include "rehearsal/outcome.h"

#include "base/encoding.h"

namespace ornavel::rehearsal {
namespace {

struct Mark {
    const char* name;
    std::string_view bytes;
};

constexpr Mark marks[] = {
    {"UTF-8", "\xEF\xBB\xBF"}, {"UTF-16LE", {"\xFF\xFE", 2}}, {"UTF-16BE", {"\xFE\xFF", 2}}};

/// The contents of a file as the outcome shows them: its text, or its bytes where they are none.
Json file_outcome(const std::string& bytes) {
    for (const auto& [name, mark] : marks) {
        if (!std::string_view(bytes).starts_with(mark)) continue;
        return {{"text", to_json(decode(bytes, windows_1252()))}, {"mark", name}};
    }
    if (is_utf8(bytes)) return bytes;
    return {{"base64", encode_base64(bytes)}};
}

using Values = ByName<RegistryValue>;

Json changed_values(const Values& before, const Values& after) {
    Json json = Json::object();
    for (const auto& [name, value] : after) {
        const auto old = before.find(name);
        if (old == before.end() || old->second != value) json[to_utf8(name)] = registry_outcome(value);
    }
    for (const auto& [name, value] : before)
        if (!after.contains(name)) json[to_utf8(name)] = nullptr;
    return json;
}

} // namespace

Json registry_outcome(const RegistryValue& value) {
    if (const auto* number = std::get_if<std::uint32_t>(&value)) return *number;
    if (const auto* text = std::get_if<Text>(&value)) return to_json(*text);
    return {{"expand", to_json(std::get<ExpandText>(value).text)}};
}

Json changed_files(const Snapshot& before, const Snapshot& after) {
    Json json = Json::object();
    for (const auto& [path, bytes] : after.files) {
        const auto old = before.files.find(path);
        if (old == before.files.end() || old->second != bytes) json[to_utf8(path)] = file_outcome(bytes);
    }
    for (const auto& [path, bytes] : before.files)
        if (!after.files.contains(path)) json[to_utf8(path)] = nullptr;
    for (const auto& path : before.folders)
        if (!after.folders.contains(path)) json[to_utf8(path + u'\\')] = nullptr;
    return json;
}

Json changed_registry(const Snapshot& before, const Snapshot& after) {
    Json json = Json::object();
    for (const auto& [key, values] : after.registry) {
        const auto old = before.registry.find(key);
        Json changed = changed_values(old == before.registry.end() ? Values{} : old->second, values);
        if (!changed.empty()) json[to_utf8(key)] = std::move(changed);
    }
    for (const auto& [key, values] : before.registry)
        if (!after.registry.contains(key)) json[to_utf8(key)] = nullptr;
    return json;
}

} // namespace ornavel::rehearsal
