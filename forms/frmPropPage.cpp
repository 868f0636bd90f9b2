#include "forms/frmPropPage.h"

#include "forms/about_box.h"
#include "forms/measures.h"
#include "forms/stationery.h"
#include "forms/unwritten_box.h"
#include "settings/modes.h"

#include <algorithm>

namespace ornavel::forms {
namespace {

using namespace settings;

constexpr TextView none = u"none"; ///< the signature of those who want none

struct Mode {
    TextView value, words;
};

constexpr Mode modes[] = {
    {settings::modes::automatic, u"Dress automatically"},
    {settings::modes::on, u"Ask me for each message"},
    {settings::modes::off, u"Off"},
    {settings::modes::signature, u"The mail client's own signature"},
};

constexpr int label_width = 1350, box_left = window_margin + label_width + label_gap;
constexpr int row_height = box_height + control_gap;
constexpr int label_drop = (box_height - label_height) / 2; ///< its text stands on the line of the box's
constexpr int button_width = 1650;

constexpr int row(int number) { return window_margin + number * row_height; }
constexpr int first_check = row(3) + control_gap;
constexpr int second_check = first_check + check_height + control_gap;
constexpr int buttons_top = second_check + check_height + window_margin;

struct Row {
    ControlKind kind;
    TextView name;
    Bounds place; ///< lists and check boxes grow with the page
    TextView caption{};
};

constexpr Row label(TextView name, int number, TextView caption) {
    return {ControlKind::label,
            name,
            {window_margin, row(number) + label_drop, label_width, label_height},
            caption};
}

constexpr Row list(TextView name, int number) {
    return {ControlKind::combo_box, name, {box_left, row(number), 0, box_height}};
}

constexpr Row check_box(TextView name, int top, TextView caption) {
    return {ControlKind::check_box, name, {window_margin, top, 0, check_height}, caption};
}

constexpr Row button(TextView name, int left, TextView caption) {
    return {
        ControlKind::command_button, name, {left, buttons_top, button_width, button_size.height}, caption};
}

constexpr Row rows[] = {
    label(u"lblMode", 0, u"&When I send"),
    list(u"cboMode", 0),
    label(u"lblTemplates", 1, u"&Template"),
    list(u"cboTemplates", 1),
    label(u"lblSignatures", 2, u"&Signature"),
    list(u"cboSignatures", 2),
    check_box(u"chkAutoPreview", first_check, u"Show each message &before it is sent"),
    check_box(u"chkReplyAsIs", second_check, u"Send &replies as they are"),
    button(u"cmdSetup", window_margin, u"Ornavel S&etup"),
    button(u"cmdAbout", window_margin + button_width + control_gap, u"Abo&ut Ornavel"),
};

std::vector<Control> designed_controls() {
    std::vector<Control> controls(std::size(rows));
    for (std::size_t i = 0; i < std::size(rows); ++i) {
        controls[i].kind = rows[i].kind;
        controls[i].name = rows[i].name;
        controls[i].place = rows[i].place;
        controls[i].caption = rows[i].caption;
    }
    return controls;
}

} // namespace

const frmPropPage::Choice frmPropPage::choices[2] = {
    {u"cboTemplates", admin::HTMFilesPath, user::Template, false},
    {u"cboSignatures", admin::SignaturesPath, user::Signature, true},
};

frmPropPage::frmPropPage(Needs needs)
    : needs_(std::move(needs)), form_({.name = u"frmPropPage", .caption = u"Ornavel"}, designed_controls()) {
    form_.make_room({5670, buttons_top + button_size.height + window_margin});
    form_[u"cboMode"].fixed_entries = true;
    form_.on_load = [this] { Form_Load(); };
    form_.on_resize = [this] { Form_Resize(); };
    form_.on(u"cmdSetup", Event::click, [this] { cmdSetup_Click(); });
    form_.on(u"cmdAbout", Event::click, [this] { show_about(needs_.windows); });
    const auto tell = [this] {
        show_whole_names();
        needs_.on_status_change();
    };
    for (const TextView control : {u"cboMode", u"cboTemplates", u"cboSignatures"}) {
        form_.on(control, Event::click, tell);
        form_.on(control, Event::change, tell);
    }
    for (const TextView control : {u"chkAutoPreview", u"chkReplyAsIs"}) form_.on(control, Event::click, tell);
}

void frmPropPage::Form_Load() {
    Form_Resize();
    list_modes();
    for (std::size_t i = 0; i < std::size(choices); ++i) list_files(i);
    show_whole_names();
    form_[u"chkAutoPreview"].ticked = is_on(needs_.settings, admin::AutoPreview);
    form_[u"chkReplyAsIs"].ticked = settings::is_ticked(needs_.settings, user::ReplyAsIs);
    before_ = chosen();
}

/// A long name is cut off in its box.
void frmPropPage::show_whole_names() {
    for (const Choice& choice : choices) form_[choice.control].tool_tip = form_[choice.control].text;
}

/// The lists and the check boxes take the width that the dialog gives.
void frmPropPage::Form_Resize() {
    const int right = form_.room().width - window_margin;
    for (Control& control : form_.controls())
        if (control.kind == ControlKind::combo_box || control.kind == ControlKind::check_box)
            control.place.width = std::max(0, right - control.place.left);
}

/// The mail client's own signature is offered where the toolbar offers it, too. A mode that nobody knows is
/// shown as it is; one that is not stored dresses nothing, so none is shown for it.
void frmPropPage::list_modes() {
    const Text now = read(needs_.settings, user::SettingButtonBar, TextView());
    const bool all = is_on(needs_.settings, admin::eSignature);
    for (const Mode& mode : modes)
        if (mode.value != settings::modes::signature || all || mode.value == now)
            list_mode(mode.value, mode.words);
    const auto chosen = std::ranges::find(modes_, now) - modes_.begin();
    if (now.empty()) return;
    if (chosen == std::ssize(modes_)) list_mode(now, now);
    form_[u"cboMode"].select(static_cast<int>(chosen));
}

void frmPropPage::list_mode(TextView mode, TextView words) {
    modes_.emplace_back(mode);
    form_[u"cboMode"].items.emplace_back(words);
}

void frmPropPage::list_files(std::size_t choice) {
    const auto& [control, folder, chosen, may_be_none] = choices[choice];
    std::vector<Text>& files = files_[choice];
    const Text home = read(needs_.settings, folder);
    needs_.windows.while_user_waits([&] { files = stationery_in(needs_.files, home); });
    if (may_be_none) files.insert(files.begin(), Text(none));
    Control& list = form_[control];
    for (const Text& file : files) list.items.push_back(display_name(file));
    const Text now = trim(read(needs_.settings, chosen));
    const auto entry = std::ranges::find_if(files, [&](const Text& file) { return same_name(file, now); });
    if (entry == files.end())
        list.text = display_name(unlisted_[choice] = now);
    else
        list.select(static_cast<int>(entry - files.begin()));
}

std::vector<Change> frmPropPage::changes() const {
    const Chosen now = chosen();
    std::vector<Change> changed;
    const auto add = [&](const Key& key, const auto& value, const auto& before, Text written) {
        if (value != before && needs_.settings.find(key.section, key.name) != written)
            changed.push_back({key, std::move(written)});
    };
    add(user::SettingButtonBar, now.mode, before_.mode, now.mode);
    for (std::size_t i = 0; i < std::size(choices); ++i)
        add(choices[i].chosen, now.files[i], before_.files[i], now.files[i]);
    add(admin::AutoPreview, now.preview, before_.preview, Text(now.preview ? on : off));
    add(user::ReplyAsIs, now.as_is, before_.as_is, now.as_is ? u"1" : u"0");
    return changed;
}

frmPropPage::Chosen frmPropPage::chosen() const {
    return {chosen_mode(),
            {chosen_file(0), chosen_file(1)},
            is_ticked(u"chkAutoPreview"),
            is_ticked(u"chkReplyAsIs")};
}

Text frmPropPage::chosen_mode() const {
    const int index = form_.find(u"cboMode")->index;
    return index < 0 ? Text() : modes_[static_cast<std::size_t>(index)];
}

/// Typed words name a file as the entries do, or by its name; an empty text names none.
Text frmPropPage::chosen_file(std::size_t choice) const {
    const Control& list = *form_.find(choices[choice].control);
    const std::vector<Text>& files = files_[choice];
    if (list.index >= 0) return files[static_cast<std::size_t>(list.index)];
    const Text typed = trim(list.text);
    if (typed.empty()) return before_.files[choice];
    const auto is_meant = [&](const Text& file) {
        return same_name(file, typed) || same_name(display_name(file), typed);
    };
    if (is_meant(unlisted_[choice])) return unlisted_[choice];
    const auto file = std::ranges::find_if(files, is_meant);
    if (file != files.end()) return *file;
    return contains(lower_case(typed), u".htm") ? typed : typed + u".htm";
}

bool frmPropPage::is_ticked(TextView check_box) const { return form_.find(check_box)->ticked; }

void frmPropPage::apply() {
    const std::vector<Change> changed = changes();
    const Text mode_before = read(needs_.settings, user::SettingButtonBar);
    const auto unwritten = write_changes(needs_.settings, changed);
    if (unwritten) tell_unwritten(needs_.windows, u"Ornavel", *unwritten);
    const Text mode = read(needs_.settings, user::SettingButtonBar);
    if (mode != mode_before) needs_.change_mode(mode_before, mode);
    if (!unwritten) before_ = chosen();
}

void frmPropPage::cmdSetup_Click() {
    const auto start = [this] {
        needs_.launcher.launch(needs_.program_folder + u"\\SiteAssistant.exe", {}, WindowState::normal);
    };
    if (!attempt(start)) needs_.windows.inform(u"Ornavel", u"Ornavel Setup could not be started.");
}

} // namespace ornavel::forms
