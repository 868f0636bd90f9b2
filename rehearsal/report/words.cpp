#include "rehearsal/report/words.h"

#include "base/encoding.h"
#include "host/stamps.h"
#include "rehearsal/model/versions.h"
#include "rehearsal/report/findings.h"
#include "rehearsal/report/reasons.h"

#include <algorithm>
#include <cstdio>

namespace ornavel::rehearsal::report {
namespace {

constexpr std::pair<int, const char*> versions[] = {
    {9, "Outlook 2000"},  {10, "Outlook 2002"}, {11, "Outlook 2003"},         {12, "Outlook 2007"},
    {14, "Outlook 2010"}, {15, "Outlook 2013"}, {16, "Outlook 2016 or later"}};

constexpr std::pair<TextView, const char*> classes[] = {
    {u"IPM.SCHEDULE.MEETING.REQUEST", "a meeting request"},
    {u"IPM.TASKREQUEST", "a task request"},
};

std::string mail_client(TextView version) {
    for (const auto& [major, name] : versions)
        if (numeric_value(version) == major) return name;
    return "Outlook " + to_utf8(version);
}

std::string kind(const Item& item, const Host& host) {
    const Text upper = upper_case(item.message_class);
    for (const auto& [message_class, words] : classes)
        if (upper == message_class) return words;
    if (upper != u"IPM.NOTE") return "an item of the class " + to_utf8(item.message_class);
    if (kind_of(item, host) == 1) return "a plain-text message";
    if (kind_of(item, host) == 3) return "a rich-text message";
    return item.is_word_mail ? "a Word-written message" : "an HTML message";
}

std::string dressing(const Story& story, const Send& send) {
    if (kind_of(story.scenario.items.at(send.item), story.scenario.host) == 1)
        return "went out turned into HTML, and stamped";
    const std::string sheet = template_read(story, send), signature = signature_read(story, send);
    const std::string signed_with =
        signature.empty() ? "without a signature" : "with the signature " + signature;
    if (sheet.empty()) return "went out stamped, without a template and " + signed_with;
    return "went out dressed in " + sheet + ' ' + signed_with + ", and stamped";
}

bool same_body(const Item& before, const Json& after) {
    return to_utf8(before.html_body) == text_of(after, "HTMLBody") &&
           to_utf8(before.body) == text_of(after, "Body");
}

} // namespace

std::string text_of(const Json& item, const char* member) {
    const auto found = item.find(member);
    return found != item.end() && found->is_string() ? found->get<std::string>() : std::string();
}

bool is_stamped(const Story& story, const Send& send) {
    const Json& after = story.outcome.at("items").at(send.item);
    return text_of(after, "BillingInformation") == to_utf8(host::stamps::dressed) &&
           story.scenario.items.at(send.item).billing_information != host::stamps::dressed;
}

bool is_as_expected(const Story& story) {
    return story.outcome.at("error").is_null() && story.mismatches.empty() && story.differences.empty();
}

Fate fate_of(const Story& story, const Send& send) {
    if (ended_by_error(send)) return Fate::failed;
    if (send.cancelled) return Fate::held_back;
    if (is_stamped(story, send)) return findings_in(story, send).empty() ? Fate::dressed : Fate::dressed_but;
    const Item& before = story.scenario.items.at(send.item);
    const Json& after = story.outcome.at("items").at(send.item);
    const bool same_subject = to_utf8(before.subject) == text_of(after, "Subject");
    return same_body(before, after) && same_subject ? Fate::untouched : Fate::changed;
}

std::string_view name_of(Fate fate) {
    switch (fate) {
    case Fate::dressed:
        return "dressed";
    case Fate::dressed_but:
        return "dressed, but…";
    case Fate::changed:
        return "changed otherwise";
    case Fate::untouched:
        return "left alone";
    case Fate::held_back:
        return "held back";
    default:
        return "failed";
    }
}

std::size_t held_by(const Story& story) {
    return story.outcome.value("references", Json::object()).value("held", std::size_t{0});
}

std::string what_came_in(const Story& story, const Send& send) {
    const Item& item = story.scenario.items.at(send.item);
    return kind(item, story.scenario.host) + " from " + mail_client(story.scenario.host.version);
}

std::string what_happened(const Story& story, const Send& send) {
    switch (fate_of(story, send)) {
    case Fate::dressed:
        return dressing(story, send);
    case Fate::dressed_but:
        return dressing(story, send) + ", but there is something to look at";
    case Fate::changed:
        if (same_body(story.scenario.items.at(send.item), story.outcome.at("items").at(send.item)))
            return "went out as it was written, with a note in its subject";
        return left_at(send) == "internal mail" ? "went out with the short signature and no stamp"
                                                : "went out changed, without the stamp";
    case Fate::untouched:
        return "went out exactly as it was written";
    case Fate::held_back:
        return "was held back";
    default:
        return send.cancelled ? "was held back by an error" : "went out as an error left it";
    }
}

std::string title_of_window(const Json& window) {
    return text_of(window, "message box") + text_of(window, "input box") + text_of(window, "file dialog") +
           text_of(window, "caption");
}

std::string quoted(const std::string& text) { return "“" + text + "”"; }

std::string capital(std::string words) {
    if (!words.empty() && words[0] >= 'a' && words[0] <= 'z')
        words[0] = static_cast<char>(words[0] - 'a' + 'A');
    return words;
}

std::string milliseconds(double duration) {
    char text[32];
    std::snprintf(text, sizeof text, duration < 10 ? "%.2f ms" : "%.0f ms", duration);
    return text;
}

std::string counted(std::size_t number, std::string_view noun) {
    return std::to_string(number) + ' ' + std::string(noun) + (number == 1 ? "" : "s");
}

} // namespace ornavel::rehearsal::report
