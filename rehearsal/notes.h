#pragma once

#include "rehearsal/scenario.h"

namespace ornavel::rehearsal {

/// What the author of a scenario probably did not mean, a line for each: settings that the catalogue does not
/// have, and what the user was to do with windows that never came. An unused entry is meant where the
/// scenario expects a window to be "unexpected", and so are the named fields of a section of the user's own.
std::vector<std::string> notes_on(const Scenario& scenario, const Json& outcome);

} // namespace ornavel::rehearsal
