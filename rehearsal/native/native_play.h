#pragma once

#include "rehearsal/failures.h"
#include "rehearsal/journal.h"
#include "rehearsal/scenario.h"

namespace ornavel::rehearsal {

/// Plays the scenario with the add-in's own code in this process. Gives the outcome. Throws Unusable for a
/// scenario that can't be played to its end. The journal takes everything that the add-in did, in order, and
/// failures what went wrong.
Json play_here(const Scenario& scenario, const std::string& source, Journal& journal, Failures& failures);
/// With the failures that the scenario asks for.
Json play_here(const Scenario& scenario, const std::string& source, Journal& journal);

/// The same in a process of its own, so that an add-in that crashes has an outcome too.
Json play_natively(const Scenario& scenario, const std::string& source);

} // namespace ornavel::rehearsal
