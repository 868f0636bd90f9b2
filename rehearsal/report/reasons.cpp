#include "rehearsal/report/reasons.h"

#include "base/encoding.h"
#include "rehearsal/report/findings.h"
#include "rehearsal/report/words.h"

#include <algorithm>

namespace ornavel::rehearsal::report {
namespace {

constexpr std::string_view last_gate = "stamping";

/// What the send read of a setting.
std::string read_of(const Story& story, const Send& send, TextView setting) {
    return quoted(to_utf8(value_read(story, send, setting)));
}

const Item& item_of(const Story& story, const Send& send) { return story.scenario.items.at(send.item); }

using Reason = std::string (*)(const Story& story, const Send& send);

std::string by_mode(const Story& story, const Send& send) {
    return "the mode (SettingButtonBar) is " + read_of(story, send, u"User Settings / SettingButtonBar") +
           ", and only “auto” dresses";
}

std::string by_class(const Story& story, const Send& send) {
    return "its class is " + to_utf8(item_of(story, send).message_class) + ", and only IPM.Note is dressed";
}

std::string by_folder(const Story& story, const Send& send) {
    return "it lies in the folder " + quoted(to_utf8(item_of(story, send).parent)) +
           " and carries the stamp of an earlier send";
}

std::string by_recipients(const Story& story, const Send& send) {
    const std::string setting = "SkipInternal is " + read_of(story, send, u"Admin Settings / SkipInternal");
    if (item_of(story, send).editor_type == 3) return setting + ", and rich text is then left as it is";
    return setting + ", and every recipient counts as internal";
}

std::string by_template(const Story& story, const Send& send) {
    return "no default template is chosen (Template is " + read_of(story, send, u"User Settings / Template") +
           ")";
}

std::string by_signature(const Story& story, const Send& send) {
    return "no default signature is chosen (Signature is " +
           read_of(story, send, u"User Settings / Signature") + ")";
}

/// A reason in fixed words, or one that shows what it looked at.
struct Row {
    std::string_view gate;
    std::string_view words;
    Reason reason = nullptr;
};

constexpr Row rows[] = {
    {"entry mode", {}, by_mode},
    {"already tagged", "it carries a user property"},
    {"message class", {}, by_class},
    {"resend from the Outbox", {}, by_folder},
    {"resend from Sent Items", {}, by_folder},
    {"message class again", {}, by_class},
    {"personal stationery", "WipeoutPersonalStationery is “True”, and the user has chosen stationery"},
    {"internal mail", {}, by_recipients},
    {"send as is", "SendAsIs was “True”, for this one message"},
    {"mode off", {}, by_mode},
    {"preview stamp", "its BillingInformation is “Preview”"},
    {"preview send stamp", "the preview sends it, composed already"},
    {"reply test", "Reply as is is “1”"},
    {"other modes", {}, by_mode},
    {"default template", {}, by_template},
    {"default signature", {}, by_signature},
    {"auto preview", "AutoPreview is “True”, and the user closed the preview without sending"},
    {"composition", "the template was refused"},
};

std::string reason(const Story& story, const Send& send, const std::string& gate) {
    const auto row = std::ranges::find(rows, gate, &Row::gate);
    if (row == std::end(rows)) return {};
    return ": " + (row->reason ? row->reason(story, send) : std::string(row->words));
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
