#include "connect/send_pipeline.h"

#include "connect/current_item.h"
#include "connect/gates.h"
#include "connect/message_windows.h"
#include "connect/replies.h"
#include "connect/send_options.h"

#include <array>

namespace ornavel::connect {
namespace {

/// The records that a passed gate leaves while the system check is on.
using Records = std::array<TextView, 3>;

struct Gate {
    TextView name;
    Verdict (*decide)(Send&);
    Records passed;
};

constexpr Gate gates[] = {
    {u"entry mode", entry_mode, {}},          // only "auto" passes; everything else is tagged and leaves
    {u"already tagged", already_stamped, {}}, // by an earlier send, or with another user property
    {u"wrapping", wrap_item, {}}, // from here on the current item is the wrapper, where there is one
    {u"message class", message_class, {}},
    {u"resend from the Outbox", resend_from_outbox, {}},
    {u"resend from Sent Items", resend_from_sent_items, {}},
    {u"system check switch", system_check_switch, {pipeline_began}}, // from here on the gates leave records
    {u"message class again", message_class, {u"Message Class - IPM.Note", u"HTML Body check OK"}},
    {u"quote", next_quote, {u"Quote check OK"}},
    {u"subject", copy_subject, {u"Subject OK"}},
    {u"personal stationery", personal_stationery, {u"Wipeout Personal Stationery OK"}},
    {u"reply marker", load_reply_marker, {}},
    {u"internal mail", internal_mail, {}}, // asks the reply test itself, before its own answer
    {u"answers", clear_answers, {u"Send Internal OK"}},
    {u"send as is", send_as_is, {u"Send As is check OK"}},
    {u"mode off", mode_off, {u"Mode off check OK"}}, // read again: a gate or a box may have changed it
    {u"preview stamp", preview_stamp, {u"Preview check OK"}},
    {u"preview send stamp", preview_send_stamp, {u"Preview send check OK"}},
    {u"reply test", reply_test, {reply_was_tested}},
    {u"other modes", non_auto_branch, {}},
    {u"default template", default_template, {u"Auto mode check OK"}},
    {u"default signature", default_signature, {u"Signature check OK", u"Delivery and Receipt check OK"}},
    {u"auto preview",
     auto_preview,
     {u"Auto Preview check OK"}}, // the body is composed; the item stays as it is
    {u"composition", compose_body, {u"vCard check OK"}},
    {u"stamping", stamp, {}},
};

constexpr TrapName trap_of(TextView gate) { return {u"ol_ItemSend", gate}; }

bool passes(const Gate& gate, Send& send) noexcept {
    Verdict verdict = Verdict::leave;
    trap(send.session.errors, trap_of(gate.name), [&] {
        verdict = gate.decide(send);
        if (send.session.platform.on_gate) send.session.platform.on_gate(gate.name, verdict);
        if (verdict != Verdict::next) return;
        for (const TextView label : gate.passed)
            if (!label.empty()) record_gate(send, label);
    });
    return verdict != Verdict::leave;
}

} // namespace

void ol_ItemSend(Session& session, const host::MailItem& item, bool& cancel) noexcept {
    const CurrentItem current(session, item);
    Send send{.session = session, .sent = item, .cancel = cancel};
    for (const Gate& gate : gates)
        if (!passes(gate, send)) return;
}

std::vector<GateRecords> gate_records() {
    std::vector<GateRecords> all;
    for (const Gate& gate : gates) all.push_back({gate.name, gate.passed});
    return all;
}

std::vector<TextView> gate_names() {
    std::vector<TextView> names;
    for (const Gate& gate : gates) names.push_back(gate.name);
    return names;
}

std::vector<TrapName> traps() {
    std::vector<TrapName> all{version_trap, message_windows_trap, window_button_trap, send_options_trap,
                              vcard_trap,   send_by_hand_trap,    wrap_by_hand_trap};
    for (const Gate& gate : gates) all.push_back(trap_of(gate.name));
    return all;
}

} // namespace ornavel::connect
