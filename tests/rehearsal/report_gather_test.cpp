#include "rehearsal/report/gather.h"
#include "rehearsal/report/reasons.h"
#include "rehearsal/report/words.h"

#include <gtest/gtest.h>

using namespace ornavel;
using namespace ornavel::rehearsal;
using namespace ornavel::rehearsal::report;

namespace {

Json scenario_in_mode(const char* mode) {
    return {
        {"settings",
         {{"Admin Settings", {{"HTM Files Path", "C:\\s"}, {"SigEmail", "a@b.example"}, {"SigWebsite", "b"}}},
          {"User Settings", {{"SettingButtonBar", mode}, {"Template", "t.htm"}, {"Signature", "none"}}}}},
        {"files", {{"C:\\s\\t.htm", "<B>[#Input your message here#]</B>"}}},
        {"items", {{{"HTMLBody", "<P>Hello"}}}},
        {"do", {"connect", "start", {{"send", 0}}, "shutdown", {{"disconnect", 0}}}}};
}

Story gathered(const Json& scenario, const std::optional<Json>& dll_outcome = {}) {
    return gather(read_scenario(scenario, "test", Binding::native), "test", dll_outcome);
}

} // namespace

TEST(ReportGather, ADressedMessagePassesEveryGateToTheLast) {
    const Story story = gathered(scenario_in_mode("auto"));
    ASSERT_EQ(story.sends.size(), 1u);
    EXPECT_EQ(end_of_the_way(story.sends[0]), "all gates passed");
    EXPECT_EQ(fate_of(story, story.sends[0]), Fate::dressed);
    EXPECT_GT(story.sends[0].calls, 0u);
    EXPECT_EQ(held_by(story), 0u);
    EXPECT_FALSE(story.with_dll);
}

TEST(ReportGather, ASendThatLeavesTellsItsGateAndReason) {
    const Story story = gathered(scenario_in_mode("off"));
    EXPECT_EQ(left_at(story.sends.at(0)), "entry mode");
    EXPECT_EQ(fate_of(story, story.sends[0]), Fate::untouched);
}

TEST(ReportGather, TheOutcomeOfTheDllIsToldAndCompared) {
    const Json scenario = scenario_in_mode("auto");
    Json outcome = gathered(scenario).outcome;
    EXPECT_TRUE(gathered(scenario, outcome).differences.empty());

    outcome["items"][0]["Subject"] = "another";
    const Story story = gathered(scenario, outcome);
    EXPECT_TRUE(story.with_dll);
    EXPECT_EQ(story.differences,
              std::vector<std::string>{"items[0].Subject: native \"\", real DLL \"another\""});
    EXPECT_EQ(text_of(story.outcome["items"][0], "Subject"), "another");
}

TEST(ReportGather, ADllThatCrashedIsADifferenceAndTheNativePlayIsShown) {
    const Story story = gathered(scenario_in_mode("auto"), Json{{"error", "the add-in crashed"}});
    EXPECT_FALSE(story.with_dll);
    EXPECT_FALSE(story.differences.empty());
    EXPECT_EQ(fate_of(story, story.sends.at(0)), Fate::dressed);
}
