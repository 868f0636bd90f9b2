#pragma once

#include "rehearsal/scenario.h"

namespace ornavel::rehearsal {

/// Plays the scenario with the add-in's own code in this program. Gives the outcome.
Json play_natively(const Scenario& scenario, const std::string& source);

} // namespace ornavel::rehearsal
