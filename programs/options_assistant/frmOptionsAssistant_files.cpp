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

constexpr TextView kind_of_files = u"Registry files", pattern = u"*.reg";

TextView name_of_file(TextView path) { return path.substr(path.find_last_of(u'\\') + 1); }

} // namespace

/// A file that is refused changes nothing.
void frmOptionsAssistant::cmdImport_Click() {
    const auto path = platform_.windows.ask_for_path(
        {.title = u"Import", .files = Text(kind_of_files), .pattern = Text(pattern)});
    if (!path || !read_import(*path)) return;
    if (lines_of(import_, platform_.settings).empty())
        return platform_.windows.inform(title, u"The file would change nothing.");
    show_import(true);
}

/// Whether it could be read; where not, the user is told.
bool frmOptionsAssistant::read_import(TextView path) {
    try {
        platform_.windows.while_user_waits([&] {
            const RegFile file = read_reg_file(platform_.files.read(path), platform_.files.ansi());
            import_ = import_of(file, platform_.settings);
        });
        return true;
    } catch (const Failure& error) {
        platform_.windows.inform(title, Text(name_of_file(path)) + u" was not imported: " +
                                            error.description() + u".");
        return false;
    }
}

void frmOptionsAssistant::leave_import() {
    show_import(false);
    form_.next_focus = u"cmdImport";
}

/// While an import is looked at, nothing else is shown.
void frmOptionsAssistant::show_import(bool shown) {
    for (Control& control : form_.controls())
        control.visible = (control.name == u"fraImport" || control.frame == u"fraImport") == shown;
    form_[u"lstImport"].items = shown ? lines_of(import_, platform_.settings) : std::vector<Text>();
    form_[u"lstImport"].select(-1);
    form_[u"cmdTakeOver"].enabled = !import_.changes.empty();
    if (shown)
        form_.next_focus = u"lstImport";
    else
        show_setting();
}

/// What else the user has changed stays to be saved. An import that can't be written stays to be looked at.
void frmOptionsAssistant::cmdTakeOver_Click() {
    const bool is_taken = save_or_tell(platform_, title, import_.changes);
    if (is_taken)
        for (const Change& change : import_.changes) draft_.forget(change.key);
    list_settings();
    if (is_taken)
        leave_import();
    else
        show_import(true);
}

/// A file holds what is saved.
std::optional<Text> frmOptionsAssistant::ask_for_new_file(TextView heading, TextView proposed) {
    if (!draft_.changes().empty())
        platform_.windows.inform(title, u"What you changed is not saved, and will not be in the file.");
    return platform_.windows.ask_for_path({.kind = PathQuestion::Kind::new_file,
                                           .title = Text(heading),
                                           .proposed = Text(proposed),
                                           .files = Text(kind_of_files),
                                           .pattern = Text(pattern)});
}

void frmOptionsAssistant::cmdExport_Click() {
    const auto path = ask_for_new_file(u"Export", u"Ornavel.reg");
    const bool differing = form_[u"chkOnlyDifferent"].ticked;
    if (path) write(*path, differing ? Exported::differing : Exported::all);
}

/// The add-in imports files of these two names only.
void frmOptionsAssistant::cmdPreset_Click() {
    const auto path = ask_for_new_file(u"Preset", preset_names[0]);
    if (!path) return;
    const bool is_preset = std::ranges::any_of(
        preset_names, [&](TextView name) { return same_name(name, name_of_file(*path)); });
    if (!is_preset)
        return platform_.windows.inform(title, u"A preset is called NewUser.reg or DefaultUser.reg.");
    write(*path, Exported::preset);
}

void frmOptionsAssistant::write(TextView path, Exported which) {
    bool is_written = false;
    const auto save = [&] {
        const auto keys = exported(platform_.settings, which);
        write_whole(platform_.files, path, write_reg_file(keys, platform_.files.ansi()));
    };
    platform_.windows.while_user_waits([&] { is_written = attempt(save); });
    if (!is_written) platform_.windows.inform(title, Text(path) + u" could not be written.");
}

} // namespace ornavel::programs
