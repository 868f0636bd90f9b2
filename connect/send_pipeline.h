#pragma once

#include "base/errors.h"
#include "host/mail_item.h"

#include <vector>

namespace ornavel::connect {

struct Session;

/// The mail client sends an item: the gates decide, in their order, whether it is dressed. A gate that fails
/// is written to the error log and ends the handler with cancel as it stands, so a failure never blocks a
/// send.
void ol_ItemSend(Session& session, const host::MailItem& item, bool& cancel) noexcept;

/// The gates in their order, and every trap of this room; for those who watch which of them are used.
std::vector<TextView> gate_names();
std::vector<TrapName> traps();

} // namespace ornavel::connect
