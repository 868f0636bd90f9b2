#include "connect/gates.h"
#include "connect/scratch_files.h"

namespace ornavel::connect {
namespace {

using namespace settings;
using forms::Control;
using forms::Form;

void show_what_settings_allow(const Store& store, Form& form) {
    Control& vcard = form[u"chkvCard"];
    vcard.visible = !read(store, user::vCard).empty();
    vcard.ticked = vcard.visible && is_on(store, admin::SendvCardAlways);
    const bool select = is_on(store, admin::ShowPreviewSelectButton);
    form[u"cmdNext"].visible = select;
    form[u"cmdSignNext"].visible = select;
    form[u"cmdSendPlain"].visible = is_on(store, admin::ShowAutoSendPlain);
    form[u"cmdOptions"].visible = is_on(store, admin::ShowPreviewOptionsButton);
}

void show_attachments(const host::Attachments& attachments, Form& form) {
    const int count = attachments.count();
    if (count == 0) return;
    Control& names = form[u"txtAttachments"];
    for (int index = 1; index <= count; ++index)
        names.text += (index == 1 ? u"" : u"; ") + attachments.item(index).file_name();
    names.tool_tip = names.text;
    names.visible = form[u"lblAttachments"].visible = true;
    names.enabled = false;
}

void place_window(const Store& store, Form& form) {
    const auto twips = [&](const NumberKey& key) { return read_coordinate(store, key); };
    form.take_place({twips(user::BrowserLeft), twips(user::BrowserTop), twips(user::BrowserWidth),
                     twips(user::BrowserHeight)});
}

/// Plain text takes neither a template nor a signature file.
void show_plain_text(Form& form) {
    form.properties.caption += u"- Plain Text formatted email";
    for (const TextView control : {u"cboTemplates", u"cboSignatures", u"cmdNext", u"cmdSignNext"})
        form[control].enabled = false;
}

} // namespace

Verdict auto_preview(Send& send) {
    if (!is_on(send.settings(), admin::AutoPreview)) return Verdict::next;
    Session& session = send.session;
    const bool plain_text = send.item().inspector().editor_type() == host::plain_text_editor;
    forms::frmBrowser preview(
        {session.platform.settings, session.platform.files, session.platform.windows, session.errors},
        send.preview, preview_page(session),
        [&] { return composed_body(send, plain_text, compose::Purpose::preview).html; });
    Form& form = preview.form();
    form.load();
    show_what_settings_allow(send.settings(), form);
    show_attachments(send.item().attachments(), form);
    place_window(send.settings(), form);
    if (plain_text) show_plain_text(form);
    preview.render();
    session.platform.windows.show_modal(form);
    if (send.preview.send) return Verdict::next;
    send.cancel = true;
    return Verdict::leave;
}

} // namespace ornavel::connect
