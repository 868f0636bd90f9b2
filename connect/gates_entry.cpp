#include "connect/gates.h"

#include "compose/insertions.h"
#include "host/stamps.h"
#include "settings/modes.h"

namespace ornavel::connect {

using namespace settings;

void tag_for_Exclaimer(Send& send) {
    if (!is_on(send.settings(), admin::UseExclaimer)) return;
    send.item().set_subject(send.item().subject() + read(send.settings(), admin::ExclaimerRule));
    send.item().save();
}

Verdict tag_and_leave(Send& send) {
    tag_for_Exclaimer(send);
    return Verdict::leave;
}

void record_gate(Send& send, TextView label) {
    if (!send.system_check) return;
    send.session.log.SystemCheck(label, u"Check " + to_text(send.check_number++), u"Send Event");
}

void trace(Send& send, TextView text, TextView detail) {
    if (send.system_check) send.session.log.SystemCheck(text, u"", detail);
}

Verdict entry_mode(Send& send) {
    // Until a mode is stored nothing is dressed, although the button begins with "auto".
    const Text mode = read(send.settings(), user::SettingButtonBar, u"");
    return mode == modes::automatic ? Verdict::next : tag_and_leave(send);
}

Verdict already_stamped(Send& send) {
    return send.item().user_properties().count() > 0 ? tag_and_leave(send) : Verdict::next;
}

Verdict wrap_item(Send& send) {
    if (!is_on(send.settings(), admin::UseRedemption)) return Verdict::off;
    const auto wrapped = host::SafeMailItem::around(send.session.platform.objects, send.sent);
    wrapped.save();
    send.session.host.MyMessItem = wrapped;
    return Verdict::next;
}

Verdict message_class(Send& send) {
    return upper_case(send.item().message_class()) == u"IPM.NOTE" ? Verdict::next : Verdict::leave;
}

Verdict system_check_switch(Send& send) {
    send.system_check = is_on(send.settings(), system::SystemCheck);
    return Verdict::next;
}

Verdict next_quote(Send& send) {
    if (is_on(send.settings(), user::SendQuote))
        compose::GetNextQuote(send.settings(), send.session.platform.files, send.session.errors);
    return Verdict::next;
}

Verdict copy_subject(Send& send) {
    send.subject = send.item().subject();
    return Verdict::next;
}

Verdict clear_answers(Send& send) {
    send.preview = {};
    return Verdict::next;
}

Verdict send_as_is(Send& send) {
    if (!is_on(send.settings(), user::SendAsIs)) return Verdict::next;
    save(send.settings(), user::SendAsIs, off);
    return Verdict::leave;
}

Verdict mode_off(Send& send) {
    // Absent only when it vanished since the entry gate: then the user is asked, as in the mode "on".
    return read(send.settings(), user::SettingButtonBar, modes::on) == modes::off ? Verdict::leave
                                                                                  : Verdict::next;
}

Verdict preview_stamp(Send& send) {
    return send.item().billing_information() == host::stamps::preview ? Verdict::leave : Verdict::next;
}

Verdict preview_send_stamp(Send& send) {
    if (send.item().billing_information() != host::stamps::preview_send) return Verdict::next;
    send.cancel = false;
    return Verdict::leave;
}

} // namespace ornavel::connect
