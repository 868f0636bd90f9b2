// fault_matrix [--every N] [--samples N FILE] SCENARIO.json...: replays each scenario once for each use that
// the add-in makes of the mail client, the files, the settings, other programs and windows, and for each kind
// of fault, with that use going wrong. Prints what came of it; exit code 1 when anything did. With --samples
// it leaves N of the replays in a file instead, as scenarios for every binding: those in which a member of
// the mail client fails. Memory that the add-in asks for is refused in the same way: each piece in ten
// scenarios, fifty spread ones in each other. With --every only each Nth replay is played, other ones in each
// scenario.
#include "rehearsal/native/apart.h"
#include "rehearsal/native/loaded.h"
#include "rehearsal/native/native_play.h"
#include "rehearsal/report/gather.h"
#include "tests/faults/judge.h"
#include "tests/faults/scarce_memory.h"

#include "base/encoding.h"

#include <fstream>
#include <iostream>
#include <thread>

#include <sys/wait.h>
#include <unistd.h>

namespace ornavel::faults {
namespace {

using namespace rehearsal;

constexpr Fault kinds[] = {Fault::failure, Fault::described_failure, Fault::disconnected, Fault::wrong_type,
                           Fault::empty_value};
constexpr const char* kind_names[] = {"failure", "described failure", "disconnected", "wrong type",
                                      "empty value"};

/// Of step replays of a scenario one is played: the one behind those that are left out.
struct Share {
    std::size_t step, left_out;

    bool takes(std::size_t replay) const { return replay % step == left_out; }
};

struct Count {
    const char* name;
    std::size_t times;
};

/// What all replays came to. A replay in which the user's script met other windows than it was written for
/// has no outcome; all that it shows is that nothing was let out.
struct Tally {
    std::size_t runs = 0, escaped = 0, blocked = 0, half_dressed = 0, leaked = 0, silent = 0,
                half_written = 0, unfinished = 0, without_memory = 0;

    void add(const Verdict& verdict) {
        escaped += verdict.escaped;
        blocked += verdict.blocked;
        half_dressed += verdict.half_dressed;
        leaked += verdict.leaked;
        silent += verdict.silent;
        half_written += verdict.half_written;
    }
    void add(const Tally& other) {
        runs += other.runs;
        escaped += other.escaped;
        blocked += other.blocked;
        half_dressed += other.half_dressed;
        leaked += other.leaked;
        silent += other.silent;
        half_written += other.half_written;
        unfinished += other.unfinished;
        without_memory += other.without_memory;
    }
    std::size_t bad() const { return escaped + blocked + half_dressed + leaked + silent + half_written; }
};

Play play(const Loaded& loaded, Failures& failures) {
    Journal journal;
    Play result;
    result.outcome = play_here(loaded.scenario, loaded.source, journal, failures);
    result.sends = report::sends_of(loaded.scenario, result.outcome, journal);
    return result;
}

void tell(const Loaded& loaded, const std::string& fault, const Verdict& verdict) {
    std::cerr << loaded.source << ": " << fault << ":" << (verdict.escaped ? " escaped" : "")
              << (verdict.blocked ? " blocked" : "") << (verdict.half_dressed ? " half-dressed" : "")
              << (verdict.leaked ? " leaked" : "") << (verdict.silent ? " silent" : "")
              << (verdict.half_written ? " half-written" : "") << '\n';
}

void replay(const Loaded& loaded, const Play& sound, std::size_t use, Fault fault, Tally& tally) {
    Failures failures(loaded.scenario.fail);
    failures.plant(fault, use);
    try {
        const Play faulty = play(loaded, failures);
        if (!failures.has_struck()) return; // this kind of fault can't befall this use
        ++tally.runs;
        const Planted planted{fault, failures.uses().at(use - 1)};
        const Verdict verdict = judge(loaded.scenario, sound, faulty, planted);
        tally.add(verdict);
        if (!verdict.good())
            tell(loaded,
                 "use " + std::to_string(use) + " (" + to_utf8(planted.use.subject) + ", " +
                     kind_names[static_cast<int>(planted.fault)] + ")",
                 verdict);
    } catch (const Unusable&) {
        ++tally.runs;
        ++tally.unfinished;
    }
}

/// With memory that is refused once, or from then on.
void replay_without_memory(const Loaded& loaded, const Play& sound, std::size_t first_refused,
                           ScarceMemory::Lasts lasts, Tally& tally) {
    Failures failures(loaded.scenario.fail);
    ++tally.runs;
    ++tally.without_memory;
    try {
        const ScarceMemory memory(first_refused, lasts);
        const Play faulty = play(loaded, failures);
        const Verdict verdict = judge_without_memory(loaded.scenario, sound, faulty);
        tally.add(verdict);
        if (!verdict.good())
            tell(loaded,
                 "allocation " + std::to_string(first_refused) +
                     (lasts == ScarceMemory::Lasts::once ? "" : " and all that follow"),
                 verdict);
    } catch (const Unusable&) {
        ++tally.unfinished;
    }
}

std::size_t allocations_of(const Loaded& loaded) {
    Failures failures(loaded.scenario.fail);
    const ScarceMemory memory;
    play(loaded, failures);
    return memory.asked();
}

void replay_without_memory(const Loaded& loaded, const Play& sound, Share share, bool whole, Tally& tally) {
    constexpr std::size_t spread = 50;
    const std::size_t asked = allocations_of(loaded), tries = whole ? asked : std::min(spread, asked);
    for (std::size_t i = 0; i < tries; ++i) {
        if (!share.takes(i)) continue;
        const std::size_t allocation = 1 + i * asked / tries;
        for (const auto lasts : {ScarceMemory::Lasts::once, ScarceMemory::Lasts::from_then_on})
            replay_without_memory(loaded, sound, allocation, lasts, tally);
    }
}

Tally replay_all(const Loaded& loaded, Share share, bool every_allocation) {
    Failures failures(loaded.scenario.fail);
    const Play sound = play(loaded, failures);
    Tally tally;
    std::size_t replays = 0;
    for (std::size_t use = 1; use <= failures.uses().size(); ++use)
        for (const Fault fault : kinds)
            if (share.takes(replays++)) replay(loaded, sound, use, fault, tally);
    replay_without_memory(loaded, sound, share, every_allocation, tally);
    return tally;
}

/// Runs a body for each of a number of tasks, each in a process of its own, some at a time. Gives the number
/// of processes that did not end well.
std::size_t run_in_processes(std::size_t tasks, const std::function<void(std::size_t)>& body) {
    const std::size_t most = std::max(1u, std::thread::hardware_concurrency());
    std::size_t running = 0, bad = 0;
    const auto wait_for_one = [&] {
        int status = 0;
        if (wait(&status) < 0) return;
        --running;
        bad += !WIFEXITED(status) || WEXITSTATUS(status) != 0;
    };
    for (std::size_t task = 0; task < tasks; ++task) {
        if (running == most) wait_for_one();
        if (fork() == 0) {
            body(task);
            _exit(0);
        }
        ++running;
    }
    while (running > 0) wait_for_one();
    return bad;
}

Tally replay_everything(const std::vector<std::string>& files, std::size_t step) {
    const auto all = load(files, Binding::native);
    constexpr std::size_t ten_wholly = 10;
    const ScratchFolder scratch;
    const auto result = [&](std::size_t i) { return scratch / std::to_string(i); };
    Tally sum;
    sum.escaped = run_in_processes(all.size(), [&](std::size_t i) {
        const bool every_allocation = i * ten_wholly / all.size() != (i + 1) * ten_wholly / all.size();
        const Tally tally = replay_all(all[i], {step, i % step}, every_allocation);
        std::ofstream(result(i), std::ios::binary).write(reinterpret_cast<const char*>(&tally), sizeof tally);
    });
    for (std::size_t i = 0; i < all.size(); ++i) {
        Tally tally;
        std::ifstream stream(result(i), std::ios::binary);
        if (stream.read(reinterpret_cast<char*>(&tally), sizeof tally))
            sum.add(tally);
        else
            std::cerr << all[i].source << ": the add-in crashed\n";
    }
    return sum;
}

/// The scenario with a failing use, counted among those of its own member, as any binding can play it.
Json with_failure(const Loaded& loaded, const std::vector<Failures::Use>& uses, std::size_t use) {
    const Text& member = uses[use].subject;
    const auto of_member = std::count_if(uses.begin(), uses.begin() + static_cast<std::ptrdiff_t>(use) + 1,
                                         [&](const auto& other) { return other.subject == member; });
    Json scenario = with_files_inside(loaded.json, loaded.scenario);
    scenario["name"] =
        to_utf8(loaded.scenario.name + u", " + member + u" fails at use " + to_text(of_member));
    scenario.erase("expect");
    scenario["fail"].push_back({{"member", to_json(member)}, {"use", of_member}});
    return scenario;
}

/// Whether the user's script still fits when this use fails.
bool is_playable(const Loaded& loaded, std::size_t use) {
    Failures failures(loaded.scenario.fail);
    failures.plant(Fault::described_failure, use + 1);
    try {
        play(loaded, failures);
        return true;
    } catch (const Unusable&) {
        return false;
    }
}

/// A suite of cases spread evenly over all uses of all scenarios.
void leave_samples(std::size_t wanted, const std::string& suite, const std::vector<std::string>& files) {
    std::vector<Json> all;
    for (const Loaded& loaded : load(files, Binding::wine)) {
        Failures failures(loaded.scenario.fail);
        play(loaded, failures);
        for (std::size_t use = 0; use < failures.uses().size(); ++use)
            if (failures.uses()[use].kind == Failing::Kind::member && is_playable(loaded, use))
                all.push_back(with_failure(loaded, failures.uses(), use));
    }
    Json cases = Json::array();
    for (std::size_t i = 0; i < wanted && i < all.size(); ++i)
        cases.push_back(all[i * all.size() / std::min(wanted, all.size())]);
    std::ofstream(suite) << to_json_text({{"about", "one use that fails"}, {"cases", std::move(cases)}});
}

int print(const Tally& tally) {
    const Count rows[] = {{"runs", tally.runs},
                          {"of these without memory", tally.without_memory},
                          {"escapes", tally.escaped},
                          {"sends blocked by a fault", tally.blocked},
                          {"half-dressed items", tally.half_dressed},
                          {"leaks", tally.leaked},
                          {"errors that nobody is told of", tally.silent},
                          {"changes of a program half written", tally.half_written},
                          {"not played to the end", tally.unfinished}};
    for (const auto& [name, times] : rows) std::printf("%-34s %8zu\n", name, times);
    return tally.runs > 0 && tally.bad() == 0 ? 0 : 1;
}

} // namespace
} // namespace ornavel::faults

int main(int count, char** arguments) {
    using namespace ornavel::faults;
    std::vector<std::string> words(arguments + 1, arguments + count);
    if (words.size() > 3 && words[0] == "--samples") {
        leave_samples(std::stoul(words[1]), words[2], {words.begin() + 3, words.end()});
        return 0;
    }
    std::size_t step = 1;
    if (words.size() > 2 && words[0] == "--every") {
        step = std::max(1ul, std::stoul(words[1]));
        words.erase(words.begin(), words.begin() + 2);
    }
    return print(replay_everything(words, step));
}
