#pragma once

#include "connect/item_body.h"
#include "connect/session.h"
#include "host/versions.h"

namespace ornavel::connect {

/// What lives for one send.
struct Send {
    Session& session;
    host::MailItem sent; ///< the item as the mail client handed it over, never wrapped
    bool& cancel;
    bool system_check = false;
    int check_number = 1;
    Text subject = {};
    // Each send has its own: one may be raised while another waits for the user.
    ItemBody html = {};
    compose::Reply reply = {};
    forms::PreviewAnswers preview = {};

    /// The item being sent, or its wrapper.
    const host::MailItem& item() const { return session.host.MyMessItem; }
    /// What kind of message it is; see host/versions.h.
    int kind() const { return host::kind_of(item(), session.host.oHostApp); }
    settings::Store& settings() const { return session.platform.settings; }
};

// gates_entry.cpp: what all gates share, and the short ones.

/// Appends the rule of the outside signature product to the subject and saves, while the setting
/// "UseExclaimer" is on.
void tag_for_Exclaimer(Send& send);
Verdict tag_and_leave(Send& send);

/// A gate's record, numbered; written only while the system check is on.
void record_gate(Send& send, TextView label);
/// A line that follows the send's progress; written only while the system check is on.
void trace(Send& send, TextView text, TextView detail = {});

Verdict entry_mode(Send& send);
Verdict already_stamped(Send& send);
Verdict wrap_item(Send& send);
Verdict message_class(Send& send);
Verdict system_check_switch(Send& send);
Verdict next_quote(Send& send);
Verdict copy_subject(Send& send);
Verdict clear_answers(Send& send);
Verdict send_as_is(Send& send);
Verdict mode_off(Send& send);
Verdict preview_stamp(Send& send);
Verdict preview_send_stamp(Send& send);

// gates_resend.cpp
Verdict resend_from_outbox(Send& send);
Verdict resend_from_sent_items(Send& send);

// gates_stationery.cpp: the mail client's own stationery.
Verdict personal_stationery(Send& send);

// gates_reply.cpp
Verdict load_reply_marker(Send& send);
Verdict reply_test(Send& send);

// gates_internal.cpp
Verdict internal_mail(Send& send);

// gates_auto.cpp: the defaults that the mode "auto" needs.
Verdict non_auto_branch(Send& send);
Verdict default_template(Send& send);
Verdict default_signature(Send& send);

// gates_preview.cpp
Verdict auto_preview(Send& send);

// gates_compose.cpp: composition and stamping.

/// The body that the item goes out with, the boilerplate of this name in front. The item itself is not
/// changed.
compose::Composed composed_body(Send& send, bool plain_text, TextView boilerplate, compose::Purpose purpose);
Verdict compose_body(Send& send);
Verdict stamp(Send& send);

} // namespace ornavel::connect
