#include "rehearsal/report/gather.h"
#include "rehearsal/report/page.h"
#include "rehearsal/report/words.h"

#include <gtest/gtest.h>

using namespace ornavel;
using namespace ornavel::rehearsal;
using namespace ornavel::rehearsal::report;

namespace {

/// A message in HTML from Outlook 2003, and what became of it.
Story story_of(Json item_after, Item before = {}) {
    Story story;
    if (before.html_body.empty()) before.html_body = u"<P>Hello";
    story.scenario.name = u"R&D <writes>";
    story.scenario.items = {before};
    story.outcome = {{"items", Json::array({std::move(item_after)})},
                     {"settings", {{"User Settings", {{"Template", "a.htm"}, {"Signature", "b.htm"}}}}},
                     {"error", nullptr},
                     {"references", {{"held", 0}}}};
    story.sends = {{0, 0, false, 1.5, 0, {{"entry mode", true}, {"stamping", true}}}};
    return story;
}

/// The same, stamped.
Story dressed_story(const char* html) {
    return story_of({{"HTMLBody", html}, {"BillingInformation", "Ornavel from Brevant"}});
}

void read_template(Story& story, bool failed = false) {
    story.journal.push_back({0, Deed::read_setting, u"Admin Settings / HTM Files Path", u"C:\\t\\"});
    story.journal.push_back(
        {0, Deed::read_file, u"C:\\t\\a.htm", {}, true, failed, failed ? u"File not found" : u""});
}

void read_signature(Story& story) {
    story.journal.push_back({0, Deed::read_setting, u"Admin Settings / Signatures Path", u"C:\\s"});
    story.journal.push_back({0, Deed::read_file, u"c:\\S\\b.htm"});
}

const Origin today{"2003-11-20 14:05", "1a2b3c4", "3.9.9"};

Json unchanged() { return {{"HTMLBody", "<P>Hello"}, {"Body", ""}, {"Subject", ""}}; }

Json with(Json item, const char* member, const char* value) {
    item[member] = value;
    return item;
}

} // namespace

TEST(ReportWords, AStampedItemIsDressedInWhatWasRead) {
    auto story = dressed_story("<TABLE><P>Hello");
    read_template(story);
    read_signature(story);
    EXPECT_EQ(fate_of(story, story.sends[0]), Fate::dressed);
    EXPECT_EQ(what_happened(story, story.sends[0]),
              "went out dressed in a.htm with the signature b.htm, and stamped");
}

TEST(ReportWords, ATemplateOrSignatureThatIsSetAndWasNotReadIsNotSaidToBeThere) {
    auto story = dressed_story("<TABLE><P>Hello");
    read_template(story, true);
    EXPECT_EQ(what_happened(story, story.sends[0]),
              "went out stamped, without a template and without a signature");
}

TEST(ReportWords, AnItemThatWasStampedBeforeIsNotDressedAgain) {
    Item before;
    before.billing_information = u"Ornavel from Brevant";
    const auto story = story_of(with(unchanged(), "BillingInformation", "Ornavel from Brevant"), before);
    EXPECT_EQ(fate_of(story, story.sends[0]), Fate::untouched);
}

TEST(ReportWords, AChangedBodyWithoutAStampIsSaidToBeChanged) {
    const auto story = story_of(with(unchanged(), "HTMLBody", "<P>Hello<P>Jo"));
    EXPECT_EQ(what_happened(story, story.sends[0]), "went out changed, without the stamp");
}

TEST(ReportWords, WhatLeftAtTheGateForInternalMailGotTheShortSignature) {
    auto story = story_of(with(unchanged(), "HTMLBody", "<P>Hello<P>Jo"));
    story.sends[0].gates = {{"internal mail", false}};
    EXPECT_EQ(what_happened(story, story.sends[0]), "went out with the short signature and no stamp");
}

TEST(ReportWords, AMarkInTheSubjectAloneIsSaidToBeThat) {
    const auto story = story_of(with(unchanged(), "Subject", "Exclaimer"));
    EXPECT_EQ(what_happened(story, story.sends[0]), "went out as it was written, with a note in its subject");
}

TEST(ReportWords, ACancelledSendIsHeldBack) {
    auto story = story_of(unchanged());
    story.sends[0].cancelled = true;
    EXPECT_EQ(fate_of(story, story.sends[0]), Fate::held_back);
}

TEST(ReportWords, WhatCameInNamesTheKindAndTheMailClient) {
    const auto came_in = [](TextView version, Item item) {
        auto story = story_of(unchanged(), std::move(item));
        story.scenario.host.version = version;
        return what_came_in(story, story.sends[0]);
    };
    EXPECT_EQ(came_in(u"9.0.0.3821", {}), "an HTML message from Outlook 2000");
    EXPECT_EQ(came_in(u"10.0.2627", {.editor_type = 1}), "a plain-text message from Outlook 2002");
    EXPECT_EQ(came_in(u"11.0.5608", {.is_word_mail = true}), "a Word-written message from Outlook 2003");
    EXPECT_EQ(came_in(u"11.0.5608", {.message_class = u"IPM.Schedule.Meeting.Request"}),
              "a meeting request from Outlook 2003");
    EXPECT_EQ(came_in(u"12.0.4518", {.editor_type = 3}), "a rich-text message from Outlook 2007");
    EXPECT_EQ(came_in(u"14.0.4760", {.body_format = 1}), "a plain-text message from Outlook 2010");
    EXPECT_EQ(came_in(u"15.0.4420", {.editor_type = 1, .body_format = 2}),
              "an HTML message from Outlook 2013");
    EXPECT_EQ(came_in(u"16.0", {}), "an HTML message from Outlook 2016 or later");
}

TEST(ReportPage, NamesOfStoriesAreText) {
    const auto html = page({story_of(unchanged())}, today);
    EXPECT_NE(html.find("R&amp;D &lt;writes&gt;"), std::string::npos);
    EXPECT_EQ(html.find("<writes>"), std::string::npos);
}

TEST(ReportPage, NeedsNothingOutsideItself) {
    const auto html = page({story_of(with(unchanged(), "HTMLBody", "<IMG src='http://a.example/'>"))}, today);
    for (const char* outside : {"<script ", "<link", "src=\"http", "url(", "@import"})
        EXPECT_EQ(html.find(outside), std::string::npos) << outside;
}

TEST(ReportPage, TellsWhenOfWhatAndOfWhichVersionItIs) {
    EXPECT_NE(page({}, today).find("Ornavel 3.9.9, commit 1a2b3c4, 2003-11-20 14:05"), std::string::npos);
    EXPECT_NE(page({}, {"2003-11-20 14:05", "", "3.9.9"}).find("Ornavel 3.9.9, 2003-11-20 14:05"),
              std::string::npos);
}
