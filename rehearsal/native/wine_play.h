#pragma once

#include "rehearsal/native/loaded.h"

namespace ornavel::rehearsal {

/// Plays the scenarios with the real DLL and gives their outcomes, in the same order. A Windows process plays
/// as many as it can; when the add-in takes it along, another one goes on. Throws Unusable for a scenario
/// that can't be played.
std::vector<Json> play_under_wine(const std::vector<Loaded>& scenarios);

} // namespace ornavel::rehearsal
