#include "base/encoding.h"
#include "connect/send_pipeline.h"
#include "rehearsal/native/native_play.h"
#include "tests/equality/over_scenarios.h"
#include "workbench/log_reader.h"

#include <algorithm>
#include <map>

// Plays every scenario with the system check on, explains the log that it leaves, and compares with the gates
// that the sends really passed: the true way out is the one that is named, or among those that are.

namespace ornavel::equality {
namespace {

using namespace rehearsal;

constexpr TextView log_path = u"C:\\rehearsed checks\\check.log";

/// The system check goes on just before each send, so that nobody is asked about it.
void log_each_send(Scenario& scenario) {
    scenario.folders.push_back(u"C:\\rehearsed checks");
    std::vector<Act> acts;
    for (const Act& act : scenario.acts) {
        if (act.kind == Act::Kind::send) {
            Act set;
            set.kind = Act::Kind::set;
            set.settings = {{u"System Settings", {{u"SystemCheck", u"True"}}},
                            {u"Admin Settings", {{u"ErrorFileLocation", Text(log_path)}}}};
            set.given = {{"set", Json::object()}};
            set.path = act.path;
            acts.push_back(set);
        }
        acts.push_back(act);
    }
    scenario.acts = std::move(acts);
    scenario.expect.reset();
}

struct TrueWay {
    Text left; ///< the gate; empty for a send that left at none
    bool reached_records = false, dressed = false, ended_by_error = false, plain = false;
};

std::vector<TrueWay> true_ways(const Scenario& scenario, const Journal& journal) {
    std::vector<TrueWay> ways;
    for (std::size_t act = 0; act < scenario.acts.size(); ++act) {
        if (scenario.acts[act].kind != Act::Kind::send) continue;
        TrueWay way;
        Text last;
        for (const JournalEntry& entry : journal.entries()) {
            if (entry.act != act || entry.deed != Deed::gate) continue;
            last = entry.what;
            if (entry.value == u"left") way.left = entry.what;
            way.reached_records |= entry.what == u"system check switch" && entry.value == u"passed";
            way.dressed |= entry.what == u"composition" && entry.value == u"passed";
            way.plain |= entry.what == u"composition" && entry.value == u"off";
        }
        way.ended_by_error = way.left.empty() && last != u"stamping";
        if (way.reached_records) ways.push_back(way);
    }
    return ways;
}

bool agrees(const TrueWay& truth, const workbench::Way& told) {
    if (truth.ended_by_error || truth.plain) return !told.dressed && !told.remark.empty();
    if (truth.dressed) return told.dressed;
    return !told.dressed &&
           std::ranges::find(told.left, truth.left, &workbench::WayOut::gate) != told.left.end();
}

struct Counts {
    int right = 0, wrong = 0, skipped = 0;
    std::map<std::string, int> ways;
};

std::string told_as(const workbench::Way& way) {
    std::string text = way.dressed ? "dressed" : to_utf8(way.remark);
    for (const auto& left : way.left) text += " [" + to_utf8(left.gate) + "]";
    return text;
}

void check(Loaded loaded, Counts& counts) {
    log_each_send(loaded.scenario);
    Journal journal;
    Json outcome;
    try {
        outcome = play_here(loaded.scenario, loaded.source, journal);
    } catch (const Unusable&) {
        ++counts.skipped;
        return;
    }
    const auto& files = outcome.at("files");
    const std::string name = to_utf8(log_path);
    if (!files.contains(name) || !files.at(name).is_string()) return;
    auto sends = workbench::sends_in(from_utf8(files.at(name).get<std::string>()));
    std::erase_if(sends, [](const workbench::LoggedSend& send) { return send.records.empty(); });
    const auto truth = true_ways(loaded.scenario, journal);
    if (sends.size() != truth.size()) {
        ++counts.skipped; // sends inside sends are told as well
        return;
    }
    for (std::size_t at = 0; at < truth.size(); ++at) {
        const auto told = workbench::way_of(sends[at]);
        const bool right = agrees(truth[at], told);
        ++(right ? counts.right : counts.wrong);
        ++counts.ways[truth[at].dressed        ? "dressed"
                      : truth[at].left.empty() ? "an error"
                                               : to_utf8(truth[at].left)];
        if (!right)
            std::cout << loaded.source << ": " << to_utf8(truth[at].left) << "; told: " << told_as(told)
                      << '\n';
    }
}

int print(const Counts& counts) {
    for (const auto& [way, count] : counts.ways) std::cout << count << " times: " << way << '\n';
    std::cout << counts.skipped << " scenarios can't be played so\n";
    std::cout << counts.right << " passed, " << counts.wrong << " failed\n";
    return counts.wrong == 0 && counts.ways.size() >= 10 ? 0 : 1;
}

} // namespace
} // namespace ornavel::equality

int main(int count, char** words) {
    using namespace ornavel::equality;
    return over_scenarios<Counts>({words + 1, words + count}, check, print);
}
