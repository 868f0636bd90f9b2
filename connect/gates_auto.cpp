#include "connect/gates.h"
#include "connect/toolbar.h"

namespace ornavel::connect {
namespace {

using namespace settings;

/// A send without the defaults that auto mode needs goes back to the user, and later sends are left alone.
Verdict refuse_without_default(Send& send) {
    send.cancel = true;
    set_mode(send.session, u"on");
    return Verdict::leave;
}

} // namespace

Verdict default_template(Send& send) {
    const Text name = read(send.settings(), user::Template);
    return contains(name, u".htm") ? Verdict::next : refuse_without_default(send);
}

Verdict default_signature(Send& send) {
    const Text name = read(send.settings(), user::Signature);
    return contains(name, u".htm") || contains(name, u"none") ? Verdict::next : refuse_without_default(send);
}

Verdict compose_body(Send& send) {
    const host::MailItem& item = send.item();
    if (item.inspector().editor_type() == host::plain_text_editor) return Verdict::leave;
    Text body = item.html_body();
    if (body.empty()) return Verdict::leave;

    Session& session = send.session;
    session.processed = true;
    session.shared.signature_from_settings = true;
    Text template_path =
        read(send.settings(), admin::HTMFilesPath) + u"\\" + trim(read(send.settings(), user::Template));
    const Platform& platform = session.platform;
    item.set_html_body(compose::CreateHTMLBody({platform.settings, platform.files, platform.clock,
                                                platform.windows, platform.objects, session.errors},
                                               session.shared, body, template_path));
    return Verdict::next;
}

Verdict stamp(Send& send) {
    send.cancel = !send.session.processed;
    if (!send.session.processed) return Verdict::leave;
    send.item().set_billing_information(u"Ornavel from Brevant");
    send.item().user_properties().add(u"BrevantOrnavel").set_value(u"Version 3.9.9");
    tag_for_Exclaimer(send);
    send.item().save();
    return Verdict::next;
}

} // namespace ornavel::connect
