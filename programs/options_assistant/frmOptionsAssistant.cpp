#include "programs/options_assistant/frmOptionsAssistant.h"

#include "programs/one_line.h"
#include "programs/options_assistant/design.h"

#include <algorithm>

namespace ornavel::programs {

using namespace forms;
using namespace settings;
using namespace options_design;

namespace {

/// In front of the groups of the catalogue.
constexpr TextView changed_group = u"changed", all_group = u"all";

/// Whether each of the words stands in the name or in the meaning.
bool is_found(const Description& setting, TextView words) {
    const Text text = lower_case(Text(setting.key.name) + u" " + Text(setting.meaning));
    const auto parts = split(lower_case(words), u" ");
    return std::ranges::all_of(parts, [&](const Text& word) { return word.empty() || contains(text, word); });
}

} // namespace

frmOptionsAssistant::frmOptionsAssistant(const Platform& platform)
    : platform_(platform), draft_(platform.settings),
      form_({.name = u"frmOptionsAssistant", .place = {0, 0, 10500, 8400}, .caption = Text(title)},
            controls()) {
    form_.sizable = true;
    form_.least_room = least_room();
    form_.on_load = [this] { Form_Load(); };
    form_.on_resize = [this] { arrange(form_); };
    form_.may_close = [this] { return may_close(); };
    wire();
}

void frmOptionsAssistant::wire() {
    form_.on(u"lstGroups", Event::click, [this] { lstGroups_Click(); });
    form_.on(u"txtSearch", Event::change, [this] { list_settings(); });
    form_.on(u"lstSettings", Event::click, [this] { show_setting(); });
    form_.on(u"txtValue", Event::change, [this] { take_value(form_[u"txtValue"].text); });
    form_.on(u"cboValue", Event::click, [this] { take_value(form_[u"cboValue"].text); });
    form_.on(u"cboValue", Event::change, [this] { take_value(form_[u"cboValue"].text); });
    form_.on(u"chkValue", Event::click, [this] { chkValue_Click(); });
    form_.on(u"cmdBrowseValue", Event::click, [this] { cmdBrowseValue_Click(); });
    form_.on(u"cmdReset", Event::click, [this] { cmdReset_Click(); });
    form_.on(u"cmdSave", Event::click, [this] { cmdSave_Click(); });
    form_.on(u"cmdClose", Event::click, [this] { cmdClose_Click(); });
    form_.on(u"cmdImport", Event::click, [this] { cmdImport_Click(); });
    form_.on(u"cmdTakeOver", Event::click, [this] { cmdTakeOver_Click(); });
    form_.on(u"cmdCancelImport", Event::click, [this] { leave_import(); });
    form_.on(u"cmdExport", Event::click, [this] { cmdExport_Click(); });
    form_.on(u"cmdPreset", Event::click, [this] { cmdPreset_Click(); });
}

void frmOptionsAssistant::Form_Load() {
    Control& groups = form_[u"lstGroups"];
    groups.items = {Text(changed_group), Text(all_group)};
    for (int group = 0; group <= static_cast<int>(Group::environment); ++group)
        groups.items.emplace_back(name_of(static_cast<Group>(group)));
    groups.select(all_index);
    list_settings();
    show_import(false);
    form_.take_place(form_.properties.place);
}

/// A group is looked at whole: what was searched for is forgotten.
void frmOptionsAssistant::lstGroups_Click() {
    form_[u"txtSearch"].text.clear();
    list_settings();
}

/// A search goes through all groups.
bool frmOptionsAssistant::is_listed(const Description& setting) const {
    const Text words = trim(form_.find(u"txtSearch")->text);
    if (!words.empty()) return is_found(setting, words);
    const int group = form_.find(u"lstGroups")->index;
    if (group == 0) return draft_.differs_from_default(setting.key);
    return group == all_index || static_cast<int>(setting.group) == group - all_index - 1;
}

void frmOptionsAssistant::list_settings() {
    const Description* const before = chosen();
    std::vector<const Description*> listed;
    std::vector<Text> lines;
    for (const Description& setting : descriptions()) {
        if (!is_listed(setting)) continue;
        listed.push_back(&setting);
        lines.push_back(line_of(setting));
    }
    // Both or neither: a line is found by its place.
    Control& list = form_[u"lstSettings"];
    listed_.swap(listed);
    list.items.swap(lines);
    list.index = -1;
    list.select(place_of(before));
    show_setting();
}

/// The setting that is searched for by its whole name, else the one that was chosen before, else the first.
int frmOptionsAssistant::place_of(const Description* before) const {
    const Text words = trim(form_.find(u"txtSearch")->text);
    const auto named = std::ranges::find_if(
        listed_, [&](const Description* each) { return same_name(each->key.name, words); });
    const auto place = named != listed_.end() ? named : std::ranges::find(listed_, before);
    return place == listed_.end() ? 0 : static_cast<int>(place - listed_.begin());
}

Text frmOptionsAssistant::line_of(const Description& setting) const {
    const Text mark = draft_.differs_from_default(setting.key) ? u"* " : u"   ";
    return mark + Text(setting.key.name) + u" = " + in_one_line(draft_.value(setting.key));
}

const Description* frmOptionsAssistant::chosen() const {
    const int index = form_.find(u"lstSettings")->index;
    const bool is_listed = index >= 0 && static_cast<std::size_t>(index) < listed_.size();
    return is_listed ? listed_[static_cast<std::size_t>(index)] : nullptr;
}

bool frmOptionsAssistant::may_close() {
    return draft_.changes().empty() ||
           platform_.windows.ask_risky(title, u"What you changed is not saved. Close all the same?");
}

void frmOptionsAssistant::cmdClose_Click() {
    if (may_close()) form_.unload();
}

} // namespace ornavel::programs
