#include "tests/coverage/tally.h"

#include "settings/catalogue.h"

namespace ornavel::coverage {
namespace {

using rehearsal::Deed;
using rehearsal::JournalEntry;

std::map<Text, Text> defaults_by_setting() {
    std::map<Text, Text> defaults;
    for (const auto& key : settings::catalogue())
        defaults[setting_of(key.section, key.name)] = Text(key.default_value);
    return defaults;
}

bool has_value_of_its_own(const JournalEntry& read) {
    static const auto defaults = defaults_by_setting();
    const auto entry = defaults.find(read.what);
    return read.found && (entry == defaults.end() || entry->second != read.value);
}

bool is_of_a_program(const rehearsal::Scenario& scenario, const JournalEntry& entry) {
    return entry.act < scenario.acts.size() && scenario.acts[entry.act].kind == rehearsal::Act::Kind::run;
}

/// One scenario's part; it counts once for each thing, however often it came to it.
class Visit {
public:
    explicit Visit(const Text& scenario) : scenario_(scenario) {}

    void see(Section& section, const Text& name, const Text& value = {}) {
        Hits& hits = section[name];
        if (!value.empty()) hits.values.insert(value);
        if (!seen_.insert({&section, name}).second) return;
        if (hits.scenarios++ == 0) hits.example = scenario_;
    }

private:
    const Text& scenario_;
    std::set<std::pair<const Section*, Text>> seen_;
};

} // namespace

Text verdict_of(TextView gate, TextView verdict) { return Text(gate) + u": " + Text(verdict); }

Text setting_of(TextView section, TextView key) { return Text(section) + u" / " + Text(key); }

void Tally::add(const rehearsal::Scenario& scenario, const rehearsal::Journal& journal) {
    Visit visit(scenario.name);
    for (const JournalEntry& entry : journal.entries()) {
        if (entry.deed == Deed::gate) visit.see(verdicts, verdict_of(entry.what, entry.value));
        if (entry.deed == Deed::trap) visit.see(traps, entry.what, entry.value);
        if (entry.deed == Deed::window) visit.see(windows, entry.what, entry.value);
        if (entry.deed == Deed::string && entry.found) visit.see(strings, entry.what, entry.value);
        if (entry.deed != Deed::read_setting) continue;
        if (is_of_a_program(scenario, entry)) {
            visit.see(program_settings, entry.what, entry.found ? entry.value : Text(absent));
            continue;
        }
        settings[entry.what].values.insert(entry.found ? entry.value : Text(absent));
        if (has_value_of_its_own(entry)) visit.see(settings, entry.what);
    }
}

} // namespace ornavel::coverage
