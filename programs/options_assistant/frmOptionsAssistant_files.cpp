// Registry files: what comes in, and what goes out.
#include "programs/options_assistant/frmOptionsAssistant.h"

#include "programs/options_assistant/design.h"

#include <algorithm>

namespace ornavel::programs {

using namespace forms;
using namespace settings;
using namespace options_design;

namespace {

constexpr TextView preset_names[] = {u"NewUser.reg", u"DefaultUser.reg"};

PathQuestion question_for(PathQuestion::Kind kind, TextView heading, TextView proposed = {}) {
    return {.kind = kind,
            .title = Text(heading),
            .proposed = Text(proposed),
            .files = u"Registry files",
            .pattern = u"*.reg"};
}

TextView name_of_file(TextView path) { return path.substr(path.find_last_of(u'\\') + 1); }

} // namespace

/// A file that is refused changes nothing.
void frmOptionsAssistant::cmdImport_Click() {
    const auto path =
        platform_.windows.ask_for_path(question_for(PathQuestion::Kind::existing_file, u"Import"));
    if (!path) return;
    try {
        import_ = import_of(read_reg_file(platform_.files.read(*path), platform_.files.ansi()), draft_);
    } catch (const Failure& error) {
        return platform_.windows.inform(title, Text(name_of_file(*path)) + u" was not imported: " +
                                                   error.description() + u".");
    }
    if (import_.lines.empty()) return platform_.windows.inform(title, u"The file would change nothing.");
    show_import(true);
}

void frmOptionsAssistant::leave_import() {
    show_import(false);
    form_.next_focus = u"cmdImport";
}

/// While an import is looked at, nothing else is shown.
void frmOptionsAssistant::show_import(bool shown) {
    for (Control& control : form_.controls())
        control.visible = (control.name == u"fraImport" || control.frame == u"fraImport") == shown;
    form_[u"lstImport"].items = shown ? import_.lines : std::vector<Text>();
    form_[u"lstImport"].select(-1);
    form_[u"cmdTakeOver"].enabled = !import_.changes.empty();
    if (shown)
        form_.next_focus = u"lstImport";
    else
        show_setting();
}

/// What else the user has changed stays to be saved.
void frmOptionsAssistant::cmdTakeOver_Click() {
    if (!save_or_tell(platform_, title, import_.changes)) return leave_import();
    for (const Change& change : import_.changes)
        draft_.set(change.key, platform_.settings.find_stored(change.key.section, change.key.name));
    leave_import();
    list_settings();
}

void frmOptionsAssistant::cmdExport_Click() {
    const auto path =
        platform_.windows.ask_for_path(question_for(PathQuestion::Kind::new_file, u"Export", u"Ornavel.reg"));
    const bool differing = form_[u"chkOnlyDifferent"].ticked;
    if (path) write(*path, differing ? Exported::differing : Exported::all);
}

/// The add-in imports files of these two names only.
void frmOptionsAssistant::cmdPreset_Click() {
    const auto path = platform_.windows.ask_for_path(
        question_for(PathQuestion::Kind::new_file, u"Preset", preset_names[0]));
    if (!path) return;
    const bool is_preset = std::ranges::any_of(
        preset_names, [&](TextView name) { return same_name(name, name_of_file(*path)); });
    if (!is_preset)
        return platform_.windows.inform(title, u"A preset is called NewUser.reg or DefaultUser.reg.");
    write(*path, Exported::preset);
}

void frmOptionsAssistant::write(TextView path, Exported which) {
    const auto save = [&] {
        write_whole(platform_.files, path, write_reg_file(exported(draft_, which), platform_.files.ansi()));
    };
    if (!attempt(save)) platform_.windows.inform(title, Text(path) + u" could not be written.");
}

} // namespace ornavel::programs
