#pragma once

#include "rehearsal/scenario.h"

namespace ornavel::rehearsal {

/// Plays the scenario with the real DLL, in a process of its own. Gives the outcome; a process that ends
/// without one has crashed, and the outcome's error says so. Throws Unusable where it can't be played.
Json play_under_wine(const Json& scenario, const std::string& source);

} // namespace ornavel::rehearsal
