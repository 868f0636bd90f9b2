#pragma once

#include "base/errors.h"
#include "host/mail_item.h"
#include "settings/store.h"

namespace ornavel::connect {

struct Session;

inline constexpr TrapName wrap_by_hand_trap{u"SendOptions_Click", u"Error wrapping the message"};
inline constexpr TrapName send_options_trap{u"SendOptions_Click", u"Error showing the send options"};
inline constexpr TrapName vcard_trap{u"SendOptions_Click", u"Error attaching the vCard"};
inline constexpr TrapName send_by_hand_trap{u"SendOptions_Click", u"Error sending the message"};

/// Shows the send-options form for an item, and sends the item when the user's answer is to. A form that
/// can't be shown sends nothing. Never throws.
void dress_by_hand(Session& session, const host::MailItem& item) noexcept;

/// Attaches the vCard that the user selected in the form, when it was chosen for this message.
void attach_selected_vcard(const settings::Store& store, const host::MailItem& item, bool chosen);

} // namespace ornavel::connect
