#include "rehearsal/report/page.h"

#include "base/encoding.h"
#include "rehearsal/report/findings.h"
#include "rehearsal/report/frame.h"
#include "rehearsal/report/html.h"
#include "rehearsal/report/reasons.h"
#include "rehearsal/report/words.h"

#include <algorithm>

namespace ornavel::rehearsal::report {
namespace {

/// The bodies of an item at one moment.
struct Shown {
    std::string subject, html, plain;
};

Shown as_given(const Item& item) {
    return {to_utf8(item.subject), to_utf8(item.html_body), to_utf8(item.body)};
}

Shown as_sent(const Json& item) {
    return {text_of(item, "Subject"), text_of(item, "HTMLBody"), text_of(item, "Body")};
}

const std::string& source_of(const Shown& shown) { return shown.html.empty() ? shown.plain : shown.html; }

std::string names_of(const Item& item) {
    std::string names;
    for (const auto& recipient : item.recipients)
        names += (names.empty() ? "" : ", ") +
                 to_utf8(recipient.name.empty() ? recipient.address : recipient.name);
    return names;
}

std::string letter(const char* caption, const Shown& shown, const Story& story, const Item& item,
                   int height) {
    const std::string envelope =
        text_element("strong", "", shown.subject) +
        text_element("span", "", to_utf8(story.scenario.host.user_name) + " to " + names_of(item));
    const std::string title = shown.subject + ", " + caption;
    const std::string frame = shown.html.empty()
                                  ? plain_text_frame(title, shown.plain, height)
                                  : message_frame(title, shown.html, story.scenario.files, height);
    return element("figure", "",
                   text_element("figcaption", "", caption) +
                       element("div", "letter", element("div", "envelope", envelope) + frame));
}

/// The source, with the part that the user wrote marked where it stands in one piece.
std::string marked_source(const std::string& source, const std::string& written) {
    const auto place = source.find(written);
    if (written.empty() || place == std::string::npos || written == source) return escape(source);
    return escape(source.substr(0, place)) + element("mark", "", escape(written)) +
           escape(source.substr(place + written.size()));
}

std::string sources(const Story& story, const Send& send) {
    const Shown before = as_given(story.scenario.items.at(send.item));
    const Shown after = as_sent(story.outcome.at("items").at(send.item));
    const std::string both = element("pre", "", escape(source_of(before))) +
                             element("pre", "", marked_source(source_of(after), source_of(before)));
    return fold_out("Source before and after", element("div", "pair source", both));
}

std::string gate_rail(const Send& send) {
    std::string gates;
    for (const auto& gate : send.gates)
        gates += text_element("li", gate.passed ? "passed" : "left", gate.name);
    if (ended_by_error(send)) gates += text_element("li", "ended", "an error");
    return element("ol", "gates", gates);
}

std::size_t calls_in_all(const Story& story) {
    return static_cast<std::size_t>(std::ranges::count_if(story.journal, [](const JournalEntry& entry) {
        return entry.deed == Deed::get || entry.deed == Deed::put || entry.deed == Deed::call;
    }));
}

std::string sentence(const Story& story, const Send& send) {
    return capital(what_came_in(story, send)) + " " + what_happened(story, send) + ". " +
           way_through_the_gates(story, send) + " That took " + milliseconds(send.milliseconds) + " and " +
           counted(send.calls, "call") + " into the mail client during the send, " +
           std::to_string(calls_in_all(story)) + " in all.";
}

std::string send_part(const Story& story, const Send& send) {
    const Item& item = story.scenario.items.at(send.item);
    const Shown before = as_given(item), after = as_sent(story.outcome.at("items").at(send.item));
    const int height = std::max(estimated_height(source_of(before)), estimated_height(source_of(after)));
    return text_element("p", "sentence", sentence(story, send)) +
           element("div", "pair",
                   letter("as the user wrote it", before, story, item, height) +
                       letter(send.cancelled ? "still with the user" : "as it went out", after, story, item,
                              height)) +
           gate_rail(send);
}

/// What the story's sends leave to be looked at.
std::string look_at_this(const Story& story) {
    std::string lines;
    for (const auto& send : story.sends)
        for (const auto& finding : findings_in(story, send)) lines += text_element("li", "", finding);
    if (!story.outcome.at("error").is_null())
        lines += text_element("li", "",
                              "The mail client was left with an error: " + story.outcome.at("error").dump());
    if (lines.empty()) return {};
    return element("div", "notice", text_element("h3", "", "Look at this") + element("ul", "", lines));
}

std::string verdicts(const Story& story) {
    std::string facts = text_element("li", held_by(story) == 0 ? "good" : "bad",
                                     counted(held_by(story), "reference") + " left");
    if (story.with_dll && story.differences.empty())
        facts += text_element("li", "good", "same outcome in both plays");
    if (!story.with_dll && !story.differences.empty())
        facts += text_element("li", "bad", "the real DLL did not come to the end; shown is the other play");
    for (const auto& difference : story.differences)
        facts += text_element("li", "bad", "the plays differ in " + difference);
    for (const auto& mismatch : story.mismatches) facts += text_element("li", "bad", mismatch);
    if (story.mismatches.empty() && story.scenario.expect)
        facts += text_element("li", "good", "as the story expects");
    return element("ul", "verdicts", facts);
}

} // namespace

std::string story_section(const Story& story, std::size_t number) {
    std::string body = text_element("p", "eyebrow", "Story " + std::to_string(number)) +
                       text_element("h2", "", to_utf8(story.scenario.name));
    for (const auto& send : story.sends) body += send_part(story, send);
    body += look_at_this(story) + windows_section(story);
    for (const auto& send : story.sends) body += sources(story, send);
    body += changes_section(story) + journal_section(story) + verdicts(story);
    return "<section id=\"story-" + std::to_string(number) + "\">\n" + body + "</section>\n";
}

} // namespace ornavel::rehearsal::report
