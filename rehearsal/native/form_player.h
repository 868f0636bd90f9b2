#pragma once

#include "forms/form.h"
#include "rehearsal/scripted_user.h"

namespace ornavel::rehearsal {

/// Takes one step. What a handler throws ends that handler alone, as in a real window; throws UnusableStep
/// for a step that no user could take.
void take_one_step(const Step& step, forms::Form& form);

/// Takes the user's steps in an open form; a step that no user could take is complained of and ends them.
void take_steps(ScriptedUser& user, const UserEntry& entry, forms::Form& form);

} // namespace ornavel::rehearsal
