#include "connect/gates.h"

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

Verdict entry_mode(Send& send) {
    const Text mode = read(send.settings(), user::SettingButtonBar, u"");
    return mode == u"auto" ? Verdict::next : tag_and_leave(send);
}

Verdict already_tagged(Send& send) {
    return send.item().user_properties().count() > 0 ? tag_and_leave(send) : Verdict::next;
}

Verdict wrap_item(Send& send) {
    if (!is_on(send.settings(), admin::UseRedemption)) return Verdict::next;
    const auto wrapped = host::SafeMailItem::around(send.session.platform.objects, send.sent);
    wrapped.save();
    send.session.shared.item = wrapped;
    return Verdict::next;
}

Verdict message_class(Send& send) {
    return upper_case(send.item().message_class()) == u"IPM.NOTE" ? Verdict::next : Verdict::leave;
}

Verdict system_check_switch(Send& send) {
    send.system_check = is_on(send.settings(), system::SystemCheck);
    return Verdict::next;
}

Verdict copy_subject(Send& send) {
    send.subject = send.item().subject();
    return Verdict::next;
}

Verdict mode_off(Send& send) {
    return read(send.settings(), user::SettingButtonBar, u"on") == u"off" ? Verdict::leave : Verdict::next;
}

} // namespace ornavel::connect
