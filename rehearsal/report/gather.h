#pragma once

#include "rehearsal/report/story.h"

#include <optional>

namespace ornavel::rehearsal::report {

/// Plays the scenario with the add-in's own code and gathers what the report tells. With the outcome of the
/// real DLL given, that one is told and compared with the native one.
Story gather(Scenario scenario, const std::string& source, const std::optional<Json>& dll_outcome);

/// The items on their way out, in the order of the acts.
std::vector<Send> sends_of(const Scenario& scenario, const Json& outcome, const Journal& journal);

} // namespace ornavel::rehearsal::report
