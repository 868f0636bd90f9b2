#include "connect/send_pipeline.h"

#include "connect/gates.h"

#include <algorithm>
#include <array>
#include <utility>

namespace ornavel::connect {
namespace {

/// The records that a passed gate leaves while the system check is on.
using Records = std::array<TextView, 4>;

struct Gate {
    TextView name;
    Verdict (*decide)(Send&);
    Records passed;
};

constexpr Gate gates[] = {
    {u"entry mode", entry_mode, {}}, // only "auto" passes; everything else is tagged and leaves
    {u"already tagged", already_tagged, {}},
    {u"wrapping", wrap_item, {}},
    {u"message class", message_class, {}},
    {u"system check switch", system_check_switch, {u"Fired OK"}}, // from here on the gates leave records
    {u"message class again", message_class, {u"Message Class - IPM.Note", u"HTML Body check OK"}},
    {u"subject", copy_subject, {u"Subject OK"}},
    {u"mode off", mode_off, {u"Mode off check OK"}},
    {u"default template", default_template, {u"Auto mode check OK"}},
    {u"default signature",
     default_signature,
     {u"Signature check OK", u"Delivery and Receipt check OK", u"Auto Preview check OK",
      u"Auto Preview Send Plain check OK"}},
    {u"composition", compose_body, {u"vCard check OK"}},
    {u"stamping", stamp, {}},
};

/// Makes the item the current one, and the outer send's item current again on every way out.
class CurrentItem {
public:
    CurrentItem(Session& session, host::MailItem item)
        : current_(session.shared.item), outer_(std::exchange(current_, std::move(item))) {}
    ~CurrentItem() { current_ = std::move(outer_); }
    CurrentItem(const CurrentItem&) = delete;
    CurrentItem& operator=(const CurrentItem&) = delete;

private:
    host::MailItem& current_;
    host::MailItem outer_;
};

void record_gate(Send& send, TextView label) {
    if (label.empty() || !send.system_check) return;
    send.session.log.SystemCheck(label, u"Check " + to_text(send.check_number++), u"Send Event");
}

bool passes(const Gate& gate, Send& send) noexcept {
    bool passed = false;
    trap(send.session.errors, {u"ol_ItemSend", gate.name}, [&] {
        passed = gate.decide(send) == Verdict::next;
        if (send.session.platform.on_gate) send.session.platform.on_gate(gate.name, passed);
        if (passed) std::ranges::for_each(gate.passed, [&](TextView label) { record_gate(send, label); });
    });
    return passed;
}

} // namespace

void ol_ItemSend(Session& session, const host::MailItem& item, bool& cancel) noexcept {
    const CurrentItem current(session, item);
    Send send{.session = session, .sent = item, .cancel = cancel};
    for (const Gate& gate : gates)
        if (!passes(gate, send)) return;
}

} // namespace ornavel::connect
