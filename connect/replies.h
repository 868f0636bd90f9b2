#pragma once

#include "connect/session.h"

namespace ornavel::connect {

inline constexpr TrapName version_trap{
    u"ol_ItemSend", u"Error establishing the Outlook Version, MyVersion_err in OL_itemsend"};

/// Whether the mail client is older than version 11, in which replies are marked otherwise. A version that
/// can't be read counts as older and is written to the error log.
bool host_is_older(Session& session);

/// The text that marks a reply to the item; empty where none is set.
Text reply_marker(const Session& session, const host::MailItem& item, bool older_host);

/// Where the body is cut in a reply with this marker.
compose::Reply reply_with(const Session& session, Text marker);

/// The whole test for an item that is dressed by hand: whether its body holds the marker.
compose::Reply find_reply(Session& session, const host::MailItem& item);

} // namespace ornavel::connect
