#include "connect/gates.h"
#include "connect/send_pipeline.h"

#include "compose/signatures.h"

#include <algorithm>

namespace ornavel::connect {
namespace {

using namespace settings;

template <typename Visit>
void walk_recipients(const Send& send, Visit stays) {
    const host::Recipients recipients = send.item().recipients();
    const int count = recipients.count();
    for (int index = 1; index <= count; ++index)
        if (!stays(recipients.item(index).address())) return;
}

/// Without the wrapper the walk only clears the flag that an earlier send left. If it set the flag, messages
/// would leave undressed where they are dressed today: in companies with SkipInternal on and no wrapper.
void walk_unwrapped(Send& send) {
    bool& internal = send.session.internal;
    walk_recipients(send, [&](const Text& address) {
        if (!trim(address).empty() && !contains(address, u"@")) return true;
        internal = false;
        return false;
    });
}

bool matches_a_fragment(Send& send, const Text& address, const Text& fragments) {
    trace(send, u"more one value in the skip value");
    return std::ranges::any_of(split(fragments, u";"), [&](const Text& fragment) {
        if (fragment.empty()) return false;
        trace(send, fragment + u" is the found value in the array", address);
        return contains(address, fragment);
    });
}

/// One address against the internal domain. Gives back whether the walk goes on: with several fragments it
/// always does, so the last recipient decides.
bool judge_by_domain(Send& send, const Text& address) {
    bool& internal = send.session.internal;
    internal = true;
    trace(send, u"MyInternal is true - step 1");
    const Text domain = read(send.settings(), system::ExchangeDomain);
    trace(send, domain + u" - the skip value");
    if (contains(domain, u";")) {
        internal = matches_a_fragment(send, address, domain);
        return true;
    }
    internal = !domain.empty() && contains(address, domain);
    if (!internal) trace(send, u"only one value in the skip value");
    return internal;
}

void walk_wrapped(Send& send) {
    bool& internal = send.session.internal;
    internal = false;
    walk_recipients(send, [&](const Text& address) {
        if (!is_on(send.settings(), admin::ExchangeUser)) return judge_by_domain(send, address);
        internal = !contains(address, u"@");
        return internal;
    });
}

Verdict sign_and_leave(Send& send, int kind) {
    send.cancel = false;
    compose::add_internal_signature(send.settings(), send.item(), kind, send.reply.marker);
    send.item().save();
    return tag_and_leave(send);
}

} // namespace

Verdict internal_mail(Send& send) {
    if (!is_ticked(send.settings(), admin::SkipInternal)) return Verdict::next;
    const int kind = send.kind();
    if (kind == host::rich_text_editor) return Verdict::leave;

    const bool wrapped = is_on(send.settings(), admin::UseRedemption);
    wrapped ? walk_wrapped(send) : walk_unwrapped(send);
    if (is_on(send.settings(), admin::TestSkipInternal)) send.session.internal = true;
    if (wrapped) {
        if (reply_test(send) == Verdict::leave) return Verdict::leave;
        record_gate(send, reply_was_tested);
    }
    return send.session.internal ? sign_and_leave(send, kind) : Verdict::next;
}

} // namespace ornavel::connect
