#include "rehearsal/expectation.h"
#include "rehearsal/native/native_play.h"
#include "rehearsal/native/wine_play.h"

#include <fstream>
#include <iostream>

namespace ornavel::rehearsal {
namespace {

constexpr int exit_played = 0, exit_failed = 1, exit_unusable = 2;

struct CommandLine {
    Binding binding = Binding::wine;
    std::string out;
    std::vector<std::string> scenarios;
};

Binding binding_of(const std::string& name) {
    if (name == "native") return Binding::native;
    if (name == "wine") return Binding::wine;
    throw Unusable("--binding: expected native or wine");
}

CommandLine read_command_line(int count, char** words) {
    CommandLine line;
    for (int index = 1; index < count; ++index) {
        const std::string word = words[index];
        const auto value = [&] {
            if (++index == count) throw Unusable(word + ": needs a value");
            return std::string(words[index]);
        };
        if (word == "--binding")
            line.binding = binding_of(value());
        else if (word == "--out")
            line.out = value();
        else if (word.starts_with("-"))
            throw Unusable(word + ": unknown argument");
        else
            line.scenarios.push_back(word);
    }
    if (line.scenarios.empty())
        throw Unusable("usage: rehearse [--binding native|wine] [--out OUTCOME.json] SCENARIO.json...");
    return line;
}

std::vector<Json> play(const std::vector<Loaded>& all, Binding binding) {
    if (binding == Binding::wine) return play_under_wine(all);
    std::vector<Json> outcomes;
    for (const auto& loaded : all) outcomes.push_back(play_natively(loaded.scenario, loaded.file));
    return outcomes;
}

/// Whether the add-in let nothing out and did what is expected. Says on the error stream what it did not.
bool is_good(const Loaded& loaded, const Json& outcome) {
    bool good = true;
    const auto complain = [&](const std::string& line) {
        std::cerr << loaded.file << ": " << line << '\n';
        good = false;
    };
    if (!outcome.at("error").is_null()) complain("error: " + outcome["error"].dump());
    if (loaded.scenario.expect)
        for (const auto& line : mismatches(*loaded.scenario.expect, outcome)) complain(line);
    return good;
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
    std::vector<Loaded> all;
    for (const auto& file : line.scenarios) all.push_back(load(file, line.binding));
    const Json outcomes = play(all, line.binding);
    bool good = true;
    for (std::size_t i = 0; i < all.size(); ++i) good = is_good(all[i], outcomes[i]) && good;
    write_out(line.out, outcomes.size() == 1 ? outcomes[0] : outcomes);
    return good ? exit_played : exit_failed;
}

} // namespace
} // namespace ornavel::rehearsal

int main(int count, char** words) {
    using namespace ornavel::rehearsal;
    try {
        return rehearse(read_command_line(count, words));
    } catch (const Unusable& error) {
        std::cerr << error.what() << '\n';
        return exit_unusable;
    }
}
