#pragma once

#include "rehearsal/scenario.h"

namespace ornavel::rehearsal {

/// Plays the scenario with the real DLL, in a process of its own: the player is given the scenario's file and
/// the outcome's, and ends with 2 where it can't be played, the reason in place of the outcome (Unusable
/// here). A process that leaves no outcome has crashed, and the outcome's error says so.
Json play_under_wine(const Json& scenario, const std::string& source);

} // namespace ornavel::rehearsal
