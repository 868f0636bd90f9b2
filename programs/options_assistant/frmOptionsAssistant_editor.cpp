// The chosen setting, and what becomes of it.
#include "programs/options_assistant/frmOptionsAssistant.h"

#include "programs/one_line.h"
#include "programs/options_assistant/design.h"
#include "programs/options_assistant/values.h"

#include <algorithm>

namespace ornavel::programs {

using namespace forms;
using namespace settings;
using namespace options_design;

void frmOptionsAssistant::show_setting() {
    const Description* const setting = chosen();
    form_[u"lblMeaning"].caption = setting ? replace_all(Text(setting->meaning), u"&", u"&&") : Text();
    form_[u"lblDefault"].caption.clear();
    for (const TextView editor : {u"txtValue", u"chkValue", u"cboValue", u"cmdBrowseValue"})
        form_[editor].visible = false;
    form_[u"lblValue"].visible = form_[u"cmdReset"].visible = setting != nullptr;
    if (setting) show_editor(*setting);
    form_[u"cmdSave"].enabled = !draft_.changes().empty();
    arrange(form_);
}

void frmOptionsAssistant::show_editor(const Description& setting) {
    const Key& key = setting.key;
    const Text value = draft_.value(key), fallback(key.default_value);
    form_[u"lblDefault"].caption = u"Default: " +
                                   replace_all(fallback.empty() ? u"(empty)" : fallback, u"&", u"&&") +
                                   u"   Section: " + Text(key.section);
    form_[u"cmdReset"].enabled = draft_.find(key).has_value();
    const Editor editor = editor_of(setting);
    form_[u"chkValue"].visible = editor == Editor::check_box;
    form_[u"chkValue"].ticked = value == tick_of(setting, true);
    form_[u"cboValue"].visible = editor == Editor::list;
    if (editor == Editor::list) form_[u"cboValue"].items = split(setting.allowed, u"|");
    form_[u"cboValue"].choose(value);
    form_[u"txtValue"].visible = editor == Editor::box || editor == Editor::path;
    form_[u"txtValue"].text = value;
    form_[u"cmdBrowseValue"].visible = editor == Editor::path;
}

/// The chosen setting has changed: its lines, one for each spelling, and what may be done now.
void frmOptionsAssistant::take_value(Text value) {
    const Description* const setting = chosen();
    if (!setting) return;
    draft_.set(setting->key, Store::Stored{value, holds_variables(*setting, value)});
    Control& list = form_[u"lstSettings"];
    for (std::size_t i = 0; i < listed_.size(); ++i)
        if (is_same(listed_[i]->key, setting->key)) list.items[i] = line_of(*listed_[i]);
    form_[u"cmdReset"].enabled = draft_.find(setting->key).has_value();
    form_[u"cmdSave"].enabled = !draft_.changes().empty();
}

/// A stored word that reads as the box now shows stays as it is.
void frmOptionsAssistant::chkValue_Click() {
    const Description* const setting = chosen();
    if (!setting) return;
    const bool ticked = form_[u"chkValue"].ticked;
    const auto stored = stored_in(platform_.settings, setting->key);
    const bool is_as_stored = stored && (stored->text == tick_of(*setting, true)) == ticked;
    take_value(is_as_stored ? stored->text : tick_of(*setting, ticked));
}

/// Wherever it stands.
void frmOptionsAssistant::choose(const Description& setting) {
    form_[u"lstGroups"].select(all_index);
    lstGroups_Click();
    const auto place = std::ranges::find(listed_, &setting) - listed_.begin();
    form_[u"lstSettings"].select(static_cast<int>(place));
    show_setting();
}

void frmOptionsAssistant::cmdReset_Click() {
    if (const Description* setting = chosen()) draft_.set(setting->key, std::nullopt);
    list_settings();
}

void frmOptionsAssistant::cmdBrowseValue_Click() {
    if (!chosen()) return;
    const Description& setting = *chosen();
    PathQuestion question{.title = Text(setting.key.name), .proposed = form_[u"txtValue"].text};
    if (is_folder(setting)) question.kind = PathQuestion::Kind::folder;
    const auto path = platform_.windows.ask_for_path(question);
    if (!path) return;
    form_[u"txtValue"].text = *path;
    take_value(*path);
}

void frmOptionsAssistant::cmdSave_Click() {
    for (const Description& setting : descriptions()) {
        const auto value = draft_.find(setting.key);
        if (!draft_.changes(setting.key) || !value) continue;
        if (const auto why_not = objection(setting, value->text)) return refuse(setting, *why_not);
    }
    if (save_or_tell(platform_, title, draft_.changes())) draft_.forget();
    list_settings();
}

/// The setting is shown, to be mended.
void frmOptionsAssistant::refuse(const Description& setting, TextView objection) {
    choose(setting);
    form_.next_focus = form_[u"cboValue"].visible ? u"cboValue" : u"txtValue";
    const Text value = in_one_line(draft_.value(setting.key));
    platform_.windows.inform(title, u"\"" + value + u"\" is no value for " + Text(setting.key.name) + u": " +
                                        Text(objection) + u".");
}

} // namespace ornavel::programs
