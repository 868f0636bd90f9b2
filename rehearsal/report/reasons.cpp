#include "rehearsal/report/reasons.h"

#include "base/encoding.h"
#include "connect/reasons.h"
#include "rehearsal/report/findings.h"
#include "rehearsal/report/words.h"

#include <algorithm>

namespace ornavel::rehearsal::report {
namespace {

constexpr std::string_view last_gate = "stamping";

const Item& item_of(const Story& story, const Send& send) { return story.scenario.items.at(send.item); }

/// What the gate looked at.
std::string shown_by(const connect::Reason& reason, const Story& story, const Send& send) {
    using enum connect::Reason::Shows;
    if (reason.shows == message_class) return to_utf8(item_of(story, send).message_class);
    if (reason.shows == folder) return quoted(to_utf8(item_of(story, send).parent));
    if (reason.shows == nothing) return {};
    const Text read = Text(reason.setting->section) + u" / " + Text(reason.setting->name);
    return quoted(to_utf8(value_read(story, send, read)));
}

std::string reason(const Story& story, const Send& send, const std::string& gate) {
    const auto reason = std::ranges::find_if(connect::reasons(), [&](const connect::Reason& row) {
        return row.gate == from_utf8(gate) && (!row.rich_text || item_of(story, send).editor_type == 3);
    });
    if (reason == connect::reasons().end()) return {};
    std::string words = ": " + to_utf8(reason->words);
    if (const auto at = words.find("{}"); at != words.npos)
        words.replace(at, 2, shown_by(*reason, story, send));
    return words;
}

} // namespace

std::string left_at(const Send& send) {
    const auto gate = std::ranges::find(send.gates, false, &GateVisit::passed);
    return gate == send.gates.end() ? std::string() : gate->name;
}

bool ended_by_error(const Send& send) {
    return !send.gates.empty() && left_at(send).empty() && send.gates.back().name != last_gate;
}

std::string end_of_the_way(const Send& send) {
    if (send.gates.empty()) return "not connected";
    if (ended_by_error(send)) return "an error behind " + quoted(send.gates.back().name);
    const std::string left = left_at(send);
    return left.empty() ? "all gates passed" : "left at " + quoted(left);
}

std::string way_through_the_gates(const Story& story, const Send& send) {
    if (send.gates.empty()) return "The add-in was not connected.";
    const auto passed = static_cast<std::size_t>(std::ranges::count(send.gates, true, &GateVisit::passed));
    const std::string gates = "It passed " + counted(passed, "gate"), left = left_at(send);
    if (ended_by_error(send))
        return gates + ", and behind " + quoted(send.gates.back().name) +
               " an error ended the add-in's part.";
    if (left.empty()) return "It passed all " + counted(passed, "gate") + ".";
    return (passed == 0 ? "It left at the first gate, " : gates + " and left at ") + quoted(left) +
           reason(story, send, left) + ".";
}

} // namespace ornavel::rehearsal::report
