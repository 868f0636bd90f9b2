#pragma once

#include "forms/form.h"
#include "rehearsal/scripted_user.h"

namespace ornavel::rehearsal {

/// A form as the outcome shows it: its own properties, and its controls by name.
Json form_record(const forms::Form& form);

/// The controls, and of each the members, that are no longer as the record has them.
Json changed_controls(const Json& record, const forms::Form& form);

/// Takes the user's steps in an open form; a step that no user could take is complained of and ends them.
void take_steps(ScriptedUser& user, const UserEntry& entry, forms::Form& form);

} // namespace ornavel::rehearsal
