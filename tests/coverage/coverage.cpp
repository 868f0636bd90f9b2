#include "tests/coverage/gaps.h"

#include "base/encoding.h"
#include "rehearsal/native/loaded.h"
#include "rehearsal/native/native_play.h"

#include <algorithm>
#include <iostream>

namespace ornavel::coverage {
namespace {

using namespace rehearsal;

/// The text with as many blanks behind it as it takes; "…" ends one that is too long.
std::string in_column(TextView text, std::size_t width) {
    const TextView shown = text.size() > width ? text.substr(0, width - 1) : text;
    return to_utf8(shown) + (shown.size() < text.size() ? "…" : std::string(width - shown.size(), ' '));
}

/// The first of the values, each on one line.
Text some_of(const std::set<Text>& values) {
    constexpr std::size_t most = 3;
    Text line;
    std::size_t count = 0;
    for (const Text& value : values) {
        if (count++ == most) break;
        line += (line.empty() ? u"" : u" | ") + (value.empty() ? Text(u"(empty)") : value);
    }
    for (char16_t& unit : line)
        if (unit < u' ') unit = u' ';
    return values.size() > most
               ? line + u" | " + to_text(static_cast<long long>(values.size() - most)) + u" more"
               : line;
}

constexpr std::size_t name_width = 44, count_width = 5, values_width = 40;

/// What was seen has a column of its own in sections where anything is seen.
void print_row(const Text& name, const Hits& hits, bool has_values) {
    std::cout << "  " << in_column(name, name_width) << ' '
              << in_column(to_text(static_cast<long long>(hits.scenarios)), count_width)
              << (has_values ? in_column(some_of(hits.values), values_width) + " " : "")
              << to_utf8(hits.example) << '\n';
}

void print(const char* title, const std::vector<Text>& names, const Section& section,
           const Reasons& reasons) {
    const bool has_values =
        std::ranges::any_of(section, [](const auto& row) { return !row.second.values.empty(); });
    std::size_t covered = 0;
    std::cout << '\n' << title << '\n';
    for (const Text& name : names) {
        const auto hits = section.find(name);
        const auto excuse = reasons.find(name);
        covered += hits != section.end() && hits->second.scenarios > 0;
        if (excuse != reasons.end())
            std::cout << "  " << in_column(name, name_width) << " -    " << to_utf8(excuse->second) << '\n';
        else
            print_row(name, hits == section.end() ? Hits{} : hits->second, has_values);
    }
    std::cout << title << ": " << covered;
    if (!reasons.empty()) std::cout << " of " << names.size() << ", " << reasons.size() << " excused";
    std::cout << '\n';
}

std::vector<Text> names_of(const Section& section) {
    std::vector<Text> names;
    for (const auto& [name, hits] : section) names.push_back(name);
    return names;
}

int print_coverage(const std::string& excuses_file, const std::vector<std::string>& files) {
    const Excuses excuses = read_excuses(parse_json(load_file(excuses_file), excuses_file), excuses_file);
    const Known all = known();
    Tally tally;
    for (const auto& loaded : load(files, Binding::native)) {
        Journal journal;
        play_here(loaded.scenario, loaded.source, journal);
        tally.add(loaded.scenario, journal);
    }
    print("Gates", all.verdicts, tally.verdicts, excuses.verdicts);
    print("Traps", all.traps, tally.traps, excuses.traps);
    print("Settings", all.settings, tally.settings, excuses.settings);
    print("Settings of the programs", names_of(tally.program_settings), tally.program_settings, {});
    print("Windows", names_of(tally.windows), tally.windows, {});
    print("Numbered texts", names_of(tally.strings), tally.strings, {});
    const auto missing = gaps(all, tally, excuses);
    for (const auto& line : missing) std::cout << line << '\n';
    return missing.empty() ? 0 : 1;
}

} // namespace
} // namespace ornavel::coverage

int main(int count, char** words) {
    using namespace ornavel;
    try {
        if (count < 3) throw rehearsal::Unusable("usage: coverage EXCUSES.json SCENARIO.json...");
        return coverage::print_coverage(words[1], {words + 2, words + count});
    } catch (const rehearsal::Unusable& error) {
        std::cerr << error.what() << '\n';
        return 2;
    }
}
