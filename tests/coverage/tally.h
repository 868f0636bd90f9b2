#pragma once

#include "rehearsal/journal.h"
#include "rehearsal/scenario.h"

#include <map>
#include <set>

namespace ornavel::coverage {

/// How many scenarios came to one thing, the first of them, and what was seen there.
struct Hits {
    std::size_t scenarios = 0;
    Text example{};
    std::set<Text> values{};
};

using Section = std::map<Text, Hits>;

/// What the scenarios came to. A gate counts once for each of its verdicts, as "gate: verdict". A setting
/// counts where it was read with a value of its own, other than its default; its values are all that it was
/// read with. What the programs beside the add-in read counts apart.
struct Tally {
    Section verdicts, traps, settings, program_settings, windows, strings;

    void add(const rehearsal::Scenario& scenario, const rehearsal::Journal& journal);
};

/// "entry mode: passed".
Text verdict_of(TextView gate, TextView verdict);
/// "User Settings / Template".
Text setting_of(TextView section, TextView key);

inline constexpr TextView absent = u"(absent)";

} // namespace ornavel::coverage
