#include "programs/site_assistant/frmSiteAssistant.h"

#include "programs/site_assistant/checks.h"
#include "programs/site_assistant/frmSiteAssistant_design.h"
#include "programs/site_assistant/markup.h"
#include "programs/site_assistant/site_assistant.h"
#include "settings/modes.h"

#include <algorithm>

namespace ornavel::programs {

using namespace settings;
using forms::Control;
using forms::ControlKind;
using forms::Event;
using forms::PathQuestion;

namespace {

constexpr TextView markup_question =
    u"HTML reads \"&\", \"<\" and \">\" as markup, and some of your texts hold them: write them as &amp; and "
    u"&lt; so that they show?";
constexpr TextView cancel_question = u"Leave without saving what you changed?";

/// The last page has no other behind it.
std::size_t last_page() { return setup_design::pages().size() - 1; }

bool is_in(const Control& control, TextView frame) {
    return control.frame == frame || (control.kind == ControlKind::frame && control.name == frame);
}

bool stands_below(const Control& control) {
    return control.frame.empty() && control.kind != ControlKind::frame;
}

} // namespace

frmSiteAssistant::frmSiteAssistant(const Platform& platform)
    : platform_(platform),
      form_({.name = u"frmSiteAssistant", .caption = Text(site_assistant.title)}, setup_design::controls()) {
    form_.make_room(setup_design::room);
    form_.on_load = [this] { Form_Load(); };
    form_.on_unload = [this] { Form_Unload(); };
    form_.may_close = [this] { return may_be_closed(); };
    wire();
}

void frmSiteAssistant::wire() {
    form_.on(u"cmdBack", Event::click, [this] { cmdBack_Click(); });
    form_.on(u"cmdNext", Event::click, [this] { cmdNext_Click(); });
    form_.on(u"cmdFinish", Event::click, [this] { cmdFinish_Click(); });
    form_.on(u"cmdCancel", Event::click, [this] { cmdCancel_Click(); });
    for (const TextView folder : {u"txtTemplatesFolder", u"txtSignaturesFolder"})
        form_.on(folder, Event::change, [this, folder] { folder_typed(folder); });
    for (const TextView list : {u"cboTemplates", u"cboSignatures"}) {
        form_.on(list, Event::drop_down, [this] { is_unseen_ ? open_letterhead() : list_stationery(); });
        for (const Event event : {Event::click, Event::change}) form_.on(list, event, [this] { render(); });
    }
    form_.on(u"txtvCard", Event::change, [this] { show_whole_names(); });
    using enum PathQuestion::Kind;
    form_.on(u"cmdBrowseTemplates", Event::click,
             [this] { browse(u"txtTemplatesFolder", {.kind = folder, .title = u"Folder of Templates"}); });
    form_.on(u"cmdBrowseSignatures", Event::click,
             [this] { browse(u"txtSignaturesFolder", {.kind = folder, .title = u"Folder of Signatures"}); });
    form_.on(u"cmdBrowsevCard", Event::click, [this] {
        browse(u"txtvCard",
               {.kind = existing_file, .title = u"vCard File", .files = u"vCards", .pattern = u"*.vcf"});
    });
}

void frmSiteAssistant::Form_Load() {
    const Text mode = stored_value(platform_.settings, user::SettingButtonBar);
    list_modes(form_[u"cboMode"], mode);
    if (mode == modes::signature) {
        form_[u"cboMode"].enabled = false;
        form_[u"cboMode"].tool_tip = u"The button in the mail client's toolbar leads out of this mode.";
    }
    for (const Field& field : setup_fields()) {
        beginnings_.push_back({stored_value(platform_.settings, field.key), {}});
        show_value(form_, field, beginnings_.back().stored);
    }
    propose();
    show_whole_names();
    form_[u"chkFrench"].ticked = std::ranges::any_of(form_.controls(), [](const Control& control) {
        return control.frame == u"fraFrench" && !control.text.empty();
    });
    for (std::size_t i = 0; i < beginnings_.size(); ++i)
        beginnings_[i].shown = shown_value(form_, setup_fields()[i]);
    show_page(0);
}

void frmSiteAssistant::propose() {
    if (stored_value(platform_.settings, user::SettingButtonBar).empty()) form_[u"cboMode"].select(0);
    propose_identity();
}

/// Of somebody who has told nothing yet Windows knows two things.
void frmSiteAssistant::propose_identity() {
    const bool told = std::ranges::any_of(form_.controls(), [](const Control& control) {
        return control.frame == u"fraYou" && !control.text.empty();
    });
    if (told) return;
    attempt([&] { form_[u"txtSigFullname"].text = platform_.machine.registered_owner(); });
    attempt([&] { form_[u"txtSigOrganizationName"].text = platform_.machine.registered_organization(); });
}

/// The page of the preview goes with the wizard.
void frmSiteAssistant::Form_Unload() {
    if (!form_[u"brwPreview"].page.empty()) attempt([&] { platform_.files.remove(page_of_preview()); });
}

TextView frmSiteAssistant::frame() const { return setup_design::pages()[page_].frame; }

void frmSiteAssistant::show_page(std::size_t page) {
    page_ = page;
    warned_.clear();
    tell({});
    for (Control& control : form_.controls())
        if (!stands_below(control)) control.visible = is_in(control, frame());
    form_[u"cmdBack"].enabled = page > 0;
    form_[u"cmdNext"].visible = page < last_page();
    form_[u"cmdFinish"].visible = page == last_page();
    form_.next_focus = setup_design::pages()[page].first;
    if (frame() == u"fraLetterhead") open_letterhead();
    if (frame() == u"fraReady") open_ready();
}

bool frmSiteAssistant::is_skipped(std::size_t page) {
    return setup_design::pages()[page].frame == u"fraFrench" && !form_[u"chkFrench"].ticked;
}

void frmSiteAssistant::cmdBack_Click() {
    ask_about_markup();
    show_page(is_skipped(page_ - 1) ? page_ - 2 : page_ - 1);
}

void frmSiteAssistant::cmdNext_Click() {
    if (!page_may_be_left()) return;
    ask_about_markup();
    show_page(is_skipped(page_ + 1) ? page_ + 2 : page_ + 1);
}

/// A warning is passed by a second click.
bool frmSiteAssistant::page_may_be_left() {
    std::optional<Problem> problem;
    Warning warning;
    platform_.windows.while_user_waits([&] {
        problem = refusal_of(form_, frame(), platform_.files);
        if (!problem) warning = warning_of(form_, frame(), platform_.files);
    });
    if (problem) {
        tell(problem->sentence);
        form_.next_focus = problem->control;
        return false;
    }
    if (warning.whole.empty() || warning.whole == warned_) return true;
    tell(warning.short_form, warned_ = warning.whole);
    return false;
}

/// One question for the page; what the user wants as markup is not asked about again.
void frmSiteAssistant::ask_about_markup() {
    std::vector<Control*> found;
    for (const Field& field : setup_fields()) {
        Control& control = form_[field.control];
        if (field.is_HTML && control.frame == frame() && reads_as_markup(control.text) &&
            kept_[control.name] != control.text)
            found.push_back(&control);
    }
    if (found.empty()) return;
    const bool shows = platform_.windows.ask(site_assistant.title, markup_question);
    for (Control* control : found)
        if (shows)
            control->text = as_HTML(control->text);
        else
            kept_[control->name] = control->text;
}

void frmSiteAssistant::cmdFinish_Click() {
    if (save_or_tell(platform_, site_assistant.title, changes())) form_.unload();
}

void frmSiteAssistant::cmdCancel_Click() {
    if (may_be_closed()) form_.unload();
}

bool frmSiteAssistant::may_be_closed() {
    return !is_changed() || platform_.windows.ask_risky(site_assistant.title, cancel_question);
}

/// What has no room is read whole in the tool tip.
void frmSiteAssistant::tell(TextView sentence, TextView whole) {
    form_[u"lblProblem"].caption = forms::with_access_key(sentence, u'\0');
    form_[u"lblProblem"].tool_tip = whole;
}

bool frmSiteAssistant::is_changed() {
    for (std::size_t i = 0; i < beginnings_.size(); ++i)
        if (shown_value(form_, setup_fields()[i]) != beginnings_[i].shown) return true;
    return false;
}

std::vector<Change> frmSiteAssistant::changes() {
    std::vector<Change> changes = changes_in(form_, platform_.settings, beginnings_);
    // From now on the mail client's start opens the wizard only where the identity is missing.
    if (stored_value(platform_.settings, admin::StartupSetupWiz) != off)
        changes.push_back({admin::StartupSetupWiz, Text(off)});
    return changes;
}

} // namespace ornavel::programs
