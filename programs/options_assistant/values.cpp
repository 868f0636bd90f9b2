#include "programs/options_assistant/values.h"

#include <algorithm>

namespace ornavel::programs {

using namespace settings;

namespace {

bool is_number(TextView value) {
    if (!value.empty() && value.front() == u'-') value.remove_prefix(1);
    return std::ranges::all_of(value, [](char16_t unit) { return unit >= u'0' && unit <= u'9'; });
}

bool is_allowed(const Description& setting, TextView value) {
    const auto allowed = split(setting.allowed, u"|");
    return std::ranges::find(allowed, value) != allowed.end();
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
    const Text name = u"\"" + Text(value) + u"\" is no value for " + Text(setting.key.name);
    if (value.find(u'\0') != TextView::npos) return name + u": it holds a sign that no setting can hold.";
    if (setting.key.kind == SettingKind::number && !is_number(value)) return name + u": it is no number.";
    if (editor_of(setting) == Editor::list && !is_allowed(setting, value))
        return name + u": choose one of the list.";
    return {};
}

bool is_folder(const Description& setting) {
    return setting.meaning.starts_with(u"The folder") || setting.meaning.starts_with(u"The working folder");
}

bool holds_variables(const Description& setting, TextView value) {
    const auto begin = value.find(u'%');
    return setting.key.kind == SettingKind::path && begin != TextView::npos &&
           value.find(u'%', begin + 1) != TextView::npos;
}

} // namespace ornavel::programs
