#include "workbench/policy_files.h"

#include "base/encoding.h"

#include <set>

namespace ornavel::workbench {
namespace {

using namespace settings;

std::string identifier(const Key& key) {
    std::string id;
    for (const char unit : to_utf8(Text(key.section) + u"_" + Text(key.name))) {
        const bool plain =
            (unit >= 'a' && unit <= 'z') || (unit >= 'A' && unit <= 'Z') || (unit >= '0' && unit <= '9');
        id += plain ? unit : '_';
    }
    return id;
}

Text explanation_of(const Description& setting) {
    const Text fallback(setting.key.default_value);
    Text words =
        Text(setting.meaning) + u" Default: " + (fallback.empty() ? Text(u"empty") : fallback) + u".";
    if (setting.readers.parts.empty()) words += u" It has no effect.";
    if (setting.readers.not_yet) words += u" It has no effect so far.";
    return words;
}

} // namespace

std::vector<Policy> all_policies() {
    std::vector<Policy> policies;
    std::set<Text> seen;
    for (int group = 0; group <= static_cast<int>(Group::environment); ++group)
        for (const Description& setting : descriptions()) {
            if (setting.owner == Owner::state || static_cast<int>(setting.group) != group) continue;
            const Text name = lower_case(Text(setting.key.section) + u"/" + Text(setting.key.name));
            if (seen.insert(name).second)
                policies.push_back({setting, identifier(setting.key), explanation_of(setting)});
        }
    return policies;
}

std::vector<Text> choices_of(const Description& setting) {
    if (setting.key.kind == SettingKind::switch_ || setting.allowed.empty()) return {};
    return split(setting.allowed, u"|");
}

std::string key_of(const Description& setting) {
    return "Software\\VB and VBA Program Settings\\Ornavel\\" + to_utf8(setting.key.section);
}

} // namespace ornavel::workbench
