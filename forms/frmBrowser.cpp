#include "forms/frmBrowser.h"

#include "forms/flow.h"
#include "forms/measures.h"

#include <algorithm>

namespace ornavel::forms {
namespace {

using namespace settings;

constexpr TextView options_folded = u"> &Options", options_shown = u"< &Options";

/// Only these stay when the options are folded away.
constexpr TextView options[] = {u"lblTemplates", u"cboTemplates", u"lblSignatures", u"cboSignatures"};

/// What stands above the page, in its order.
constexpr Group groups[] = {
    {u"command1"},
    {u"cmdSendPlain"},
    {u"cmdClose"},
    {u"cmdNext"},
    {u"cmdSignNext"},
    {u"cmdOptions"},
    {u"chkvCard"},
    {u"chkShowPreview"},
    {u"cboTemplates", u"lblTemplates", true},
    {u"cboSignatures", u"lblSignatures"},
    {u"txtAttachments", u"lblAttachments"},
};

// The page stays large enough to read in; the size grip stands below it.
constexpr Size least_page{4500, 2250};
constexpr int grip_height = 255;

Control designed(Kind kind, TextView name, int width, int height, TextView caption = {}) {
    return {.kind = kind, .name = Text(name), .place = {0, 0, width, height}, .caption = Text(caption)};
}

Control button(TextView name, int width, TextView caption, TextView tool_tip = {}) {
    Control control = designed(Kind::command_button, name, width, button_size.height, caption);
    control.tool_tip = tool_tip;
    return control;
}

Control label(TextView name, int width, TextView caption) {
    return designed(Kind::label, name, width, label_height, caption);
}

Control check_box(TextView name, int width, TextView caption) {
    return designed(Kind::check_box, name, width, check_height, caption);
}

Control list(TextView name) { return designed(Kind::combo_box, name, 2100, box_height); }

Control hidden(Control control) {
    control.visible = false;
    return control;
}

std::vector<Control> designed_controls() {
    Control send = button(u"command1", button_size.width, u"&Send");
    send.is_default = true;
    Control close = button(u"cmdClose", button_size.width, u"&Close");
    close.is_cancel = true;
    return {
        std::move(send),
        button(u"cmdSendPlain", 1350, u"Send &Plain"),
        std::move(close),
        button(u"cmdNext", 1350, u"> &Template", u"Next template"),
        button(u"cmdSignNext", 1350, u"> S&ignature", u"Next signature"),
        button(u"cmdOptions", 1245, options_folded),
        check_box(u"chkvCard", 900, u"&vCard"),
        check_box(u"chkShowPreview", 2400, u"&do not show Preview"),
        hidden(label(u"lblTemplates", 780, u"Te&mplate")),
        hidden(list(u"cboTemplates")),
        hidden(list(u"cboListTemplates")),
        hidden(label(u"lblSignatures", 840, u"Si&gnature")),
        hidden(list(u"cboSignatures")),
        hidden(list(u"cboPrevSigs")),
        hidden(label(u"lblAttachments", 1080, u"Attachments")),
        hidden(designed(Kind::text_box, u"txtAttachments", 2400, box_height)),
        designed(Kind::web_browser, u"brwWebBrowser", 0, 0),
    };
}

/// A file's name as the user chooses it: what stands before the first ".htm".
Text display_name(TextView file) { return Text(file.substr(0, file.find(u".htm"))); }

bool is_choice(TextView file) {
    const Text name = lower_case(file);
    return name.ends_with(u".htm") && !name.ends_with(u"_merge.htm");
}

} // namespace

const frmBrowser::Choice frmBrowser::templates{u"cboTemplates", u"cboListTemplates", admin::HTMFilesPath,
                                               user::Template};
const frmBrowser::Choice frmBrowser::signatures{u"cboSignatures", u"cboPrevSigs", admin::SignaturesPath,
                                                user::Signature};

frmBrowser::frmBrowser(Needs needs, PreviewAnswers& answers, Text page, std::function<Text()> compose)
    : needs_(needs), answers_(answers), page_(std::move(page)), compose_(std::move(compose)),
      form_({.name = u"frmBrowser", .place = {2595, 990, 10170, 6000}, .caption = u"Ornavel Preview"},
            designed_controls()) {
    form_.sizable = true;
    form_.topmost = true; // the message may be open in another program, Word
    form_.centred = false;
    form_.on_load = [this] { Form_Load(); };
    form_.on_resize = [this] { Form_Resize(); };
    form_.on_unload = [this] { Form_Unload(); };
    form_.on(u"command1", Event::click, [this] { command1_Click(); });
    form_.on(u"cmdSendPlain", Event::click, [this] { cmdSendPlain_Click(); });
    form_.on(u"cmdClose", Event::click, [this] { form_.unload(); });
    form_.on(u"cmdOptions", Event::click, [this] { cmdOptions_Click(); });
    form_.on(u"cmdNext", Event::click, [this] { take_next(templates); });
    form_.on(u"cmdSignNext", Event::click, [this] { take_next(signatures); });
    on_choice(templates);
    on_choice(signatures);
}

void frmBrowser::on_choice(const Choice& choice) {
    form_.on(choice.shown, Event::drop_down, [this, &choice] { fill(choice); });
    form_.on(choice.shown, Event::click, [this, &choice] { take_entry(choice); });
    form_.on(choice.shown, Event::change, [this, &choice] { take_entry(choice); });
}

void frmBrowser::render() {
    trap(needs_.errors, preview_trap, [&] {
        needs_.files.write(page_, encode_html(compose_()));
        form_[u"brwWebBrowser"].visit(page_);
    });
}

void frmBrowser::Form_Load() {
    answers_.send = false;
    if (is_on(needs_.settings, admin::PreviewOptionsShow)) show_options(true);
    arrange();
}

void frmBrowser::arrange() { form_.take_place(form_.properties.place); }

void frmBrowser::Form_Resize() {
    const Size room = form_.room();
    const int top = flow(form_, groups) + control_gap;
    form_.least_room = {std::max(least_page.width, widest(form_, groups)),
                        top + least_page.height + grip_height};
    form_[u"brwWebBrowser"].place = {window_margin, top, std::max(0, room.width - 2 * window_margin),
                                     std::max(0, room.height - top - grip_height)};
}

void frmBrowser::Form_Unload() {
    const Place& window = form_.properties.place;
    save(needs_.settings, user::BrowserTop, to_text(window.top));
    save(needs_.settings, user::BrowserLeft, to_text(window.left));
    save(needs_.settings, user::BrowserHeight, to_text(window.height));
    save(needs_.settings, user::BrowserWidth, to_text(window.width));
    if (!form_[u"chkShowPreview"].ticked) return;
    save(needs_.settings, admin::AutoPreview, off);
    // What the user chose stands, also where they can't be told.
    attempt([this] {
        needs_.windows.inform(u"Preview feature set off",
                              u"Previewing your messages has been set off.\r\n"
                              u"You can set Preview back 'on' in the setup wizard.");
    });
}

void frmBrowser::command1_Click() {
    answers_.send = true;
    answers_.vcard_chosen = form_[u"chkvCard"].ticked;
    form_.unload();
}

void frmBrowser::cmdSendPlain_Click() {
    answers_.send = true;
    answers_.send_plain = true;
    form_.unload();
}

void frmBrowser::cmdOptions_Click() {
    const bool shown = form_[u"cmdOptions"].caption == options_folded;
    save(needs_.settings, admin::PreviewOptionsShow, shown ? on : off);
    show_options(shown);
    arrange();
}

void frmBrowser::show_options(bool shown) {
    form_[u"cmdOptions"].caption = shown ? options_shown : options_folded;
    for (const TextView control : options) form_[control].visible = shown;
    for (const Choice& choice : {templates, signatures})
        form_[choice.shown].choose(display_name(read(needs_.settings, choice.chosen)));
}

/// On the first use only: the user's own list is not built again under their hand.
void frmBrowser::fill(const Choice& choice) {
    Control& shown = form_[choice.shown];
    Control& files = form_[choice.files];
    if (!files.items.empty()) return;
    for (const Text& file : needs_.files.list(read(needs_.settings, choice.folder))) {
        if (!is_choice(file)) continue;
        files.items.push_back(file);
        shown.items.push_back(display_name(file));
    }
    shown.choose(Text(shown.text));
}

/// Typed words name a file as the entries do.
void frmBrowser::take_entry(const Choice& choice) {
    const Control& shown = form_[choice.shown];
    const Control& files = form_[choice.files];
    save(needs_.settings, choice.chosen,
         shown.index < 0 ? shown.text + u".htm" : files.items[static_cast<std::size_t>(shown.index)]);
    render();
}

/// After the last entry comes the first, and so it does after a name that the list does not have.
void frmBrowser::take_next(const Choice& choice) {
    fill(choice);
    const auto& files = form_[choice.files].items;
    if (files.empty()) return;
    const Text current = trim(read(needs_.settings, choice.chosen));
    auto entry = std::ranges::find_if(files, [&](const Text& file) { return same_name(file, current); });
    if (entry != files.end()) ++entry;
    if (entry == files.end()) entry = files.begin();
    form_[choice.shown].select(static_cast<int>(entry - files.begin()));
    take_entry(choice);
}

} // namespace ornavel::forms
