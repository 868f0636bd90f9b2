#include "rehearsal/report/page.h"
#include "rehearsal/report/png.h"
#include "tests/rehearsal/holds.h"

#include <gtest/gtest.h>

using namespace ornavel;
using namespace ornavel::rehearsal;
using namespace ornavel::rehearsal::report;

namespace {

Json form_with(const Json& controls) {
    return {{"windows", {{{"form", "frmCake"}, {"caption", "Cakes"}, {"controls", controls}}}}};
}

Story story_with(const Json& outcome) {
    Story story;
    story.outcome = outcome;
    return story;
}

/// Of 2 by 1 pixels: red and blue.
std::string small_bmp() {
    std::string bmp(54, '\0');
    bmp.replace(0, 2, "BM");
    bmp[18] = 2, bmp[22] = 1, bmp[28] = 32;
    return bmp + std::string("\x00\x00\xFF\x00\xFF\x00\x00\x00", 8);
}

} // namespace

TEST(ReportChanges, ARegistryValueIsShownWithTheOneThatItReplaced) {
    const std::string key = "HKEY_CURRENT_USER\\Software\\Cake";
    Story story = story_with({{"registry", {{key, {{"Candles", 7}, {"Icing", "white"}, {"Old", nullptr}}}}}});
    story.scenario.registry = {{u"HKEY_CURRENT_USER\\software\\cake", {{u"candles", std::uint32_t{6}}}}};
    const std::string section = changes_section(story);
    EXPECT_TRUE(holds(section, "<td class=\"value\">6</td>\n<td>7</td>")) << section;
    EXPECT_TRUE(holds(section, "<td class=\"value\">not there</td>\n<td>white</td>")) << section;
    EXPECT_TRUE(holds(section, "<td>removed</td>")) << section;
}

TEST(ReportChanges, AFileStandsBesideTheOneThatItWasMadeFrom) {
    Story story = story_with(
        {{"files",
          {{"C:\\out\\jo.html", "<b>Jo"}, {"C:\\out\\log.txt", "a line"}, {"C:\\gone.txt", nullptr}}}});
    story.scenario.files = {{u"C:\\in\\jo_template.rtf", "no"}, {u"C:\\in\\jo_template.htm", "<b>[#Name#]"}};
    const std::string section = changes_section(story);
    EXPECT_LT(section.find("jo_template.htm"), section.find("C:\\out\\jo.html"));
    EXPECT_FALSE(holds(section, "jo_template.rtf"));
    EXPECT_TRUE(holds(section, "2 files written"));
    EXPECT_TRUE(holds(section, "<li>C:\\gone.txt</li>"));
}

TEST(ReportChanges, AMessageThatNoUserWroteIsShownWithItsRecipients) {
    const Story story = story_with({{"mails",
                                     {{{"Recipients", {"ann@example.com", "ben@example.com"}},
                                       {"Subject", "Cake"},
                                       {"Body", "at four"}}}}});
    const std::string section = changes_section(story);
    EXPECT_TRUE(holds(section, "1 message of its own"));
    EXPECT_TRUE(holds(section, "ann@example.com, ben@example.com: Cake")) << section;
}

TEST(ReportChanges, WhatAProgramWasGivenIsShown) {
    Story story = story_with(Json::object());
    story.scenario.files = {{u"C:\\list.csv", "Name"}};
    EXPECT_EQ(changes_section(story), "");
    story.scenario.acts.emplace_back().kind = Act::Kind::run;
    EXPECT_TRUE(holds(changes_section(story), "1 file given"));
}

TEST(ReportChanges, AStoryThatLeftNothingHasNoSuchSection) {
    EXPECT_EQ(changes_section(story_with({{"registry", Json::object()}, {"files", Json::object()}})), "");
}

TEST(ReportWindows, AFormWithoutAPictureIsDrawnAsATableOfWhatItShows) {
    const Story story = story_with(form_with(
        {{"chkGift", {{"kind", "CheckBox"}, {"caption", "A gift"}, {"visible", true}, {"ticked", true}}},
         {"cboSize",
          {{"kind", "ComboBox"}, {"text", "large"}, {"items", {"small", "large"}}, {"visible", true}}},
         {"txtHidden", {{"kind", "TextBox"}, {"text", "unseen"}, {"visible", false}}}}));
    const std::string section = windows_section(story);
    EXPECT_TRUE(holds(section, "\u2611 A gift")) << section;
    EXPECT_TRUE(holds(section, "<td class=\"value\">small, large</td>")) << section;
    EXPECT_FALSE(holds(section, "unseen"));
}

TEST(ReportWindows, AFormIsShownAsItsPicture) {
    Story story = story_with(form_with({{"chkGift", {{"kind", "CheckBox"}, {"visible", true}}}}));
    story.pictures[0] = small_bmp();
    const std::string section = windows_section(story);
    EXPECT_TRUE(holds(section, "<img alt=\"Cakes\" src=\"data:image/png;base64,iVBORw0KGgo")) << section;
    EXPECT_FALSE(holds(section, "<details>"));
}

TEST(ReportPng, APictureOfAnotherKindOrCutShortIsRefused) {
    const std::string bmp = small_bmp();
    EXPECT_TRUE(png_of_bmp(bmp).starts_with("\x89PNG"));
    EXPECT_THROW(png_of_bmp(bmp.substr(0, bmp.size() - 1)), std::runtime_error);
    EXPECT_THROW(png_of_bmp("GIF89a"), std::runtime_error);
}
