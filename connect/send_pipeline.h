#pragma once

#include "host/mail_item.h"

namespace ornavel::connect {

struct Session;

/// The mail client sends an item: the gates decide, in their order, whether it is dressed. A gate that fails
/// is written to the error log and ends the handler with cancel as it stands, so a failure never blocks a
/// send.
void ol_ItemSend(Session& session, const host::MailItem& item, bool& cancel) noexcept;

} // namespace ornavel::connect
