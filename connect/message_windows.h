#pragma once

#include "base/errors.h"
#include "host/message_window.h"

namespace ornavel::connect {

struct Session;

inline constexpr TrapName message_windows_trap{u"OnStartupComplete", u"Error hooking the message windows"};
inline constexpr TrapName window_button_trap{u"SendOptions", u"Error adding the button to a message window"};

/// While the mode is "on", each window of a message that is not sent yet has a button on its Standard bar
/// that opens the send-options form; also windows that are opened later, until forget_message_windows. Where
/// these windows have the ribbon, that carries it instead. Never throws.
void watch_message_windows(Session& session) noexcept;

/// Whether a window offers the form: the mode is "on", and nothing says that its message is sent or of
/// another class. Never throws.
bool offers_send_options(const Session& session, const host::MessageWindow& window) noexcept;

/// Opens the form for the window's message. Never throws.
void SendOptions_Click(Session& session, const host::MessageWindow& window) noexcept;

/// The mode has changed: the buttons come or go.
void follow_mode(Session& session) noexcept;

/// Takes the buttons away and lets go of the windows.
void forget_message_windows(Session& session) noexcept;

} // namespace ornavel::connect
