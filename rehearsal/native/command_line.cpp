#include "rehearsal/native/command_line.h"

#include <algorithm>

namespace ornavel::rehearsal {
namespace {

constexpr const char* usage =
    "usage: rehearse [--binding native|wine|both] [--out OUTCOME.json] [--report PAGE.html] SCENARIO.json...";

Binding binding_of(const std::string& name) {
    if (name == "native") return Binding::native;
    if (name == "wine") return Binding::wine;
    if (name == "both") return Binding::both;
    throw Unusable("--binding: expected native, wine or both");
}

struct Option {
    const char* name;
    void (*take)(CommandLine&, const std::string& value);
};

constexpr Option options[] = {
    {"--binding", [](CommandLine& line, const std::string& value) { line.binding = binding_of(value); }},
    {"--out", [](CommandLine& line, const std::string& value) { line.out = value; }},
    {"--report", [](CommandLine& line, const std::string& value) { line.report = value; }},
};

/// Takes the option at this place, with its value; gives back the place of its last word.
std::size_t take_option(CommandLine& line, const std::vector<std::string>& words, std::size_t place) {
    const std::string& word = words[place];
    const auto equals = word.find('=');
    const std::string name = word.substr(0, equals);
    const auto option =
        std::ranges::find_if(options, [&](const Option& known) { return known.name == name; });
    if (option == std::end(options)) throw Unusable(name + ": unknown argument");
    if (equals == std::string::npos) ++place;
    const std::string value = equals != std::string::npos ? word.substr(equals + 1)
                              : place < words.size()      ? words[place]
                                                          : "";
    if (value.empty()) throw Unusable(name + ": needs a value");
    option->take(line, value);
    return place;
}

} // namespace

CommandLine read_command_line(const std::vector<std::string>& words) {
    CommandLine line;
    line.help = std::ranges::find(words, "--help") != words.end();
    if (line.help) return line;
    for (std::size_t place = 0; place < words.size(); ++place) {
        if (words[place].starts_with("-"))
            place = take_option(line, words, place);
        else
            line.scenarios.push_back(words[place]);
    }
    if (line.scenarios.empty()) throw Unusable(usage);
    return line;
}

const char* const help_text = R"(usage: rehearse [OPTION...] SCENARIO.json...

Plays each scenario, and each case of a suite, in a world of its own and writes the outcomes as JSON.

  --binding native   with the add-in's code built for this machine
  --binding wine     with the real DLL under Wine (this is the default)
  --binding both     one after the other; prints where the outcomes differ, and writes the native one
  --out FILE         writes the outcome there and not to the standard output
  --report PAGE.html writes a page that shows what became of each message
  --help             prints this

Exit code: 0 when everything was played and came out as expected, 1 when not, 2 for what can't be played.
)";

} // namespace ornavel::rehearsal
