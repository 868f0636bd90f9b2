#include "base/encoding.h"
#include "rehearsal/native/native_play.h"
#include "tests/equality/command_line.h"
#include "tests/equality/over_scenarios.h"
#include "workbench/program.h"

#include <algorithm>
#include <map>
#include <sstream>

// Plays every scenario, and composes again with the workbench what a send of it composed: the texts are the
// same byte for byte. Says how many sends the command line can express, and why it can't express the others.

namespace ornavel::equality {
namespace {

using namespace rehearsal;

class StoppedClock final : public Clock {
public:
    LocalTime now() const override { return {}; }
};

/// How often each thing was met.
struct Counts {
    int equal = 0, different = 0, undressed = 0;
    std::map<std::string, int> obstacles;
};

bool was_composed(const Journal& journal) {
    return std::ranges::any_of(journal.entries(), [](const JournalEntry& entry) {
        return entry.deed == Deed::gate && entry.what == u"composition" && entry.value == u"passed";
    });
}

/// The sent item's body in the outcome.
std::string body_of(const Scenario& scenario, const Json& outcome) {
    const auto sent = std::ranges::find(scenario.acts, Act::Kind::send, &Act::kind);
    return outcome.at("items").at(static_cast<std::size_t>(sent->number)).at("HTMLBody").get<std::string>();
}

void compare(Loaded loaded, Counts& counts) {
    Journal journal;
    const Json outcome = play_here(loaded.scenario, loaded.source, journal);
    if (!was_composed(journal)) {
        ++counts.undressed;
        return;
    }
    MemoryDisk disk;
    const Expressed expressed = express(loaded.scenario, disk);
    if (!expressed.obstacle.empty()) {
        ++counts.obstacles[expressed.obstacle];
        return;
    }
    const StoppedClock clock;
    std::ostringstream said;
    workbench::run(expressed.words, {disk, clock, said, said});
    const bool written = disk.file_exists(u"X:\\out.html");
    const std::string composed = written ? disk.read(u"X:\\out.html") : "";
    const bool equal = written && composed == encode_html(from_utf8(body_of(loaded.scenario, outcome)));
    ++(equal ? counts.equal : counts.different);
    if (!equal)
        std::cout << loaded.source << ":\n  sent:     " << body_of(loaded.scenario, outcome)
                  << "\n  composed: " << composed << "\n  said:     " << said.str() << '\n';
}

int print(const Counts& counts) {
    std::cout << counts.undressed << " scenarios compose nothing\n";
    for (const auto& [why, count] : counts.obstacles)
        std::cout << count << " can't be expressed: " << why << '\n';
    std::cout << counts.equal << " passed, " << counts.different << " failed\n";
    return counts.different == 0 && counts.equal > 0 ? 0 : 1;
}

} // namespace
} // namespace ornavel::equality

int main(int count, char** words) {
    using namespace ornavel::equality;
    return over_scenarios<Counts>({words + 1, words + count}, compare, print);
}
