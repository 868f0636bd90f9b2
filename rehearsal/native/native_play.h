#pragma once

#include "rehearsal/journal.h"
#include "rehearsal/scenario.h"

namespace ornavel::rehearsal {

/// Plays the scenario with the add-in's own code in this program. Gives the outcome.
Json play_natively(const Scenario& scenario, const std::string& source);

/// The same; the journal tells the way to the outcome.
Json play_natively(const Scenario& scenario, const std::string& source, Journal& journal);

} // namespace ornavel::rehearsal
