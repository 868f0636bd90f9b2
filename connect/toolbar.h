#pragma once

#include "base/text.h"

namespace ornavel::connect {

struct Session;

/// Puts the setup button and the mode button on the active explorer's Standard bar, each where its setting
/// asks for it. A button that an earlier start-up left there is used again. Without an explorer there are
/// none, nor where explorers have the ribbon, which carries them instead.
void add_buttons(Session& session) noexcept;

/// What the mode button shows for the mode that is set.
Text mode_caption(const Session& session);

/// The mode button was pressed while it showed this caption: the next mode is set. Never throws.
void cycle_mode(Session& session, TextView caption) noexcept;

/// Saves the mode, and shows it on the mode button, where there is one, and in the windows of messages.
void set_mode(Session& session, TextView mode) noexcept;

/// The same for a user who chooses another mode: the mail client's own signatures are written for the mode
/// that uses them, and emptied when it is left.
void change_mode(Session& session, TextView before, TextView now) noexcept;

/// Takes the buttons off the toolbar: the user unloads the add-in.
void remove_buttons(Session& session) noexcept;

} // namespace ornavel::connect
