#include "programs/options_assistant/values.h"

#include <algorithm>

namespace ornavel::programs {

using namespace settings;

namespace {

bool is_number(TextView value) {
    if (value.starts_with(u'-') && value.size() > 1) value.remove_prefix(1);
    return std::ranges::all_of(value, [](char16_t unit) { return unit >= u'0' && unit <= u'9'; });
}

/// Nothing where the value is one of those that are told apart.
std::optional<Text> not_of_the_list(const Description& setting, TextView value) {
    const auto allowed = split(setting.allowed, u"|");
    if (std::ranges::find(allowed, value) != allowed.end()) return {};
    Text words;
    for (const Text& word : allowed) words += (words.empty() ? u"\"" : u", \"") + word + u"\"";
    return u"it is none of " + words;
}

} // namespace

Editor editor_of(const Description& setting) {
    const SettingKind kind = setting.key.kind;
    if (kind == SettingKind::switch_ || kind == SettingKind::tick) return Editor::check_box;
    if (kind == SettingKind::path) return Editor::path;
    return setting.allowed.empty() ? Editor::box : Editor::list;
}

Text tick_of(const Description& setting, bool ticked) {
    if (setting.key.kind == SettingKind::tick) return ticked ? u"1" : u"0";
    return Text(ticked ? on : off);
}

std::optional<Text> objection(const Description& setting, TextView value) {
    if (contains(value, TextView(u"\0", 1))) return u"it holds a sign that no setting can hold";
    if (setting.key.kind == SettingKind::number && !is_number(value)) return u"it is no number";
    if (editor_of(setting) == Editor::list) return not_of_the_list(setting, value);
    return {};
}

bool is_folder(const Description& setting) {
    return setting.meaning.starts_with(u"The folder") || setting.meaning.starts_with(u"The working folder");
}

bool holds_variables(const Description& setting, TextView value) {
    return setting.key.kind == SettingKind::path && std::ranges::count(value, u'%') > 1;
}

} // namespace ornavel::programs
