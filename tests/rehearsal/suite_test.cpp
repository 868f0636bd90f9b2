#include "rehearsal/reader/suite.h"

#include "rehearsal/native/apart.h"
#include "rehearsal/native/loaded.h"

#include <gtest/gtest.h>

#include <fstream>

namespace ornavel::rehearsal {
namespace {

std::vector<WholeScenario> expand(const std::string& json) {
    return scenarios_of(parse_json(json, "gates.json"), "gates.json");
}

/// The scenario of the one case.
Json expanded(const std::string& world, const std::string& one_case) {
    return expand(R"({"world": )" + world + R"(, "cases": [)" + one_case + "]}").at(0).json;
}

std::string refusal_of_suite(const std::string& json) {
    try {
        for (const auto& whole : expand(json)) read_scenario(whole.json, whole.source, Binding::native);
    } catch (const Unusable& error) {
        return error.what();
    }
    return "accepted";
}

class Files {
public:
    std::string write(const std::string& name, const std::string& text) const {
        std::ofstream(folder_ / name) << text;
        return folder_ / name;
    }

private:
    ScratchFolder folder_;
};

TEST(Suite, AFileWithoutCasesIsOneScenario) {
    const auto all = expand(R"({"name": "alone", "do": []})");
    ASSERT_EQ(all.size(), 1u);
    EXPECT_EQ(all[0].source, "gates.json");
    EXPECT_EQ(all[0].file, "gates.json");
    EXPECT_EQ(all[0].json["name"], "alone");
}

TEST(Suite, EachCaseIsTheWorldWithItsOwnDifferences) {
    const auto all = expand(R"({
        "about": "modes",
        "world": {"settings": {"User Settings": {"Template": "a.htm", "Signature": "none"}}, "do": ["connect"]},
        "cases": [{"name": "as it is"},
                  {"name": "another", "settings": {"User Settings": {"Template": "b.htm"}}, "do": ["start"]}]})");
    ASSERT_EQ(all.size(), 2u);
    EXPECT_EQ(all[0].json["do"], Json({"connect"}));
    EXPECT_EQ(all[1].json["do"], Json({"start"}));
    EXPECT_EQ(all[1].json["settings"]["User Settings"], Json({{"Template", "b.htm"}, {"Signature", "none"}}));
    EXPECT_EQ(all[0].json["settings"]["User Settings"]["Template"], "a.htm");
    EXPECT_EQ(all[1].file, "gates.json");
    EXPECT_EQ(all[1].source, "gates.json: another");
}

TEST(Suite, ANullInACaseRemovesWhatTheWorldHas) {
    const Json json =
        expanded(R"({"settings": {"A": {"b": "1", "c": "2"}}, "host": {"explorers": 2}, "do": []})",
                 R"({"settings": {"A": {"b": null}, "N": {"x": null}}, "host": null, "clock": null})");
    EXPECT_EQ(json["settings"], Json({{"A", {{"c", "2"}}}, {"N", Json::object()}}));
    EXPECT_FALSE(json.contains("host"));
    EXPECT_FALSE(json.contains("clock"));
}

TEST(Suite, ANullInAnExpectationIsAValue) {
    const Json json = expanded(R"({"expect": {"error": null, "files": {"C:\\a": "text"}}})",
                               R"({"expect": {"files": {"C:\\a": null, "C:\\b": null}}})");
    EXPECT_EQ(json["expect"], Json::parse(R"({"error": null, "files": {"C:\\a": null, "C:\\b": null}})"));
    EXPECT_FALSE(expanded(R"({"expect": {"error": null}})", R"({"expect": null})").contains("expect"));
}

TEST(Suite, AnArrayIsReplacedWhole) {
    const Json json = expanded(R"({"user": [{"at": "*"}, {"at": "*"}], "expect": {"windows": [{}, {}]}})",
                               R"({"user": [{"at": "x", "answer": null}], "expect": {"windows": []}})");
    EXPECT_EQ(json["user"], Json::parse(R"([{"at": "x", "answer": null}])"));
    EXPECT_EQ(json["expect"]["windows"], Json::array());
}

TEST(Suite, TheOneMessageIsItemsThenTheWorldsItemThenTheCases) {
    const Json json = expanded(
        R"({"items": [{"Subject": "a", "Body": "b", "Parent": "c"}], "item": {"Body": "world", "Parent": "world", "Word": {}}})",
        R"({"item": {"Parent": "case", "Word": null}})");
    EXPECT_EQ(json["items"], Json::parse(R"([{"Subject": "a", "Body": "world", "Parent": "case"}])"));
    EXPECT_FALSE(json.contains("item"));
}

TEST(Suite, TheOneMessageIsThereWithoutItems) {
    EXPECT_EQ(expanded("{}", R"({"item": {"Subject": "a"}})")["items"], Json::parse(R"([{"Subject": "a"}])"));
    EXPECT_FALSE(expanded("{}", "{}").contains("items"));
}

TEST(Suite, TheItemsOfACaseTakeTheWorldsItemUnlessItIsNull) {
    const std::string world = R"({"item": {"Subject": "world"}})";
    EXPECT_EQ(expanded(world, R"({"items": [{"Body": "a"}]})")["items"],
              Json::parse(R"([{"Body": "a", "Subject": "world"}])"));
    EXPECT_EQ(expanded(world, R"({"item": null, "items": [{}, {}]})")["items"], Json::parse("[{}, {}]"));
    EXPECT_FALSE(expanded(world, R"({"item": null})").contains("items"));
}

TEST(Suite, ACaseWithoutANameIsCalledByWhatTheSuiteIsAboutAndItsNumber) {
    const auto all = expand(
        R"({"about": "resends", "world": {"name": "w"}, "cases": [{"name": "one"}, {}, {"name": null}]})");
    EXPECT_EQ(all[0].json["name"], "one");
    EXPECT_EQ(all[1].json["name"], "resends 2");
    EXPECT_EQ(all[2].json["name"], "resends 3");
    EXPECT_EQ(all[2].source, "gates.json: resends 3");
    EXPECT_EQ(expand(R"({"cases": [{}]})")[0].json["name"], "1");
}

struct RefusedSuite {
    const char* suite;
    const char* refused;
};

class BadSuite : public testing::TestWithParam<RefusedSuite> {};

TEST_P(BadSuite, IsRefusedInOneLineThatNamesTheCaseAndTheMember) {
    EXPECT_EQ(refusal_of_suite(GetParam().suite), GetParam().refused);
}

constexpr RefusedSuite bad_suites[] = {
    {R"({"about": "a", "world": {}})", "gates.json: cases: missing"},
    {R"({"about": 1, "cases": []})", "gates.json: about: expected a text"},
    {R"({"cases": {}})", "gates.json: cases: expected an array"},
    {R"({"cases": [], "do": []})", "gates.json: do: unknown member"},
    {R"({"cases": [{}, 7]})", "gates.json: cases[1]: expected an object"},
    {R"({"cases": [{"name": 7}]})", "gates.json: cases[0].name: expected a text"},
    {R"({"world": [], "cases": []})", "gates.json: world: expected an object"},
    {R"({"world": "nowhere.json", "cases": []})", "gates.json: world: no such file"},
    {R"({"cases": [{"name": "red", "do": [], "colour": 1}]})", "gates.json: red: colour: unknown member"},
    {R"({"world": {"do": [], "cases": []}, "cases": [{"name": "red"}]})",
     "gates.json: red: cases: unknown member"},
    {R"({"about": "a", "cases": [{"do": []}, {"do": ["stop"]}]})",
     "gates.json: a 2: do[0]: unknown act \"stop\""},
    {R"({"cases": [{"name": "red"}]})", "gates.json: red: do: missing"},
    {R"({"cases": [{"name": "red", "do": [], "item": 7}]})", "gates.json: red: item: expected an object"},
    {R"({"cases": [{"name": "red", "do": [], "item": {}, "items": [{}, {}]}]})",
     "gates.json: red: item: there must be one element in items"},
    {R"({"cases": [{"name": "red", "do": [], "item": {}, "items": []}]})",
     "gates.json: red: item: there must be one element in items"},
    {R"({"cases": [{"name": "red", "do": [], "item": {"subject": ""}}]})",
     "gates.json: red: items[0].subject: unknown member"},
    {R"({"cases": [{"name": "red", "do": [], "files": {"C:\\a": {"from": "none"}}}]})",
     "gates.json: red: files.C:\\a.from: no such file"},
    {R"({"item": {}, "do": []})", "gates.json: item: unknown member"},
    {R"([])", "gates.json: expected an object"},
};
INSTANTIATE_TEST_SUITE_P(All, BadSuite, testing::ValuesIn(bad_suites));

TEST(Suite, TheWorldMayStandInAFileBesideTheSuite) {
    const Files files;
    files.write("world.json", R"({"do": ["connect"]})");
    const auto suite = files.write("suite.json", R"({"world": "world.json", "cases": [{"name": "a"}]})");
    const auto all = load({suite}, Binding::native);
    ASSERT_EQ(all.size(), 1u);
    EXPECT_EQ(all[0].scenario.acts.size(), 1u);
    EXPECT_EQ(all[0].source, suite + ": a");
}

TEST(Suite, AWorldsFileThatHoldsNoWorldIsRefusedByItsOwnName) {
    const Files files;
    const auto world = files.write("world.json", "[]");
    const auto suite = files.write("suite.json", R"({"world": "world.json", "cases": []})");
    try {
        load({suite}, Binding::native);
        ADD_FAILURE() << "accepted";
    } catch (const Unusable& error) {
        EXPECT_EQ(error.what(), world + ": expected an object");
    }
}

TEST(Suite, AFileThatIsTakenLiesBesideTheFileThatTakesIt) {
    const Files worlds, cases;
    worlds.write("letter.htm", "the world's");
    cases.write("memo.htm", "the case's");
    const auto world =
        worlds.write("world.json", R"({"do": [], "files": {"C:\\a\\letter.htm": {"from": "letter.htm"}}})");
    const auto suite = cases.write("suite.json", R"({"world": ")" + world + R"(", "cases": [
        {"name": "a", "files": {"C:\\a\\memo.htm": {"from": "memo.htm"}}}]})");
    const auto files = load({suite}, Binding::native).at(0).scenario.files;
    ASSERT_EQ(files.size(), 2u);
    EXPECT_EQ(files[0].second, "the world's");
    EXPECT_EQ(files[1].second, "the case's");
}

TEST(Suite, AScenarioTakesFilesFromBesideItToo) {
    const Files files;
    files.write("letter.htm", "text");
    const auto scenario =
        files.write("scenario.json", R"({"do": [], "files": {"C:\\a.htm": {"from": "letter.htm"}}})");
    EXPECT_EQ(load({scenario}, Binding::native).at(0).scenario.files[0].second, "text");
}

TEST(Suite, ScenariosOfSeveralFilesComeInOneRow) {
    const Files files;
    const auto suite =
        files.write("suite.json", R"({"cases": [{"name": "a", "do": []}, {"name": "b", "do": []}]})");
    const auto scenario = files.write("scenario.json", R"({"name": "c", "do": []})");
    std::string names;
    for (const auto& loaded : load({suite, scenario}, Binding::wine))
        names += loaded.json["name"].get<std::string>();
    EXPECT_EQ(names, "abc");
}

TEST(Suite, ACaseThatOnlyMemoryCanPlayIsRefusedForTheRealMachine) {
    const Files files;
    const auto suite = files.write("suite.json", R"({"cases": [{"name": "a", "do": [{"prompt": "x"}]}]})");
    EXPECT_EQ(load({suite}, Binding::native).size(), 1u);
    for (const Binding binding : {Binding::wine, Binding::both}) {
        try {
            load({suite}, binding);
            ADD_FAILURE() << "accepted";
        } catch (const Unusable& error) {
            EXPECT_EQ(error.what(), suite + ": a: do[0]: native only: works only with --binding native");
        }
    }
}

} // namespace
} // namespace ornavel::rehearsal
