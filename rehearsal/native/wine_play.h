#pragma once

#include "rehearsal/scenario.h"

namespace ornavel::rehearsal {

/// Plays the scenario with the real DLL, in a Windows process of its own that is given the scenario's file
/// and the outcome's (see collect_outcome). Throws Unusable where it can't be played.
Json play_under_wine(const Json& json, const Scenario& scenario, const std::string& source);

} // namespace ornavel::rehearsal
