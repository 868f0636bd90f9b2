#include "rehearsal/report/gather.h"

#include "base/encoding.h"
#include "rehearsal/expectation.h"
#include "rehearsal/native/native_play.h"

#include <algorithm>
#include <regex>

namespace ornavel::rehearsal::report {
namespace {

/// The date that begins a line of a log: the real DLL has the real clock.
std::string without_dates(std::string text) {
    static const std::regex log_date("\\d\\d-\\d\\d-\\d{4} \\d\\d:\\d\\d:\\d\\d");
    return std::regex_replace(text, log_date, "(date)");
}

/// What two plays of one scenario must have in common.
Json comparable(const Json& value) {
    if (value.is_string()) return without_dates(value.get<std::string>());
    if (!value.is_structured()) return value;
    Json result = value.is_array() ? Json::array() : Json::object();
    for (const auto& [name, part] : value.items()) {
        if (value.is_array())
            result.push_back(comparable(part));
        else if (name != "milliseconds")
            result[name] = comparable(part);
    }
    return result;
}

std::vector<GateVisit> gates_of(const std::vector<JournalEntry>& journal, std::size_t act) {
    std::vector<GateVisit> gates;
    for (const auto& entry : journal)
        if (entry.act == act && entry.deed == Deed::gate)
            gates.push_back({to_utf8(entry.what), entry.value == u"passed"});
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

std::vector<std::string> differences(const Json& left, const Json& right) {
    const Json one = comparable(left), other = comparable(right);
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
    // A DLL that did not come to the end left too little to show; its error is a difference like any other.
    story.with_dll =
        dll_outcome && dll_outcome->value("acts", Json::array()).size() == story.scenario.acts.size();
    story.outcome = story.with_dll ? *dll_outcome : native;
    if (dll_outcome) story.differences = differences(native, *dll_outcome);
    story.sends = sends_of(story.scenario, story.outcome, journal);
    if (story.scenario.expect) story.mismatches = mismatches(*story.scenario.expect, story.outcome);
    return story;
}

} // namespace ornavel::rehearsal::report
