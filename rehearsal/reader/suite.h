#pragma once

#include "rehearsal/json.h"

#include <vector>

namespace ornavel::rehearsal {

/// One scenario with everything in it, and what messages call it: its file, and in a suite its name as well.
struct WholeScenario {
    std::string file, source;
    Json json;
};

/// The scenarios of a file, in order: the cases of a suite, each merged into the suite's world, or the one
/// scenario that the file holds. A file that a scenario takes with "from" is named by its path, looked for
/// beside the file that takes it. Checks what only a suite has, and leaves the scenarios themselves to
/// read_scenario. Throws Unusable.
std::vector<WholeScenario> scenarios_of(const Json& file, const std::string& path);

} // namespace ornavel::rehearsal
