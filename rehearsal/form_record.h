#pragma once

#include "forms/form_user.h"
#include "rehearsal/scenario.h"

namespace ornavel::rehearsal {

/// What an outcome calls controls of this kind.
const char* kind_name(forms::ControlKind kind);

/// A form as the outcome shows it: its own properties, and its controls by name.
Json form_record(const forms::Form& form);

/// The controls, and of each the members, that are no longer as the record has them.
Json changed_controls(const Json& record, const forms::Form& form);

/// Throws UnusableStep for an entry of the script that answers a form as if it were a box.
void refuse_answer(const UserEntry& entry);

/// Takes one step in a form; throws UnusableStep for one that no user could take.
void take_step(const Step& step, forms::FormUser user);

} // namespace ornavel::rehearsal
