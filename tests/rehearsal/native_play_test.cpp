#include "rehearsal/native/native_play.h"

#include "rehearsal/native/apart.h"

#include <gtest/gtest.h>

#include <csignal>
#include <filesystem>
#include <fstream>

#include <sys/wait.h>
#include <unistd.h>

namespace ornavel::rehearsal {
namespace {

TEST(Apart, AProcessThatCrashesLeavesAnErrorInAWholeOutcome) {
    const ScratchFolder scratch;
    const int code = run_apart([]() -> int { return std::raise(SIGKILL); });
    Scenario scenario;
    scenario.name = u"crash";
    const Json collected = collect_outcome(code, scratch / "none.json", scenario, "crash.json");
    EXPECT_EQ(collected["error"], "the add-in crashed (signal 9)");
    EXPECT_EQ(collected["name"], "crash");
    EXPECT_EQ(collected["references"]["held"], 0);
}

TEST(Apart, TheReasonOfAnUnusableScenarioComesBack) {
    const ScratchFolder scratch;
    const std::string file = scratch / "outcome.json";
    const int code = run_apart([&] {
        std::ofstream(file) << "a.json: do[0]: no such button";
        return 2;
    });
    try {
        collect_outcome(code, file, {}, "a.json");
        ADD_FAILURE() << "accepted";
    } catch (const Unusable& error) {
        EXPECT_STREQ(error.what(), "a.json: do[0]: no such button");
    }
}

TEST(Apart, AReasonThatNamesNoScenarioIsGivenItsName) {
    const ScratchFolder scratch;
    const std::string file = scratch / "outcome.json";
    std::ofstream(file) << "no window could be had";
    try {
        collect_outcome(2, file, {}, "a.json");
        ADD_FAILURE() << "accepted";
    } catch (const Unusable& error) {
        EXPECT_STREQ(error.what(), "a.json: no window could be had");
    }
}

TEST(Apart, AnInterruptionTakesTheScratchFolderAndTheProcessThatPlaysAlong) {
    const ScratchFolder notes;
    int ready[2];
    ASSERT_EQ(pipe(ready), 0);
    const pid_t play = fork();
    if (play == 0) {
        const ScratchFolder scratch;
        std::ofstream(notes / "path") << scratch / "";
        run_apart([&]() -> int {
            std::ofstream(notes / "player") << getpid();
            return write(ready[1], "!", 1) == 1 ? pause() : 0;
        });
        _exit(0);
    }
    char sign = 0;
    ASSERT_EQ(read(ready[0], &sign, 1), 1);
    kill(play, SIGTERM);
    int status = 0;
    waitpid(play, &status, 0);
    EXPECT_TRUE(WIFSIGNALED(status) && WTERMSIG(status) == SIGTERM);
    EXPECT_FALSE(std::filesystem::exists(load_file(notes / "path")));
    EXPECT_NE(kill(std::stoi(load_file(notes / "player")), 0), 0) << "the player lives on";
}

TEST(NativePlay, PlaysTheAddInAndTellsItsJournal) {
    const char* const json = R"({"do": ["connect", "start", {"disconnect": 1}],
        "settings": {"Admin Settings": {"SigEmail": "a", "SigWebsite": "b"}}})";
    const Scenario scenario = read_scenario(parse_json(json, "x"), "x", Binding::native);
    Journal journal;
    const Json here = play_here(scenario, "x", journal);
    EXPECT_GT(journal.host_uses(0), 0u);
    Json apart = play_natively(scenario, "x");
    for (auto& act : apart["acts"]) act["milliseconds"] = 0;
    Json same = here;
    for (auto& act : same["acts"]) act["milliseconds"] = 0;
    EXPECT_EQ(apart, same);
    EXPECT_EQ(here["launched"].size(), 1u);
}

} // namespace
} // namespace ornavel::rehearsal
