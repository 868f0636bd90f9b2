#include "rehearsal/native/wine_play.h"
#include "rehearsal/report/gather.h"
#include "rehearsal/report/page.h"
#include "rehearsal/report/reasons.h"
#include "rehearsal/report/words.h"

#include <algorithm>
#include <fstream>
#include <iostream>

namespace ornavel::rehearsal::report {
namespace {

struct CommandLine {
    Binding binding = Binding::wine;
    std::string page;
    std::vector<std::string> scenarios;
};

CommandLine read_command_line(const std::vector<std::string>& words) {
    if (words.size() < 3 || (words[0] != "native" && words[0] != "wine"))
        throw Unusable("usage: report native|wine PAGE.html SCENARIO.json...");
    return {
        words[0] == "native" ? Binding::native : Binding::wine, words[1], {words.begin() + 2, words.end()}};
}

/// One line for each send: what came in, what happened, how long it took, what was left.
void print(const Story& story) {
    for (const auto& send : story.sends)
        std::cout << "  " << capital(what_came_in(story, send)) << ' ' << what_happened(story, send) << ": "
                  << end_of_the_way(send) << ", " << milliseconds(send.milliseconds) << ", "
                  << counted(held_by(story), "reference") << " left\n";
    for (const auto& part : story.differences)
        std::cout << "    the two plays differ in \"" << part << "\"\n";
    for (const auto& line : story.mismatches) std::cout << "    " << line << '\n';
}

bool is_good(const Story& story) {
    return story.outcome.at("error").is_null() && held_by(story) == 0 && story.differences.empty() &&
           story.mismatches.empty();
}

int report(const CommandLine& line) {
    const auto all = load(line.scenarios, line.binding);
    std::vector<Json> with_dll;
    if (line.binding == Binding::wine) with_dll = play_under_wine(all);
    std::vector<Story> stories;
    for (std::size_t i = 0; i < all.size(); ++i) {
        stories.push_back(gather(all[i].scenario, all[i].source,
                                 with_dll.empty() ? std::nullopt : std::optional(with_dll[i])));
        print(stories.back());
    }
    std::ofstream stream(line.page, std::ios::binary);
    if (!(stream << page(stories)).flush()) throw Unusable(line.page + ": can't be written");
    std::cout << "The report: " << line.page << '\n';
    return std::ranges::all_of(stories, is_good) ? 0 : 1;
}

} // namespace
} // namespace ornavel::rehearsal::report

int main(int count, char** words) {
    using namespace ornavel::rehearsal;
    try {
        return report::report(report::read_command_line({words + 1, words + count}));
    } catch (const Unusable& error) {
        std::cerr << error.what() << '\n';
        return 2;
    }
}
