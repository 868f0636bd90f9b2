#include "rehearsal/report/words.h"

#include "base/encoding.h"
#include "host/stamps.h"
#include "rehearsal/report/reasons.h"

#include <algorithm>
#include <cstdio>

namespace ornavel::rehearsal::report {
namespace {

constexpr std::pair<int, const char*> versions[] = {
    {9, "Outlook 2000"}, {10, "Outlook 2002"}, {11, "Outlook 2003"}};

constexpr std::pair<TextView, const char*> classes[] = {
    {u"IPM.SCHEDULE.MEETING.REQUEST", "a meeting request"},
    {u"IPM.TASKREQUEST", "a task request"},
};

std::string mail_client(TextView version) {
    for (const auto& [major, name] : versions)
        if (numeric_value(version) == major) return name;
    return "Outlook " + to_utf8(version);
}

std::string kind(const Item& item) {
    const Text upper = upper_case(item.message_class);
    for (const auto& [message_class, words] : classes)
        if (upper == message_class) return words;
    if (upper != u"IPM.NOTE") return "an item of the class " + to_utf8(item.message_class);
    if (item.editor_type == 1) return "a plain-text message";
    if (item.editor_type == 3) return "a rich-text message";
    return item.is_word_mail ? "a Word-written message" : "an HTML message";
}

std::string setting(const Story& story, const char* section, const char* key) {
    const Json settings = story.outcome.value("settings", Json::object());
    const Json keys = settings.value(section, Json::object());
    return text_of(keys, key);
}

std::string dressing(const Story& story, const Item& item) {
    if (item.editor_type == 1) return "went out turned into HTML, and stamped";
    const std::string signature = setting(story, "User Settings", "Signature");
    const std::string sheet = setting(story, "User Settings", "Template");
    return "went out dressed in " + sheet +
           (signature == "none" ? " without a signature" : " with the signature " + signature) +
           ", and stamped";
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

Fate fate_of(const Story& story, const Send& send) {
    if (send.cancelled) return Fate::held_back;
    const Item& before = story.scenario.items.at(send.item);
    const Json& after = story.outcome.at("items").at(send.item);
    const bool stamped = text_of(after, "BillingInformation") == to_utf8(host::stamps::dressed) &&
                         before.billing_information != host::stamps::dressed;
    if (stamped) return Fate::dressed;
    const bool same_subject = to_utf8(before.subject) == text_of(after, "Subject");
    return same_body(before, after) && same_subject ? Fate::untouched : Fate::changed;
}

std::string_view name_of(Fate fate) {
    switch (fate) {
    case Fate::dressed:
        return "dressed";
    case Fate::changed:
        return "changed otherwise";
    case Fate::untouched:
        return "left alone";
    default:
        return "held back";
    }
}

std::size_t held_by(const Story& story) {
    return story.outcome.value("references", Json::object()).value("held", std::size_t{0});
}

std::string what_came_in(const Story& story, const Send& send) {
    const Item& item = story.scenario.items.at(send.item);
    return kind(item) + " from " + mail_client(story.scenario.host.version);
}

std::string what_happened(const Story& story, const Send& send) {
    switch (fate_of(story, send)) {
    case Fate::dressed:
        return dressing(story, story.scenario.items.at(send.item));
    case Fate::changed:
        if (same_body(story.scenario.items.at(send.item), story.outcome.at("items").at(send.item)))
            return "went out as it was written, with a note in its subject";
        return left_at(send) == "internal mail" ? "went out with the short signature and no stamp"
                                                : "went out changed, without the stamp";
    case Fate::untouched:
        return "went out exactly as it was written";
    default:
        return "was held back";
    }
}

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
