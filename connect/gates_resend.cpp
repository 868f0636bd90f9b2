#include "connect/gates.h"

#include "host/stamps.h"

namespace ornavel::connect {
namespace {

using namespace settings;

bool lies_in(const Send& send, TextView folder) { return upper_case(send.item().parent().name()) == folder; }

/// The system check is read at the line: these gates stand in front of the one that reads it for the send.
Verdict resent(Send& send, TextView trace_line) {
    record(send.session, trace_line, u"", u"");
    const bool dressed_before = send.item().billing_information() == host::stamps::dressed;
    return dressed_before ? tag_and_leave(send) : Verdict::next;
}

} // namespace

Verdict resend_from_outbox(Send& send) {
    if (!is_on(send.settings(), admin::SuppressResendsOutbox)) return Verdict::off;
    if (lies_in(send, u"OUTBOX")) return resent(send, u"Resend from the Outbox, Ol_ItemSend");
    // Drafts belong to the test of the Outbox, because the wrapper's own save moves an item there.
    if (lies_in(send, u"DRAFTS")) return resent(send, u"Resend from drafts (redemption), Ol_ItemSend");
    return Verdict::next;
}

Verdict resend_from_sent_items(Send& send) {
    if (!is_on(send.settings(), admin::SuppressResendsSentItems)) return Verdict::off;
    return lies_in(send, u"SENT ITEMS") ? resent(send, u"Resend from the Sent Items, Ol_ItemSend")
                                        : Verdict::next;
}

} // namespace ornavel::connect
