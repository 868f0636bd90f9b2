#include "tests/faults/judge.h"

#include "base/encoding.h"
#include "rehearsal/machine.h"
#include "rehearsal/report/reasons.h"

#include <algorithm>
#include <limits>

namespace ornavel::faults {
namespace {

using namespace rehearsal;
using report::Send;

/// Settings never fail towards the add-in, and a changed value is one that an administrator may have stored:
/// gates decide by them as ever.
bool is_a_value(const Planted& planted) {
    return planted.fault == Fault::wrong_type || planted.fault == Fault::empty_value ||
           planted.use.kind == Failing::Kind::read_setting || planted.use.kind == Failing::Kind::save_setting;
}

/// Whether a window came up for which the script had no user: closing it decides, too.
bool met_nobody(const Json& outcome) {
    return std::ranges::any_of(outcome.at("windows"),
                               [](const Json& window) { return window.value("unexpected", false); });
}

bool may_cancel(const Send& send, const Play& sound, const Play& faulty, const Planted& planted) {
    const auto before = std::ranges::find(sound.sends, send.act, &Send::act);
    if (before != sound.sends.end() && before->cancelled) return true;
    const bool later_send = send.act > planted.use.act;
    // A window that has no memory to take its user's answer is closed by its frame.
    const bool lost_an_answer = planted.is_memory && !faulty.outcome.at("windows").empty();
    return (is_a_value(planted) || later_send || lost_an_answer || met_nobody(faulty.outcome)) &&
           !report::left_at(send).empty();
}

/// Runs of letters outside of tags, long enough to be words of the user.
std::vector<std::string> words_of(const std::string& html) {
    std::vector<std::string> words;
    std::string word;
    bool in_tag = false;
    for (const char unit : html + " ") {
        const bool letter = (unit >= 'a' && unit <= 'z') || (unit >= 'A' && unit <= 'Z');
        if (letter && !in_tag) {
            word += unit;
            continue;
        }
        if (word.size() >= 4) words.push_back(word);
        word.clear();
        in_tag = unit == '<' || (in_tag && unit != '>');
    }
    return words;
}

/// A host or a disk that tells another text than there is, or another kind of it: what then goes out is not
/// the add-in's doing.
bool tells_another_text(const Planted& planted) {
    if (planted.fault != Fault::wrong_type && planted.fault != Fault::empty_value) return false;
    return planted.use.kind == Failing::Kind::read_file || planted.use.subject.ends_with(u".HTMLBody") ||
           planted.use.subject.ends_with(u".Body") || planted.use.subject.ends_with(u".EditorType") ||
           planted.use.subject.ends_with(u".BodyFormat");
}

bool lost_its_text(const std::string& body, const std::string& was, const std::string& sound) {
    const auto missing = [](const std::string& text, const std::string& word) {
        return text.find(word) == std::string::npos;
    };
    return std::ranges::any_of(
        words_of(was), [&](const std::string& word) { return missing(body, word) && !missing(sound, word); });
}

bool half_dressed(const Item& given, const Json& sound, const Json& faulty, const Planted& planted) {
    const std::string was = to_utf8(given.html_body.empty() ? given.body : given.html_body);
    const std::string body = faulty.at("HTMLBody"), sound_body = sound.at("HTMLBody");
    const bool undressed = body == to_utf8(given.html_body);
    const bool stamped = faulty.at("BillingInformation") == "Ornavel from Brevant" &&
                         given.billing_information != u"Ornavel from Brevant";
    // A template that can't be read leaves a message without a signature as it was; that is dressed, too.
    if (undressed) return stamped && sound_body != body && planted.use.kind == Failing::Kind::member;
    // Where the sound play left the item alone, nothing shows which words its layout keeps.
    if (sound_body == to_utf8(given.html_body)) return false;
    return !tells_another_text(planted) && lost_its_text(body, was, sound_body);
}

/// A scenario that has no usable log, or that keeps errors out of it, shows nothing about lines.
bool can_log(const Scenario& scenario) {
    const bool keeps_out = std::ranges::any_of(scenario.settings, [](const auto& section) {
        return std::ranges::any_of(section.second, [](const auto& setting) {
            return same_name(setting.first, u"ErrorFileExceptions") ||
                   same_name(setting.first, u"ErrorFileLocation");
        });
    });
    return scenario.fail.empty() && !keeps_out;
}

bool has_line(const Json& outcome) {
    return std::ranges::any_of(outcome.at("files"), [](const Json& text) {
        return text.is_string() && text.get<std::string>().find("ol_ItemSend") != std::string::npos;
    });
}

bool is_silent(const Send& faulty, const Play& sound, const Play& play) {
    const auto before = std::ranges::find(sound.sends, faulty.act, &Send::act);
    const bool was_gated = before != sound.sends.end() && !before->gates.empty();
    const bool error = report::ended_by_error(faulty) || (faulty.gates.empty() && was_gated);
    return error && !has_line(play.outcome);
}

bool ends_disconnected(const Scenario& scenario) {
    const auto last = std::find_if(scenario.acts.rbegin(), scenario.acts.rend(), [](const Act& act) {
        return act.kind == Act::Kind::connect || act.kind == Act::Kind::disconnect;
    });
    return last == scenario.acts.rend() || last->kind == Act::Kind::disconnect;
}

/// In the order in which an outcome lists them.
Json as_given(const SettingsTree& settings) {
    ByName<ByName<SettingValue>> sorted;
    for (const auto& [section, keys] : settings)
        for (const auto& [key, value] : keys) sorted[section].insert_or_assign(key, value);
    Json json = Json::object();
    for (const auto& [section, keys] : sorted)
        for (const auto& [key, value] : keys) {
            const Json text = to_json(stored_text(value));
            json[to_utf8(section)][to_utf8(key)] =
                std::holds_alternative<Text>(value) ? text : Json{{"expand", text}};
        }
    return json;
}

bool writes_for_its_user(const Act& act) { return act.kind == Act::Kind::run || act.kind == Act::Kind::page; }

bool begins_or_ends(const Act& act) {
    constexpr Act::Kind around[] = {Act::Kind::connect, Act::Kind::start, Act::Kind::shutdown,
                                    Act::Kind::disconnect};
    return std::ranges::find(around, act.kind) != std::end(around);
}

/// What came of the changes that a user made in one run of a program, or in one visit of the options page.
enum class Changes { of_no_concern, all, none, some };

Changes changes_of_user(const Scenario& scenario, const Play& sound, const Play& faulty,
                        const Planted& planted) {
    const auto others = std::ranges::count_if(scenario.acts, begins_or_ends);
    const bool is_one =
        others + 1 == std::ssize(scenario.acts) && std::ranges::any_of(scenario.acts, writes_for_its_user);
    if (!is_one || planted.use.kind != Failing::Kind::save_setting) return Changes::of_no_concern;
    if (!writes_for_its_user(scenario.acts[planted.use.act])) return Changes::of_no_concern;
    // The scenario names them in an order of its own.
    const auto in_order = [](const Json& settings) { return nlohmann::json(settings); };
    const auto settings = in_order(faulty.outcome.at("settings"));
    if (settings == in_order(sound.outcome.at("settings"))) return Changes::all;
    return settings == in_order(as_given(scenario.settings)) ? Changes::none : Changes::some;
}

bool is_told_of(const Json& outcome) {
    return std::ranges::any_of(outcome.at("windows"), [](const Json& window) {
        return window.contains("message box") &&
               window.at("text").get<std::string>().find("can't be written") != std::string::npos;
    });
}

} // namespace

Verdict judge(const Scenario& scenario, const Play& sound, const Play& faulty, const Planted& planted) {
    Verdict verdict;
    verdict.escaped = !faulty.outcome.at("error").is_null();
    const Changes changes = changes_of_user(scenario, sound, faulty, planted);
    verdict.half_written = changes == Changes::some;
    verdict.silent = changes == Changes::none && !is_told_of(faulty.outcome);
    verdict.leaked = ends_disconnected(scenario) && faulty.outcome.at("references").at("held") != 0;
    for (const Send& send : faulty.sends) {
        verdict.blocked |= send.cancelled && !may_cancel(send, sound, faulty, planted);
        verdict.silent |= send.act == planted.use.act && can_log(scenario) && is_silent(send, sound, faulty);
    }
    for (std::size_t i = 0; i < scenario.items.size(); ++i)
        verdict.half_dressed |= half_dressed(scenario.items[i], sound.outcome.at("items").at(i),
                                             faulty.outcome.at("items").at(i), planted);
    return verdict;
}

Verdict judge_without_memory(const Scenario& scenario, const Play& sound, const Play& faulty) {
    // Judged like a file that can't be read: it loses no text.
    const Planted planted{Fault::failure, {Failing::Kind::read_file, u"", 0}, true};
    Verdict verdict = judge(scenario, sound, faulty, planted);
    verdict.silent = false;
    return verdict;
}

} // namespace ornavel::faults
