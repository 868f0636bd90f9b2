#include "connect/gates.h"
#include "connect/plain_text.h"

namespace ornavel::connect {
namespace {

using namespace settings;

void attach_vcard(Send& send) {
    if (!send.preview.vcard_chosen) return;
    const Text path = split(read(send.settings(), user::vCardPath), u";").front();
    if (!path.empty()) send.item().attachments().add(path);
}

Text composed_from(Send& send, Text source) {
    const Platform& platform = send.session.platform;
    Text template_path =
        read(send.settings(), admin::HTMFilesPath) + u"\\" + trim(read(send.settings(), user::Template));
    send.session.shared.signature_from_settings = true;
    return compose::CreateHTMLBody({platform.settings, platform.files, platform.clock, platform.windows,
                                    platform.objects, send.session.errors, send.session.host.oHostApp},
                                   send.session.shared, source, template_path);
}

/// Dresses the item. Gives back False when the user refused the template; the item's body then stands as it
/// was.
bool dress(Send& send) {
    const host::MailItem& item = send.item();
    const bool plain_text = item.inspector().editor_type() == host::plain_text_editor;
    const Text body = composed_body(send, plain_text);
    if (send.session.shared.template_refused) return false;
    item.set_html_body(body);
    if (plain_text) item.save();
    return true;
}

} // namespace

Text composed_body(Send& send, bool plain_text) {
    const host::MailItem& item = send.item();
    if (plain_text) return plain_text_as_html(send.session, item.body());
    const Text html = item.html_body();
    return composed_from(send, html.empty() ? item.body() : html);
}

Verdict compose_body(Send& send) {
    send.session.processed = true;
    if (send.preview.send_plain) return Verdict::off;
    record_gate(send, u"Auto Preview Send Plain check OK");
    attach_vcard(send);
    if (dress(send)) return Verdict::next;
    send.cancel = true;
    return Verdict::leave;
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
