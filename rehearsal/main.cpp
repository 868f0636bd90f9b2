#include "rehearsal/comparison.h"
#include "rehearsal/expectation.h"
#include "rehearsal/native/command_line.h"
#include "rehearsal/native/native_play.h"
#include "rehearsal/native/wine_play.h"
#include "rehearsal/notes.h"
#include "rehearsal/report/report.h"

#include <fstream>
#include <iostream>
#include <set>

namespace ornavel::rehearsal {
namespace {

constexpr int exit_played = 0, exit_failed = 1, exit_unusable = 2;

std::vector<Json> play_natively(const std::vector<Loaded>& all) {
    std::vector<Json> outcomes;
    for (const auto& loaded : all) outcomes.push_back(play_natively(loaded.scenario, loaded.source));
    return outcomes;
}

/// What is to be said about an outcome: whether the add-in let nothing out, did what is expected, and did the
/// same in both plays where there were two.
std::vector<std::string> complaints(const Loaded& loaded, const Json& outcome, const Json* with_dll) {
    std::vector<std::string> lines;
    if (!outcome.at("error").is_null()) lines.push_back("error: " + outcome["error"].dump());
    if (loaded.scenario.expect)
        for (auto& line : mismatches(*loaded.scenario.expect, outcome)) lines.push_back(std::move(line));
    if (with_dll)
        for (const auto& difference : differences(outcome, *with_dll)) lines.push_back(to_line(difference));
    return lines;
}

/// Notes are said once for each file: cases share the world that most of them are about.
void tell_notes(const std::vector<Loaded>& all, const std::vector<Json>& outcomes) {
    std::set<std::string> said;
    for (std::size_t i = 0; i < all.size(); ++i)
        for (const auto& note : notes_on(all[i].scenario, outcomes[i]))
            if (said.insert(all[i].file + ": " + note).second)
                std::cerr << "note: " << all[i].source << ": " << note << '\n';
}

bool is_good(const Loaded& loaded, const Json& outcome, const Json* with_dll) {
    const auto lines = complaints(loaded, outcome, with_dll);
    for (const auto& line : lines) std::cerr << loaded.source << ": " << line << '\n';
    return lines.empty();
}

void write_out(const std::string& file, const Json& outcome) {
    if (file.empty()) {
        std::cout << to_json_text(outcome);
        return;
    }
    std::ofstream stream(file, std::ios::binary);
    if (!(stream << to_json_text(outcome)).flush()) throw Unusable(file + ": can't be written");
}

int rehearse(const CommandLine& line) {
    const auto all = load(line.scenarios, line.binding);
    std::vector<Json> outcomes, with_dll;
    std::vector<WindowPictures> pictures;
    if (line.binding != Binding::wine) outcomes = play_natively(all);
    if (line.binding != Binding::native)
        with_dll = line.report.empty() ? play_under_wine(all) : play_under_wine(all, pictures);
    if (line.binding == Binding::wine) outcomes.swap(with_dll);
    tell_notes(all, outcomes);
    bool good = true;
    for (std::size_t i = 0; i < all.size(); ++i)
        good = is_good(all[i], outcomes[i], with_dll.empty() ? nullptr : &with_dll[i]) && good;
    const bool single = line.scenarios.size() == 1 && all.size() == 1 && !all[0].is_of_suite();
    write_out(line.out, single ? outcomes[0] : Json(outcomes));
    if (!line.report.empty())
        report::write_report(line.report, all, line.binding == Binding::wine ? outcomes : with_dll, pictures,
                             line.out.empty() ? std::cerr : std::cout);
    return good ? exit_played : exit_failed;
}

} // namespace
} // namespace ornavel::rehearsal

int main(int count, char** words) {
    using namespace ornavel::rehearsal;
    try {
        const CommandLine line = read_command_line({words + 1, words + count});
        if (!line.help) return rehearse(line);
        std::cout << help_text;
        return exit_played;
    } catch (const Unusable& error) {
        std::cerr << error.what() << '\n';
        return exit_unusable;
    }
}
