#include "forms/frmSysTray.h"

#include "base/flag.h"
#include "diagnostics/about.h"
#include "diagnostics/basSysInfo.h"
#include "forms/about_box.h"
#include "forms/captions.h"
#include "forms/input_box.h"

#include <algorithm>

namespace ornavel::forms {
namespace {

using namespace settings;
using namespace text_ids;

constexpr TextView version = u"" ORNAVEL_VERSION;
constexpr TextView site = u"http://www.brevant.example/";
constexpr int right_button_released = 517;
constexpr std::size_t longest_tip = 63; // the field for it ends with a NUL

/// A switch that the menu turns round, and how the user is asked whether it should.
struct Toggle {
    TextView name, caption;
    const Key& key;
    TextView title, question_when_on, question_when_off;
};

// The words in which the user is asked stand as users know them, slips of the pen included.
constexpr Toggle toggles[] = {
    {u"mnTemplateAttachments", u"Remove Template A&ttachments", admin::WipeoutTemplateAttachments,
     u"Admin Attachment Files", u"Keep any pre-existing template attachments?",
     u"Remove any pre-existing template attachments?"},
    {u"mnFontControl", u"Template &Font Control", admin::WipeOutFontControl, u"Admin Font Control",
     u"Set the Font control to the User?", u"Set the Font control to the Template?"},
    {u"mnFileCompare", u"HT&ML File Compare", admin::WipeOutFileCompare, u"Admin HTML File Compare",
     u"Set the HTML file comparsion off?", u"Set the HTML file comparsion on?"},
    {u"mnRemoveTemplates", u"Remove Pre-&existing Templates", admin::WipeoutHTML, u"Admin Template Control",
     u"Set the Remove pre-existing templates off?", u"Set the Remove pre-existing templates on?"},
    {u"mnSkipInternal", u"Skip &Internal Recipients", admin::SkipInternal, u"Admin Template Control",
     u"Use templates for internal recipients?", u"Do not template internal recipients?"},
};

/// An entry whose caption stands in the table, or here.
struct Entry {
    TextView name, caption;
    int id = 0;
    char16_t access_key = 0;
};

constexpr Entry first_entries[] = {
    {u"mnClose", {}, close_administrator, u'C'}, {u"mnAbout", {}, about, u'A'},
    {u"mnSite", {}, visit_our_site, u'V'},       {u"mnSystemInfo", {}, system_info, u'S'},
    {u"mnOptions", {}, run_config_wizard, u'R'}, {u"mnHide", {}, hide_administrator, u'H'},
};
constexpr Entry last_entries[] = {
    {u"mnSignature", u"Default Si&gnature..."},
    {u"mnTemplate", u"&Default Template..."},
    {u"mnSupport", u"&Notify Support..."},
};

Control menu(TextView name, TextView caption) {
    return {.kind = ControlKind::menu, .name = Text(name), .caption = Text(caption)};
}

std::vector<Control> designed_controls() {
    std::vector<Control> controls;
    for (const Entry& entry : first_entries) controls.push_back(menu(entry.name, to_text(entry.id)));
    controls.push_back(menu(u"mnLine1", {}));
    for (const Toggle& toggle : toggles) controls.push_back(menu(toggle.name, toggle.caption));
    controls.push_back(menu(u"mnLine2", {}));
    for (const Entry& entry : last_entries) controls.push_back(menu(entry.name, entry.caption));
    return controls;
}

/// Whatever is stored counts as on, but "False".
bool is_on_here(const Store& settings, const Toggle& toggle) {
    return settings.find(toggle.key.section, toggle.key.name).value_or(Text(off)) != off;
}

Text tip() {
    Text text = u"Right click to see Administrator options. Ornavel " + Text(version) + u" running.";
    if (text.size() > longest_tip) text.resize(longest_tip);
    return text;
}

} // namespace

frmSysTray::frmSysTray(Needs needs)
    : needs_(std::move(needs)), form_({.name = u"frmSysTray", .visible = false}, designed_controls()) {
    form_.on_load = [this] { Form_Load(); };
    form_.on_unload = [this] { Form_Unload(); };
    form_.on(u"mnClose", Event::click, [this] { form_.unload(); });
    form_.on(u"mnAbout", Event::click, [this] { show_about(needs_.windows); });
    form_.on(u"mnSite", Event::click, [this] { mnSite_Click(); });
    form_.on(u"mnSystemInfo", Event::click, [this] { mnSystemInfo_Click(); });
    form_.on(u"mnOptions", Event::click, [this] { mnOptions_Click(); });
    form_.on(u"mnHide", Event::click, [this] { mnHide_Click(); });
    form_.on(u"mnSignature", Event::click, [this] { mnSignature_Click(); });
    form_.on(u"mnTemplate", Event::click, [this] { mnTemplate_Click(); });
    form_.on(u"mnSupport", Event::click, [this] { mnSupport_Click(); });
    for (std::size_t i = 0; i < std::size(toggles); ++i)
        form_.on(toggles[i].name, Event::click, [this, i] { flip(i); });
}

void frmSysTray::Form_Load() {
    load_captions(form_, needs_.strings);
    for (const Entry& entry : first_entries)
        form_[entry.name].caption = with_access_key(form_[entry.name].caption, entry.access_key);
    needs_.tray.show(tip(), [this](int message) { Picture1_MouseMove(message); });
}

void frmSysTray::Form_Unload() { needs_.tray.hide(); }

void frmSysTray::Picture1_MouseMove(int message) noexcept {
    if (message != right_button_released || open_) return;
    std::shared_ptr<void> kept;
    trap(needs_.errors, tray_trap, [&] {
        if (needs_.keep) kept = needs_.keep();
        const Flag open(open_);
        pop_up();
    });
}

void frmSysTray::pop_up() {
    for (const Toggle& toggle : toggles) form_[toggle.name].ticked = is_on_here(needs_.settings, toggle);
    std::vector<MenuEntry> entries;
    for (const Control& entry : form_.controls()) entries.push_back({entry.caption, entry.ticked});
    const auto chosen = needs_.tray.pop_up(entries);
    // The mail client may have ended meanwhile.
    if (chosen && form_.is_loaded()) form_.fire(form_.controls()[*chosen].name, Event::click);
}

void frmSysTray::mnSite_Click() { needs_.launcher.launch(site, {}, WindowState::normal); }

/// What the mail client or the machine doesn't tell is left out.
void frmSysTray::mnSystemInfo_Click() {
    Text outlook;
    attempt([&] { outlook = needs_.application.version(); });
    Text text = u"Outlook Version: " + outlook + Text(line_end) + u"Ornavel Version: " + Text(version);
    attempt([&] {
        for (const Text& line : diagnostics::system_lines(needs_.machine)) text += Text(line_end) + line;
    });
    needs_.windows.inform(u"System Info", text);
}

void frmSysTray::mnOptions_Click() {
    needs_.launcher.launch(needs_.addin_folder + u"\\OptionsAssistant.exe", {}, WindowState::normal);
}

void frmSysTray::mnHide_Click() {
    save(needs_.settings, admin::SysTray, off);
    needs_.windows.inform(u"Admin Control Off", u"This will take effect in the next Outlook Session");
}

void frmSysTray::flip(std::size_t number) {
    const Toggle& toggle = toggles[number];
    const bool was_on = is_on_here(needs_.settings, toggle);
    const TextView question = was_on ? toggle.question_when_on : toggle.question_when_off;
    if (!needs_.windows.ask(toggle.title, question)) return;
    save(needs_.settings, toggle.key, was_on ? off : on);
    if (was_on || &toggle.key != &admin::WipeOutFileCompare) return;
    needs_.windows.inform(u"Admin File Compare",
                          u"Check the " + needs_.addin_folder +
                              u" directory for files beforetext.txt and aftertext.txt");
}

void frmSysTray::mnSignature_Click() {
    const auto name = ask_for_text(needs_.windows, u"Signature File Name",
                                   u"What is the name of the default signature file?",
                                   read(needs_.settings, user::Signature, u"none"));
    if (name) save(needs_.settings, user::Signature, name->empty() ? TextView(u"none") : TextView(*name));
}

void frmSysTray::mnTemplate_Click() {
    const auto name =
        ask_for_text(needs_.windows, u"Template File Name", u"What is the name of the default template file?",
                     read(needs_.settings, user::Template, u""));
    if (name && !name->empty()) save(needs_.settings, user::Template, *name);
}

void frmSysTray::mnSupport_Click() {
    const auto note = ask_for_text(needs_.windows, u"Notify Brevant by Email",
                                   u"Add a note to describe your problem briefly", {});
    if (!note) return;
    needs_.errors.take(u"Notified by user- " + *note, support_request);
    needs_.windows.inform(u"Brevant support request",
                          u"An email message has been sent to Brevant support." + Text(line_end) +
                              u"Brevant support will contact you as soon as possible.");
}

std::optional<Text> tray_caption(TextView key) {
    const auto caption = [](TextView of_menu) { return readable_caption(menu({}, of_menu)); };
    for (const Toggle& toggle : toggles)
        if (same_name(toggle.key.name, key)) return caption(toggle.caption);
    if (same_name(key, user::Signature.name)) return caption(last_entries[0].caption);
    if (same_name(key, user::Template.name)) return caption(last_entries[1].caption);
    if (key == u"Support") return caption(last_entries[2].caption);
    return {};
}

} // namespace ornavel::forms
