#include "connect/gates.h"
#include "connect/send_options.h"
#include "connect/send_pipeline.h"
#include "connect/toolbar.h"
#include "settings/modes.h"

namespace ornavel::connect {
namespace {

using namespace settings;

/// A send without the defaults that auto mode needs goes back to the user, and later sends are left alone.
Verdict refuse_without_default(Send& send, TextView prompt_mode) {
    send.session.prompt.ask(prompt_mode);
    send.cancel = true;
    set_mode(send.session, modes::on);
    return Verdict::leave;
}

} // namespace

Verdict non_auto_branch(Send& send) {
    // Absent only when it vanished since the entry gate: then the user is asked, as in the mode "on".
    if (read(send.settings(), user::SettingButtonBar, modes::on) == modes::automatic) return Verdict::off;
    record_gate(send, other_mode_began);
    // The item is the current one already, so a send-options form would find it.
    record_gate(send, u"Ornavel Dialog check OK");
    send.session.host.MyMessItem.release();
    if (send.session.dialog_answer)
        attach_selected_vcard(send.settings(), send.sent, send.preview.vcard_chosen);
    record_gate(send, u"vCard Attach check OK");
    send.cancel = !send.session.dialog_answer;
    return Verdict::leave;
}

Verdict default_template(Send& send) {
    const Text name = read(send.settings(), user::Template);
    return contains(name, u".htm")
               ? Verdict::next
               : refuse_without_default(send, diagnostics::prompt_modes::auto_no_template);
}

Verdict default_signature(Send& send) {
    const Text name = read(send.settings(), user::Signature);
    if (contains(name, u".htm") || contains(name, u"none")) return Verdict::next;
    return refuse_without_default(send, diagnostics::prompt_modes::auto_no_signature);
}

} // namespace ornavel::connect
