#pragma once

#include "base/errors.h"
#include "host/mail_item.h"

#include <array>
#include <vector>

namespace ornavel::connect {

struct Session;

/// The mail client sends an item: the gates decide, in their order, whether it is dressed. A gate that fails
/// is written to the error log and ends the handler with cancel as it stands, so a failure never blocks a
/// send.
void ol_ItemSend(Session& session, const host::MailItem& item, bool& cancel) noexcept;

/// A gate, and the records that it leaves when it is passed while the system check is on; empty ones are
/// none.
struct GateRecords {
    TextView gate;
    std::array<TextView, 3> passed;
};
std::vector<GateRecords> gate_records();

// What gates record before they have decided.
inline constexpr TextView composition_began = u"Auto Preview Send Plain check OK";
inline constexpr TextView other_mode_began = u"Auto process end check OK";
inline constexpr TextView reply_was_tested = u"Reply check OK";
inline constexpr TextView marker_was_loaded = u"Just after MyMessItem is called- line 1002";
inline constexpr TextView pipeline_began = u"Fired OK";

/// The gates in their order, and every trap of this room; for those who watch which of them are used.
std::vector<TextView> gate_names();
std::vector<TrapName> traps();

} // namespace ornavel::connect
