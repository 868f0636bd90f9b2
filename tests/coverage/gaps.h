#pragma once

#include "tests/coverage/tally.h"

namespace ornavel::coverage {

/// What there is to come to, by the program itself.
struct Known {
    std::vector<Text> verdicts, traps, settings;
};
Known known();

/// Why no scenario can come to something, or doesn't yet, by its name.
using Reasons = std::map<Text, Text>;
struct Excuses {
    Reasons verdicts, traps, settings;
};

/// Reads [{"because": "…", "verdicts": ["gate: verdict"], "traps": […], "settings": […]}]. Throws Unusable
/// for anything else.
Excuses read_excuses(const rehearsal::Json& json, const std::string& source);

/// A line for each thing that no scenario comes to and nothing excuses, for each excuse that is not needed or
/// names nothing, and for each trap that was sprung and is not known.
std::vector<std::string> gaps(const Known& known, const Tally& tally, const Excuses& excuses);

} // namespace ornavel::coverage
