#include "connect/gates.h"
#include "connect/send_pipeline.h"

#include "compose/insertions.h"
#include "compose/plain_text.h"
#include "host/stamps.h"

namespace ornavel::connect {
namespace {

using namespace settings;

void attach_vcard(Send& send) {
    if (!send.preview.vcard_chosen) return;
    const Text path = split(read(send.settings(), user::vCardPath), u";").front();
    if (!path.empty()) send.item().attachments().add(path);
}

compose::Composed composed_from(Send& send, Text source, compose::Purpose purpose) {
    Text template_path =
        read(send.settings(), admin::HTMFilesPath) + u"\\" + trim(read(send.settings(), user::Template));
    return compose::CreateHTMLBody(send.session.composing, {.item = send.item(),
                                                            .source = std::move(source),
                                                            .template_path = std::move(template_path),
                                                            .reply = send.reply,
                                                            .purpose = purpose});
}

/// Dresses the item; one whose message is not composed keeps its body.
compose::Outcome dress(Send& send) {
    const host::MailItem& item = send.item();
    const bool plain_text = send.kind() == host::plain_text_editor;
    auto [outcome, html] = composed_body(send, plain_text, send.preview.boilerplate, compose::Purpose::send);
    if (outcome != compose::Outcome::composed) return outcome;
    item.set_html_body(std::move(html));
    if (plain_text) item.save();
    return outcome;
}

} // namespace

compose::Composed composed_body(Send& send, bool plain_text, TextView boilerplate, compose::Purpose purpose) {
    using compose::Outcome;
    const host::MailItem& item = send.item();
    Text front = compose::boilerplate_text(send.settings(), send.session.platform.files, boilerplate,
                                           send.session.errors);
    if (plain_text)
        return {Outcome::composed,
                std::move(front) +
                    compose::plain_text_as_html(send.session.composing, item.body(), send.reply.marker)};
    Text html = send.html.take(item);
    return composed_from(send, std::move(front) + (html.empty() ? item.body() : std::move(html)), purpose);
}

Verdict compose_body(Send& send) {
    send.session.processed = true;
    if (send.preview.send_plain) return Verdict::off;
    record_gate(send, composition_began);
    attach_vcard(send);
    const compose::Outcome outcome = dress(send);
    if (outcome == compose::Outcome::composed) return Verdict::next;
    // A refusal holds the message back; a failure never does.
    if (outcome == compose::Outcome::refused) send.cancel = true;
    return Verdict::leave;
}

Verdict stamp(Send& send) {
    send.cancel = !send.session.processed;
    if (!send.session.processed) return Verdict::leave;
    send.item().set_billing_information(host::stamps::dressed);
    send.item().user_properties().add(host::stamps::property_name).set_value(host::stamps::property_value);
    tag_for_Exclaimer(send);
    send.item().save();
    return Verdict::next;
}

} // namespace ornavel::connect
