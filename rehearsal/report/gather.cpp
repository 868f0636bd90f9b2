#include "rehearsal/report/gather.h"

#include "base/encoding.h"
#include "rehearsal/comparison.h"
#include "rehearsal/expectation.h"
#include "rehearsal/native/native_play.h"

namespace ornavel::rehearsal::report {
namespace {

std::vector<GateVisit> gates_of(const std::vector<JournalEntry>& journal, std::size_t act) {
    std::vector<GateVisit> gates;
    for (const auto& entry : journal)
        if (entry.act == act && entry.deed == Deed::gate)
            gates.push_back({to_utf8(entry.what), entry.value != u"left"});
    return gates;
}

} // namespace

std::vector<Send> sends_of(const Scenario& scenario, const Json& outcome, const Journal& journal) {
    std::vector<Send> sends;
    for (std::size_t i = 0; i < scenario.acts.size(); ++i) {
        const Act& act = scenario.acts[i];
        if (act.kind != Act::Kind::send) continue;
        if (i >= outcome.at("acts").size()) break; // an exception reached the host before
        const Json& record = outcome.at("acts").at(i);
        sends.push_back({i, static_cast<std::size_t>(act.number), record.value("cancel", false),
                         record.value("milliseconds", 0.0), journal.host_uses(i),
                         gates_of(journal.entries(), i)});
    }
    return sends;
}

Story gather(Scenario scenario, const std::string& source, const std::optional<Json>& dll_outcome) {
    Story story;
    story.scenario = std::move(scenario);
    Journal journal;
    const Json native = play_here(story.scenario, source, journal);
    story.journal = journal.entries();
    // A DLL that did not come to the end left too little to show; its error is a difference like any other.
    story.with_dll =
        dll_outcome && dll_outcome->value("acts", Json::array()).size() == story.scenario.acts.size();
    story.outcome = story.with_dll ? *dll_outcome : native;
    if (dll_outcome)
        for (const auto& difference : differences(native, *dll_outcome))
            story.differences.push_back(to_line(difference));
    story.sends = sends_of(story.scenario, story.outcome, journal);
    if (story.scenario.expect) story.mismatches = mismatches(*story.scenario.expect, story.outcome);
    return story;
}

} // namespace ornavel::rehearsal::report
