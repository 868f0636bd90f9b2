#pragma once

#include "rehearsal/scripted_user.h"
#include "rehearsal/tray_record.h"

namespace ornavel::rehearsal {

/// The message that an act at the tray icon sends it.
int icon_message(const Act& act);

/// What the act chooses in the menu: the entry with a caption, that for a settings key, or none.
MenuChoice menu_choice(const Act& act);

/// Complains where the menu had no such entry.
void check_choice(ScriptedUser& user, const Act& act, const MenuChoice& made);

} // namespace ornavel::rehearsal
