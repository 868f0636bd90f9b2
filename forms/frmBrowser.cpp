#include "forms/frmBrowser.h"

#include "forms/frmBrowser_design.h"
#include "forms/measures.h"

#include <algorithm>

namespace ornavel::forms {

using namespace settings;
using namespace preview_design;

frmBrowser::frmBrowser(Needs needs, PreviewAnswers& answers, Text page, Compose compose)
    : needs_(std::move(needs)), answers_(answers), page_(std::move(page)), compose_(std::move(compose)),
      form_({.name = u"frmBrowser", .place = {2595, 990, 10170, 6000}, .caption = u"Ornavel Preview"},
            controls()) {
    form_.sizable = true;
    form_.topmost = true; // the message may be open in another program, Word
    form_.centred = false;
    form_.on_load = [this] { Form_Load(); };
    form_.on_resize = [this] { Form_Resize(); };
    form_.on_unload = [this] { Form_Unload(); };
    wire();
}

void frmBrowser::wire() {
    form_.on(u"command1", Event::click, [this] { command1_Click(); });
    form_.on(u"cmdSendPlain", Event::click, [this] { cmdSendPlain_Click(); });
    form_.on(u"cmdSendToMany", Event::click, [this] { cmdSendToMany_Click(); });
    form_.on(u"cmdClose", Event::click, [this] { form_.unload(); });
    form_.on(u"cmdOptions", Event::click, [this] { cmdOptions_Click(); });
    form_.on(u"cmdHelp", Event::click, [this] { show_help(needs_); });
    form_.on(u"cmdNext", Event::click, [this] { take_next(templates); });
    form_.on(u"cmdSignNext", Event::click, [this] { take_next(signatures); });
    form_.on(u"cboSig", Event::click, [this] { cboSig_Click(); });
    form_.on(u"cboBGColourName", Event::click, [this] { cboBGColourName_Click(); });
    form_.on(u"cboBplates", Event::click, [this] { cboBplates_Click(); });
    form_.on(u"cboBplates", Event::change, [this] { cboBplates_Click(); });
    on_choice(templates);
    on_choice(signatures);
}

void frmBrowser::render() {
    const compose::Composed composed = compose_(boilerplate_);
    if (composed.outcome != compose::Outcome::failed) show(composed.html);
}

void frmBrowser::show(const Text& message) {
    trap(needs_.errors, preview_trap, [&] {
        needs_.files.write(page_, encode_html(message));
        form_[u"brwWebBrowser"].visit(page_);
    });
}

void frmBrowser::render_anew() {
    answers_.selected = true;
    render();
}

void frmBrowser::Form_Load() {
    answers_.send = false;
    list_colours();
    form_[u"lblPastedImages"].visible = !is_off(needs_.settings, admin::BrowserWarnPastedImages);
    list_boilerplates();
    list_profiles();
    if (is_on(needs_.settings, admin::PreviewOptionsShow)) show_options(true);
    form_[u"cmdSendToMany"].visible = !is_off(needs_.settings, admin::ShowSendToMany);
    form_[u"cmdHelp"].visible = !read(needs_.settings, admin::Help).empty();
    arrange();
}

void frmBrowser::show_allowed_buttons() {
    const bool select = is_on(needs_.settings, admin::ShowPreviewSelectButton);
    form_[u"cmdNext"].visible = select;
    form_[u"cmdSignNext"].visible = select;
    form_[u"cmdOptions"].visible = is_on(needs_.settings, admin::ShowPreviewOptionsButton);
}

void frmBrowser::show_attachments() {
    const host::Attachments attachments = needs_.item.attachments();
    const int count = attachments.count();
    if (count == 0) return;
    Control& names = form_[u"txtAttachments"];
    for (int index = 1; index <= count; ++index)
        names.text += (index == 1 ? u"" : u"; ") + attachments.item(index).file_name();
    names.tool_tip = names.text;
    names.visible = form_[u"lblAttachments"].visible = true;
    names.enabled = false;
}

void frmBrowser::take_saved_place() {
    const auto twips = [&](const NumberKey& key) { return read_coordinate(needs_.settings, key); };
    form_.take_place({twips(user::BrowserLeft), twips(user::BrowserTop), twips(user::BrowserWidth),
                      twips(user::BrowserHeight)});
}

void frmBrowser::arrange() { form_.take_place(form_.properties.place); }

void frmBrowser::Form_Resize() {
    const Size room = form_.room();
    const int top = flow(form_, groups()) + control_gap;
    form_.least_room = {std::max(least_page.width, widest(form_, groups())),
                        top + least_page.height + grip_height};
    form_[u"brwWebBrowser"].place = {window_margin, top, std::max(0, room.width - 2 * window_margin),
                                     std::max(0, room.height - top - grip_height)};
}

void frmBrowser::Form_Unload() {
    const Bounds& window = form_.properties.place;
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
    answers_.boilerplate = boilerplate_;
    form_.unload();
}

void frmBrowser::cmdSendPlain_Click() {
    answers_.send = true;
    answers_.send_plain = true;
    form_.unload();
}

/// The other program finds the message in the page's file.
void frmBrowser::cmdSendToMany_Click() {
    trap(needs_.errors, send_to_many_trap, [&] {
        save(needs_.settings, admin::SendToManySubject, needs_.item.subject());
        read_text(needs_.files, page_); // a page that can't be read is of no use there
        needs_.launcher.launch(needs_.program_folder + u"\\MassMailer.exe", {}, WindowState::normal);
        answers_.sent_to_many = true;
    });
    form_.unload();
}

} // namespace ornavel::forms
