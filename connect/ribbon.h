#pragma once

#include "host/ribbon.h"

#include <optional>

// The mail client asks for a ribbon's customization while it starts; its documentation doesn't say whether
// before or after it has connected the add-in. So the customization depends on nothing, and whatever settings
// decide is asked for by callbacks, and once more when the start-up's work is done.

namespace ornavel::connect {

struct Session;

/// What the add-in puts on the ribbon of one kind of window, as customUI markup; empty for a kind where it
/// has nothing. Throws std::bad_alloc.
Text GetCustomUI(TextView ribbon_id);

/// The number of a callback that the markup names, from 0; nothing for any other name. Case doesn't count.
std::optional<int> find_ribbon_callback(TextView name);

/// Runs the callback with this number for the ribbon or the control that the mail client passes. The answer
/// is empty for a control that is not the add-in's, and where nothing is asked. Never throws.
host::Value run_ribbon_callback(Session& session, int callback, const host::ObjectPtr& argument) noexcept;

/// What the ribbon shows has changed: it asks again.
void refresh_ribbon(Session& session) noexcept;

/// Lets go of the ribbons. From here on a click does nothing.
void forget_ribbon(Session& session) noexcept;

} // namespace ornavel::connect
