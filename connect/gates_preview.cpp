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
    form[u"cmdSendPlain"].visible = is_on(store, admin::ShowAutoSendPlain);
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
    const bool plain_text = send.kind() == host::plain_text_editor;
    forms::frmBrowser preview(
        {session.platform.settings, session.platform.files, session.platform.windows, session.errors,
         session.platform.launcher, send.item(), session.platform.addin_folder},
        send.preview, preview_page(session), [&](TextView boilerplate) {
            return composed_body(send, plain_text, boilerplate, compose::Purpose::preview);
        });
    Form& form = preview.form();
    form.load();
    show_what_settings_allow(send.settings(), form);
    preview.show_allowed_buttons();
    preview.show_attachments();
    preview.take_saved_place();
    if (plain_text) show_plain_text(form);
    preview.render();
    session.platform.windows.show_modal(form);
    session.sent_to_many |= send.preview.sent_to_many;
    if (send.preview.send) return Verdict::next;
    send.cancel = true;
    return Verdict::leave;
}

} // namespace ornavel::connect
