#include "tests/coverage/gaps.h"

#include "rehearsal/native/native_play.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace ornavel::coverage {
namespace {

using rehearsal::Deed;
using Lines = std::vector<std::string>;

/// What one scenario with these entries in its journal comes to.
Tally tally_of(std::initializer_list<rehearsal::JournalEntry> entries) {
    rehearsal::Scenario scenario;
    scenario.name = u"a story";
    rehearsal::Journal journal;
    for (const auto& entry : entries) journal.note(entry.deed, entry.what, entry.value, entry.found);
    Tally tally;
    tally.add(scenario, journal);
    return tally;
}

Excuses excuses(const char* json) { return read_excuses(rehearsal::parse_json(json, "excuses"), "excuses"); }

std::string refusal(const char* json) {
    try {
        excuses(json);
    } catch (const rehearsal::Unusable& error) {
        return error.what();
    }
    return "accepted";
}

TEST(Coverage, AScenarioCountsOnceForWhatItComesToTwice) {
    const Tally tally = tally_of({{0, Deed::gate, u"quote", u"off"},
                                  {1, Deed::gate, u"quote", u"off"},
                                  {1, Deed::gate, u"quote", u"passed"}});
    EXPECT_EQ(tally.verdicts.at(u"quote: off").scenarios, 1u);
    EXPECT_EQ(tally.verdicts.at(u"quote: off").example, u"a story");
    EXPECT_EQ(tally.verdicts.at(u"quote: passed").scenarios, 1u);
    EXPECT_FALSE(tally.verdicts.contains(u"quote: left"));
}

TEST(Coverage, WhatAProgramReadsCountsNotAsReadByTheAddIn) {
    rehearsal::Scenario scenario;
    scenario.acts.resize(2);
    scenario.acts[1].kind = rehearsal::Act::Kind::run;
    rehearsal::Journal journal;
    journal.note(Deed::read_setting, u"A / by the add-in", u"x");
    journal.begin_act(1);
    journal.note(Deed::read_setting, u"A / by a program", u"x");
    Tally tally;
    tally.add(scenario, journal);
    EXPECT_TRUE(tally.settings.contains(u"A / by the add-in"));
    EXPECT_FALSE(tally.settings.contains(u"A / by a program"));
    EXPECT_TRUE(tally.program_settings.at(u"A / by a program").values.contains(u"x"));
}

TEST(Coverage, TheFirstScenarioIsTheExample) {
    Tally tally = tally_of({{0, Deed::window, u"frmMessage", u"a"}});
    rehearsal::Scenario later;
    later.name = u"a later one";
    rehearsal::Journal journal;
    journal.note(Deed::window, u"frmMessage", u"b");
    tally.add(later, journal);
    const Hits& hits = tally.windows.at(u"frmMessage");
    EXPECT_EQ(hits.scenarios, 2u);
    EXPECT_EQ(hits.example, u"a story");
    EXPECT_EQ(hits.values, (std::set<Text>{u"a", u"b"}));
}

TEST(Coverage, ASettingCountsWhereItIsReadWithAValueOfItsOwn) {
    const Text setting = u"Admin Settings / EmailErrorNotify";
    const Tally by_default =
        tally_of({{0, Deed::read_setting, setting, u"", false}, {0, Deed::read_setting, setting, u"True"}});
    EXPECT_EQ(by_default.settings.at(setting).scenarios, 0u);
    EXPECT_EQ(by_default.settings.at(setting).values, (std::set<Text>{Text(absent), u"True"}));
    EXPECT_EQ(tally_of({{0, Deed::read_setting, setting, u"False"}}).settings.at(setting).scenarios, 1u);
    EXPECT_TRUE(tally_of({{0, Deed::save_setting, setting, u"False"}}).settings.empty());
}

TEST(Coverage, ANumberThatTheTableLacksIsNotShown) {
    const Tally tally = tally_of({{0, Deed::string, u"5014", u"OK"}, {0, Deed::string, u"99", u"", false}});
    EXPECT_TRUE(tally.strings.contains(u"5014"));
    EXPECT_FALSE(tally.strings.contains(u"99"));
}

const Known two_traps{{}, {u"one", u"two"}, {}};

TEST(Coverage, WhatNoScenarioComesToIsAGapUnlessItIsExcused) {
    const Tally tally = tally_of({{0, Deed::trap, u"one"}});
    EXPECT_EQ(gaps(two_traps, tally, {}), Lines{R"(trap "two": no scenario comes to it)"});
    EXPECT_EQ(gaps(two_traps, tally, excuses(R"([{"because": "not yet", "traps": ["two"]}])")), Lines());
}

TEST(Coverage, AnExcuseThatIsNotNeededOrNamesNothingIsAGap) {
    const Tally tally = tally_of({{0, Deed::trap, u"one"}, {0, Deed::trap, u"two"}});
    EXPECT_EQ(gaps(two_traps, tally, excuses(R"([{"because": "not yet", "traps": ["two", "three"]}])")),
              (Lines{R"(trap "three": is excused, and there is none)",
                     R"(trap "two": is excused, and a scenario comes to it)"}));
}

TEST(Coverage, ATrapThatIsSprungAndNotKnownIsAGap) {
    const Tally tally =
        tally_of({{0, Deed::trap, u"one"}, {0, Deed::trap, u"two"}, {0, Deed::trap, u"three"}});
    EXPECT_EQ(gaps(two_traps, tally, {}), Lines{R"(trap "three": is sprung, and nobody knows it)"});
}

TEST(Coverage, VerdictsAndSettingsHaveGapsToo) {
    const Known known{{u"quote: off"}, {}, {u"Admin Settings / Help"}};
    EXPECT_EQ(gaps(known, {}, {}), (Lines{R"(verdict "quote: off": no scenario comes to it)",
                                          R"(setting "Admin Settings / Help": no scenario comes to it)"}));
}

TEST(Coverage, ExcusesAreReadStrictly) {
    EXPECT_EQ(refusal(R"([{"because": "x", "gates": []}])"), "excuses: [0].gates: unknown member");
    EXPECT_EQ(refusal(R"([{"traps": []}])"), "excuses: [0]: because: missing");
    EXPECT_EQ(refusal(R"([{"because": "x", "traps": ["a"]}, {"because": "y", "traps": ["a"]}])"),
              "excuses: [1].traps[0]: excused twice");
}

TEST(Coverage, KnowsWhatTheProgramHas) {
    const Known all = known();
    const auto has = [](const std::vector<Text>& names, TextView name) {
        return std::ranges::find(names, name) != names.end();
    };
    EXPECT_TRUE(has(all.verdicts, u"entry mode: left"));
    EXPECT_TRUE(has(all.traps, u"ol_ItemSend, stamping"));
    EXPECT_TRUE(has(all.traps, u"read Word's document"));
    EXPECT_TRUE(has(all.settings, u"User Settings / Template"));
    for (const auto* names : {&all.verdicts, &all.traps, &all.settings})
        EXPECT_EQ(std::set<Text>(names->begin(), names->end()).size(), names->size());
}

TEST(Coverage, ARehearsalNotesVerdictsTrapsSettingsAndTexts) {
    const char* const json = R"({"settings": {
        "Admin Settings": {"SigEmail": "a", "SigWebsite": "b", "StartupSetupWiz": "False", "ErrorFileSuppressEmail": "True"},
        "User Settings": {"SettingButtonBar": "auto"}},
        "items": [{}], "fail": [{"member": "MailItem.MessageClass"}], "do": ["connect", "start", {"send": 0}]})";
    const auto scenario =
        rehearsal::read_scenario(rehearsal::parse_json(json, "x"), "x", rehearsal::Binding::native);
    rehearsal::Journal journal;
    rehearsal::play_here(scenario, "x", journal);
    Tally tally;
    tally.add(scenario, journal);
    EXPECT_EQ(tally.verdicts.at(u"entry mode: passed").scenarios, 1u);
    EXPECT_EQ(tally.verdicts.at(u"wrapping: off").scenarios, 1u);
    EXPECT_EQ(tally.traps.at(u"ol_ItemSend, message class").scenarios, 1u);
    EXPECT_EQ(tally.settings.at(u"Admin Settings / SigEmail").values, std::set<Text>{u"a"});
    EXPECT_EQ(tally.settings.at(u"Admin Settings / UseRedemption").values, std::set<Text>{Text(absent)});
    EXPECT_EQ(tally.strings.at(u"5072").values, std::set<Text>{u"Ornavel On"});
}

} // namespace
} // namespace ornavel::coverage
