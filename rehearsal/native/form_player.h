#pragma once

#include "forms/form.h"
#include "rehearsal/scripted_user.h"

namespace ornavel::rehearsal {

/// Takes the user's steps in an open form; a step that no user could take is complained of and ends them.
void take_steps(ScriptedUser& user, const UserEntry& entry, forms::Form& form);

} // namespace ornavel::rehearsal
