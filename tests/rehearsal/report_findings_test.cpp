#include "rehearsal/report/findings.h"

#include "rehearsal/report/gather.h"
#include "rehearsal/report/page.h"
#include "rehearsal/report/words.h"

#include <gtest/gtest.h>

#include <algorithm>

using namespace ornavel;
using namespace ornavel::rehearsal;
using namespace ornavel::rehearsal::report;

namespace {

constexpr const char* sheet = "C:\\t\\t.htm";

/// A message that is dressed without a word.
Json good_scenario() {
    return {
        {"settings",
         {{"Admin Settings",
           {{"HTM Files Path", "C:\\t"},
            {"Signatures Path", "C:\\s"},
            {"SigEmail", "a@b.example"},
            {"SigWebsite", "b"},
            {"EmailErrorNotify", "False"},
            {"ErrorFileLocation", "C:\\log.txt"}}},
          {"User Settings", {{"SettingButtonBar", "auto"}, {"Template", "t.htm"}, {"Signature", "s.htm"}}}}},
        {"files", {{sheet, "<B>[#Input your message here#]</B>"}, {"C:\\s\\s.htm", "<P>Jo"}}},
        {"items", {{{"HTMLBody", "<P>Hello Ann"}}}},
        {"do", {"connect", "start", {{"send", 0}}, "shutdown", {{"disconnect", 0}}}}};
}

Story played(const Json& scenario) {
    return gather(read_scenario(scenario, "test", Binding::native), "test", std::nullopt);
}

struct Told {
    Fate fate;
    std::vector<std::string> findings;
    std::string happened, section;

    explicit Told(const Json& scenario) {
        const Story story = played(scenario);
        const Send& send = story.sends.at(0);
        fate = fate_of(story, send);
        findings = findings_in(story, send);
        happened = what_happened(story, send);
        section = story_section(story, 1);
    }

    bool has(std::string_view words) const { return section.find(words) != std::string::npos; }
    bool finds(std::string_view words) const {
        return std::ranges::any_of(findings,
                                   [&](const auto& finding) { return finding.find(words) != finding.npos; });
    }
};

Json with_template(const char* html) {
    Json scenario = good_scenario();
    scenario["files"][sheet] = html;
    return scenario;
}

Json with_failing(Json failing) {
    Json scenario = good_scenario();
    scenario["fail"] = Json::array({std::move(failing)});
    return scenario;
}

} // namespace

TEST(ReportFindings, AGoodSendLeavesNothingToLookAt) {
    const Told told(good_scenario());
    EXPECT_EQ(told.fate, Fate::dressed);
    EXPECT_EQ(told.findings, std::vector<std::string>());
    EXPECT_EQ(told.happened, "went out dressed in t.htm with the signature s.htm, and stamped");
    EXPECT_FALSE(told.has("Look at this"));
}

TEST(ReportFindings, AMissingTemplateIsNoDress) {
    Json scenario = good_scenario();
    scenario["files"].erase(sheet);
    const Told told(scenario);
    EXPECT_EQ(told.fate, Fate::dressed_but);
    EXPECT_TRUE(told.has("Look at this"));
    EXPECT_TRUE(told.finds("The error log says: CreateHTMLBody"));
    EXPECT_TRUE(told.finds("The template t.htm is not there."));
    EXPECT_TRUE(told.happened.starts_with("went out stamped, without a template")) << told.happened;
}

TEST(ReportFindings, ATemplateThatTookThePlaceOfAMissingOneIsTold) {
    Json scenario = good_scenario();
    scenario["files"]["C:\\t\\other.htm"] = scenario["files"][sheet];
    scenario["files"].erase(sheet);
    const Told told(scenario);
    EXPECT_EQ(told.fate, Fate::dressed_but);
    EXPECT_EQ(told.findings, std::vector<std::string>{"The template t.htm is not there."});
    EXPECT_TRUE(told.happened.starts_with("went out dressed in other.htm")) << told.happened;
}

TEST(ReportFindings, AMissingSignatureIsTold) {
    Json scenario = good_scenario();
    scenario["files"].erase("C:\\s\\s.htm");
    const Told told(scenario);
    EXPECT_EQ(told.fate, Fate::dressed_but);
    EXPECT_TRUE(told.finds("The signature s.htm is not there."));
}

TEST(ReportFindings, ATemplateWithoutThePlaceForTheMessageLosesIt) {
    const Told told(with_template("<B>Letterhead</B>"));
    EXPECT_EQ(told.fate, Fate::dressed_but);
    EXPECT_TRUE(told.finds("The user's text is not all there; missing is “Hello Ann”."));
    EXPECT_TRUE(told.finds("Nobody answered the window “Brevant Template error”."));
}

TEST(ReportFindings, FieldsThatAreLeftOverAreToldOnce) {
    const Told told(with_template("[#Input your message here#][#Colour#] [#Colour#]"));
    EXPECT_EQ(told.findings, std::vector<std::string>{"The field [#Colour#] is left over."});
    EXPECT_EQ(told.fate, Fate::dressed_but);
}

TEST(ReportFindings, PicturesThatAreNotThereAreTold) {
    Json scenario = with_template("<BODY BACKGROUND='C:\\p\\paper.gif'>[#Input your message here#]"
                                  "<IMG SRC=\"file:///C:/p/a%20logo.gif\"><IMG SRC=http://a.example/x.gif>");
    EXPECT_EQ(Told(scenario).findings,
              (std::vector<std::string>{"The picture C:\\p\\paper.gif is not there.",
                                        "The picture C:\\p\\a logo.gif is not there."}));
    scenario["files"]["C:\\p\\paper.gif"] = scenario["files"]["C:\\P\\A Logo.gif"] = "GIF89a";
    EXPECT_EQ(Told(scenario).fate, Fate::dressed);
}

TEST(ReportFindings, AnErrorInAGateIsAFailure) {
    const Told told(with_failing({{"member", "MailItem.MessageClass"}, {"says", "no <class>"}}));
    EXPECT_EQ(told.fate, Fate::failed);
    EXPECT_EQ(told.happened, "went out as an error left it");
    EXPECT_TRUE(told.finds("The error log says: ol_ItemSend"));
    EXPECT_TRUE(told.finds("no <class>"));
    EXPECT_TRUE(told.has("<li class=\"ended\">an error</li>"));
}

TEST(ReportFindings, ALogThatCannotBeWrittenIsTold) {
    Json scenario = with_failing({{"member", "MailItem.MessageClass"}});
    scenario["fail"].push_back({{"write file", "C:\\log.txt"}, {"says", "The disk is full."}});
    EXPECT_TRUE(Told(scenario).finds("The error log can't be written: The disk is full."));
}

TEST(ReportFindings, AFailedCallIsListedAsOneWithItsWords) {
    const Told told(with_failing({{"member", "MailItem.MessageClass"}, {"says", "no <class>"}}));
    EXPECT_TRUE(told.has("<tr class=\"failed\"><td class=\"verb\">get</td>\n<td class=\"what\">MailItem."
                         "MessageClass</td>\n<td class=\"value\">failed: no &lt;class&gt;</td>"));
    EXPECT_TRUE(told.has(", 1 failed</summary>"));
}

TEST(ReportFindings, CallsDuringTheSendAreNotAllCalls) {
    const Story story = played(good_scenario());
    const auto in_all = std::ranges::count_if(story.journal, [](const JournalEntry& entry) {
        return entry.deed == Deed::get || entry.deed == Deed::put || entry.deed == Deed::call;
    });
    EXPECT_GT(static_cast<std::size_t>(in_all), story.sends[0].calls);
    EXPECT_NE(story_section(story, 1).find(std::to_string(story.sends[0].calls) +
                                           " calls into the mail client during the send, " +
                                           std::to_string(in_all) + " in all."),
              std::string::npos);
}

TEST(ReportFindings, WhatIsNotAsExpectedIsCountedAndMarked) {
    Json scenario = good_scenario();
    scenario["expect"] = {{"items", {{{"Subject", "another"}}}}};
    const auto html = page({played(scenario)}, {});
    EXPECT_NE(html.find("<dt>not as expected</dt>\n<dd>1</dd>"), std::string::npos);
    EXPECT_NE(html.find("<span class=\"pill bad\">not as expected</span>"), std::string::npos);
    EXPECT_EQ(page({played(good_scenario())}, {}).find("not as expected"), std::string::npos);
}

TEST(ReportFindings, AWindowShowsWhatTheUserDidInIt) {
    Json scenario = with_template("<B>Letterhead</B>");
    scenario["user"] = Json::array({{{"at", "Brevant Template error"}, {"answer", "OK"}}});
    const Told told(scenario);
    EXPECT_TRUE(told.has("<em>answered OK</em>"));
    EXPECT_FALSE(told.finds("Nobody answered"));
    EXPECT_TRUE(Told(with_template("")).has("<em>nobody answered; it counts as OK</em>"));
}
