#include "rehearsal/report/gather.h"

#include "base/encoding.h"
#include "rehearsal/expectation.h"
#include "rehearsal/native/native_play.h"

#include <algorithm>

namespace ornavel::rehearsal::report {
namespace {

Json without_times(Json outcome) {
    if (outcome.contains("acts"))
        for (auto& act : outcome["acts"]) act.erase("milliseconds");
    return outcome;
}

std::vector<GateVisit> gates_of(const std::vector<JournalEntry>& journal, std::size_t act) {
    std::vector<GateVisit> gates;
    for (const auto& entry : journal)
        if (entry.act == act && entry.deed == Deed::gate)
            gates.push_back({to_utf8(entry.what), entry.value == u"passed"});
    return gates;
}

std::vector<Send> sends_of(const Story& story) {
    std::vector<Send> sends;
    for (std::size_t i = 0; i < story.scenario.acts.size(); ++i) {
        const Act& act = story.scenario.acts[i];
        if (act.kind != Act::Kind::send) continue;
        const Json& record = story.outcome.at("acts").at(i);
        sends.push_back({i, static_cast<std::size_t>(act.number), record.value("cancel", false),
                         record.value("milliseconds", 0.0), gates_of(story.journal, i)});
    }
    return sends;
}

} // namespace

std::vector<std::string> differences(const Json& left, const Json& right) {
    const Json one = without_times(left), other = without_times(right);
    std::vector<std::string> names;
    for (const auto& [name, value] : one.items())
        if (!other.contains(name) || other[name] != value) names.push_back(name);
    for (const auto& [name, value] : other.items())
        if (!one.contains(name)) names.push_back(name);
    return names;
}

Story gather(Scenario scenario, const std::string& source, const std::optional<Json>& dll_outcome) {
    Story story;
    story.scenario = std::move(scenario);
    Journal journal;
    const Json native = play_here(story.scenario, source, journal);
    story.journal = journal.entries();
    story.with_dll = dll_outcome.has_value();
    story.outcome = dll_outcome.value_or(native);
    if (story.with_dll) story.differences = differences(native, *dll_outcome);
    story.sends = sends_of(story);
    return story;
}

} // namespace ornavel::rehearsal::report
