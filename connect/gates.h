#pragma once

#include "connect/session.h"

namespace ornavel::connect {

/// What lives for one send.
struct Send {
    Session& session;
    host::MailItem sent; ///< the item as the mail client handed it over, never wrapped
    bool& cancel;
    bool system_check = false;
    int check_number = 1;
    Text subject = {};

    /// The item being sent, or its wrapper.
    const host::MailItem& item() const { return session.shared.item; }
    settings::Store& settings() const { return session.platform.settings; }
};

/// What a gate answers: the next gate is asked, or the send leaves with cancel as it stands.
enum class Verdict { next, leave };

/// Appends the rule of the outside signature product to the subject and saves, while the setting
/// "UseExclaimer" is on.
void tag_for_Exclaimer(Send& send);
Verdict tag_and_leave(Send& send);

Verdict entry_mode(Send& send);
Verdict already_tagged(Send& send);
Verdict wrap_item(Send& send);
Verdict message_class(Send& send);
Verdict system_check_switch(Send& send);
Verdict copy_subject(Send& send);
Verdict mode_off(Send& send);
Verdict default_template(Send& send);
Verdict default_signature(Send& send);
Verdict compose_body(Send& send);
Verdict stamp(Send& send);

} // namespace ornavel::connect
