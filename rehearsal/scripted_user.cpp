#include "rehearsal/scripted_user.h"

namespace ornavel::rehearsal {
namespace {

bool fits(const UserEntry& entry, bool yes_no) {
    if (!entry.answer || !entry.steps.empty()) return false;
    return yes_no ? *entry.answer == u"Yes" || *entry.answer == u"No" : *entry.answer == u"OK";
}

} // namespace

ScriptedUser::ScriptedUser(const std::vector<UserEntry>& entries, std::string source)
    : entries_(entries.begin(), entries.end()), source_(std::move(source)) {}

std::optional<UserEntry> ScriptedUser::meet(TextView at) {
    if (entries_.empty() || (entries_.front().at != u"*" && entries_.front().at != at)) return {};
    auto entry = std::move(entries_.front());
    entries_.pop_front();
    return entry;
}

void ScriptedUser::complain(const std::string& path, const std::string& reason) {
    if (!complaint_) complaint_ = source_ + ": " + path + ": " + reason;
}

Json answer_message_box(ScriptedUser& user, TextView title, TextView text, Buttons buttons) {
    const bool yes_no = buttons != Buttons::ok;
    const auto entry = user.meet(title);
    const bool answered = entry && (entry->has_answer || !entry->steps.empty());
    if (answered && !fits(*entry, yes_no))
        user.complain(*entry, yes_no ? "the box has Yes and No only" : "the box has OK only");
    Text answer = yes_no ? u"No" : u"OK";
    if (answered && fits(*entry, yes_no)) answer = *entry->answer;
    Json record{{"message box", to_json(title)},
                {"text", to_json(text)},
                {"buttons", yes_no ? "YesNo" : "OK"},
                {"icon", yes_no ? "Question" : "Information"},
                {"answer", to_json(answer)}};
    if (buttons == Buttons::risky_yes_no) record["default"] = "No";
    if (!entry) record["unexpected"] = true;
    return record;
}

Json answer_input_box(ScriptedUser& user, TextView title, TextView prompt, TextView prefilled) {
    const auto entry = user.meet(title);
    if (entry && !entry->steps.empty()) user.complain(*entry, "the box takes an answer only");
    Json record{
        {"input box", to_json(title)}, {"prompt", to_json(prompt)}, {"prefilled", to_json(prefilled)}};
    record["answer"] = entry && entry->answer ? to_json(*entry->answer) : Json();
    if (!entry) record["unexpected"] = true;
    return record;
}

Json answer_path_dialog(ScriptedUser& user, TextView title) {
    const auto entry = user.meet(title);
    if (entry && !entry->steps.empty()) user.complain(*entry, "the dialog takes an answer only");
    Json record{{"file dialog", to_json(title)}};
    record["answer"] = entry && entry->answer ? to_json(*entry->answer) : Json();
    if (!entry) record["unexpected"] = true;
    return record;
}

} // namespace ornavel::rehearsal
