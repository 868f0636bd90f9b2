#include "rehearsal/report/reasons.h"

#include <gtest/gtest.h>

using namespace ornavel;
using namespace ornavel::rehearsal;
using namespace ornavel::rehearsal::report;

namespace {

Send send_through(std::vector<GateVisit> gates) { return {0, 0, false, 1.5, 0, std::move(gates)}; }

/// A story whose send read these settings, "Section / Key".
Story story_with(Named<Text> read, Item item = {}) {
    Story story;
    for (const auto& [setting, value] : read)
        story.journal.push_back({0, Deed::read_setting, setting, value});
    story.scenario.items = {std::move(item)};
    return story;
}

std::string way(const Story& story, std::vector<GateVisit> gates) {
    return way_through_the_gates(story, send_through(std::move(gates)));
}

} // namespace

TEST(ReportReasons, TheGateThatASendLeftAtIsTheFirstThatDidNotPass) {
    EXPECT_EQ(left_at(send_through({{"entry mode", true}, {"message class", false}})), "message class");
    EXPECT_EQ(left_at(send_through({{"entry mode", true}})), "");
}

TEST(ReportReasons, ASendThatPassedTheLastGatePassedAll) {
    const auto send = send_through({{"entry mode", true}, {"stamping", true}});
    EXPECT_FALSE(ended_by_error(send));
    EXPECT_EQ(end_of_the_way(send), "all gates passed");
    EXPECT_EQ(way_through_the_gates(story_with({}), send), "It passed all 2 gates.");
}

TEST(ReportReasons, ASendThatEndsBetweenTwoGatesWasEndedByAnError) {
    const auto send = send_through({{"entry mode", true}, {"composition", true}});
    EXPECT_TRUE(ended_by_error(send));
    EXPECT_EQ(end_of_the_way(send), "an error behind “composition”");
}

TEST(ReportReasons, ASendThatMetNoGateMetNoAddIn) {
    EXPECT_EQ(way(story_with({}), {}), "The add-in was not connected.");
}

TEST(ReportReasons, TheSettingThatDecidedIsShownWithItsValueWithoutRegardToCase) {
    const auto story = story_with({{u"user settings / settingbuttonbar", u"off"}});
    EXPECT_EQ(
        way(story, {{"entry mode", false}}),
        "It left at the first gate, “entry mode”: the mode (SettingButtonBar) is “off”, and only “auto” "
        "dresses.");
}

TEST(ReportReasons, ThePropertyThatDecidedIsShown) {
    const auto story = story_with({}, {.message_class = u"IPM.Task", .parent = u"Outbox"});
    EXPECT_EQ(way(story, {{"entry mode", true}, {"message class", false}}),
              "It passed 1 gate and left at “message class”: its class is IPM.Task, and only IPM.Note is "
              "dressed.");
    EXPECT_EQ(
        way(story, {{"resend from the Outbox", false}}),
        "It left at the first gate, “resend from the Outbox”: it lies in the folder “Outbox” and carries "
        "the stamp of an earlier send.");
}

TEST(ReportReasons, InternalMailSaysWhetherRichTextOrTheRecipientsDecided) {
    const Named<Text> skip = {{u"Admin Settings / SkipInternal", u"1"}};
    EXPECT_TRUE(
        way(story_with(skip), {{"internal mail", false}}).ends_with("every recipient counts as internal."));
    EXPECT_TRUE(way(story_with(skip, {.editor_type = 3}), {{"internal mail", false}})
                    .ends_with("rich text is then left as it is."));
}
