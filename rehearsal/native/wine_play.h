#pragma once

#include "rehearsal/native/loaded.h"

#include <map>

namespace ornavel::rehearsal {

/// Plays the scenarios with the real DLL and gives their outcomes, in the same order. A Windows process plays
/// as many as it can; when the add-in takes it along, another one goes on. Throws Unusable for a scenario
/// that can't be played.
std::vector<Json> play_under_wine(const std::vector<Loaded>& scenarios);

/// Pictures of a scenario's forms: BMP files by the form's place among the windows.
using WindowPictures = std::map<std::size_t, std::string>;

/// The same, and pictures of the forms of each.
std::vector<Json> play_under_wine(const std::vector<Loaded>& scenarios,
                                  std::vector<WindowPictures>& pictures);

} // namespace ornavel::rehearsal
