#pragma once

#include "rehearsal/scenario.h"

namespace ornavel::rehearsal {

/// A scenario as it was read from a file.
struct Loaded {
    std::string file;
    Json json;
    Scenario scenario;
};

/// Plays the scenarios with the real DLL and gives their outcomes, in the same order. A Windows process plays
/// as many as it can; when the add-in takes it along, another one goes on. Throws Unusable for a scenario
/// that can't be played.
std::vector<Json> play_under_wine(const std::vector<Loaded>& scenarios);

} // namespace ornavel::rehearsal
