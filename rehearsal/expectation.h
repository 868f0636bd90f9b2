#pragma once

#include "rehearsal/json.h"

#include <vector>

namespace ornavel::rehearsal {

/// Where an outcome differs from what is expected: one line for each place, with its path. An object expects
/// at least its members, an array its elements in order and the same length; {"contains"}, {"absent"} and
/// {"matches"} test a text, {"count"} an array's length, {"missing": true} that the member is not there.
std::vector<std::string> mismatches(const Json& expected, const Json& outcome);

} // namespace ornavel::rehearsal
