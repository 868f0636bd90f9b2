#include "rehearsal/scenario.h"

#include <gtest/gtest.h>

namespace ornavel::rehearsal {
namespace {

Scenario read(const std::string& json, Binding binding = Binding::native) {
    return read_scenario(parse_json(json, "bad.json"), "bad.json", binding);
}

std::string refusal(const std::string& json, Binding binding = Binding::native) {
    try {
        read(json, binding);
    } catch (const Unusable& error) {
        return error.what();
    }
    return "accepted";
}

struct Bad {
    const char* members; ///< beside "do"
    const char* refused; ///< what follows the file's name
};

class BadScenario : public testing::TestWithParam<Bad> {};

TEST_P(BadScenario, IsRefusedInOneLineThatNamesTheMember) {
    const std::string json = std::string("{\"do\": [], ") + GetParam().members + "}";
    EXPECT_EQ(refusal(json), std::string("bad.json: ") + GetParam().refused);
}

constexpr Bad bad_worlds[] = {
    {R"("colour": 1)", "colour: unknown member"},
    {R"("name": 7)", "name: expected a text"},
    {R"("clock": "2003-11-31T14:05:09")", "clock: expected a time such as 2003-11-20T14:05:09"},
    {R"("clock": "2003-11-20 14:05:09")", "clock: expected a time such as 2003-11-20T14:05:09"},
    {R"("clock": "2003-11-20T24:00:00")", "clock: expected a time such as 2003-11-20T14:05:09"},
    {R"("settings": [])", "settings: expected an object"},
    {R"("settings": {"A": {"b": 1}})", "settings.A.b: expected a text"},
    {R"("settings": {"A": {"Key": "", "KEY": ""}})",
     "settings.A.KEY: the same name is there in another spelling"},
    {R"("settings": {"A": {}, "a": {}})", "settings.a: the same name is there in another spelling"},
    {R"("settings": {"A": {"k": "", "k": ""}})", "k: given twice"},
    {R"("files": {"letter.htm": ""})", "files.letter.htm: expected a full Windows path"},
    {R"("files": {"C:/a.txt": ""})", "files.C:/a.txt: expected a full Windows path"},
    {R"("files": {"C:\\a\\": ""})", "files.C:\\a\\: expected a full Windows path"},
    {R"("files": {"C:\\a": {"base64": "R0l"}})", "files.C:\\a.base64: not base64"},
    {R"("files": {"C:\\a": {"base64": "R=lG"}})", "files.C:\\a.base64: not base64"},
    {R"("files": {"C:\\a": {"from": "no/such/file"}})", "files.C:\\a.from: no such file"},
    {R"("files": {"C:\\a": {"hex": ""}})", "files.C:\\a.hex: unknown member"},
    {R"("files": {"C:\\a": {}})", "files.C:\\a: expected a text, {\"base64\": …} or {\"from\": …}"},
    {R"("files": {"C:\\a": 1})", "files.C:\\a: expected a text, {\"base64\": …} or {\"from\": …}"},
    {R"("files": {"C:\\a": "", "C:\\A\\b": ""})", "files: a file can't hold another file"},
    {R"("folders": ["empty"])", "folders[0]: expected a full Windows path"},
    {R"("folders": ["C:\\a"], "files": {"C:\\A": ""})", "folders[0]: there is a file of that name"},
    {R"("registry": {"HKCU\\Software": {}})", "registry.HKCU\\Software: expected a registry key"},
    {R"("registry": {"HKEY_CURRENT_USER\\S": {"a": -1}})", "registry.HKEY_CURRENT_USER\\S.a: out of range"},
    {R"("registry": {"HKEY_CURRENT_USER\\S": {"a": true}})",
     "registry.HKEY_CURRENT_USER\\S.a: expected a number"},
    {R"("settings": {"A": {"b": {"expand": 1}}})", "settings.A.b.expand: expected a text"},
    {R"("settings": {"A": {"b": {}}})", "settings.A.b: expected {\"expand\": …}"},
    {R"("computer": {"nam": ""})", "computer.nam: unknown member"},
    {R"("computer": {"os": {"platform": "2"}})", "computer.os.platform: expected a number"},
    {R"("computer": {"memory": {"total physical": 1.5}})",
     "computer.memory.total physical: expected a whole number"},
    {R"("host": {"version": 11})", "host.version: expected a text"},
    {R"("host": {"explorers": -1})", "host.explorers: out of range"},
    {R"("host": {"objects": {"Redemption.SafeMail": true}})",
     "host.objects.Redemption.SafeMail: unknown object"},
    {R"("host": {"objects": {"ADODB.Connection": 1}})",
     "host.objects.ADODB.Connection: expected true or false"},
    {R"("host": {"calendar": [{"subject": "Review"}]})", "host.calendar[0]: start: missing"},
    {R"("host": {"current user": "jo"})", "host.current user: expected an object"},
};
INSTANTIATE_TEST_SUITE_P(World, BadScenario, testing::ValuesIn(bad_worlds));

constexpr Bad bad_scripts[] = {
    {R"("items": {})", "items: expected an array"},
    {R"("items": [{"Importance": "1"}])", "items[0].Importance: expected a number"},
    {R"("items": [{}, {"subject": ""}])", "items[1].subject: unknown member"},
    {R"("items": [{"Recipients": [7]}])", "items[0].Recipients[0]: expected an address or an object"},
    {R"("items": [{"Recipients": [{"type": 4}]}])", "items[0].Recipients[0].type: out of range"},
    {R"("items": [{"UserProperties": {"Colour": 1}}])", "items[0].UserProperties.Colour: expected a text"},
    {R"("items": [{"Word": {"HTML": ""}}])", "items[0].Word.HTML: unknown member"},
    {R"("items": [{"Links": [{"Folder": {"Id": ""}}]}])", "items[0].Links[0].Folder.Id: unknown member"},
    {R"("user": [{"answer": "Yes"}])", "user[0]: at: missing"},
    {R"("user": [{"at": "x", "answer": true}])", "user[0].answer: expected a text"},
    {R"("user": [{"at": "x", "do": [["press", "cmdOK"]]}])", "user[0].do[0][0]: unknown step"},
    {R"("user": [{"at": "x", "do": [["click"]]}])", "user[0].do[0]: \"click\" takes 1 values"},
    {R"("user": [{"at": "x", "do": [["tick", "chk", "1"]]}])", "user[0].do[0][2]: expected true or false"},
    {R"("user": [{"at": "x", "do": ["close"]}])", "user[0].do[0]: expected a step such as [\"close\"]"},
    {R"("user": [{"at": "x", "do": [["select", "cbo", -1]]}])", "user[0].do[0][2]: out of range"},
    {R"("fail": [{"use": 1}])", "fail[0]: member: missing"},
    {R"("fail": [{"member": "Save"}])", "fail[0].member: expected Object.Member"},
    {R"("fail": [{"member": "A.B", "launch": "x"}])", "fail[0].launch: only one thing can fail in an entry"},
    {R"("fail": [{"member": "A.B", "use": 0}])", "fail[0].use: out of range"},
    {R"("fail": [{"member": "A.B", "say": ""}])", "fail[0].say: unknown member"},
    {R"("expect": {"error": {"matches": "("}})", "expect.error.matches: not a regular expression"},
};
INSTANTIATE_TEST_SUITE_P(Script, BadScenario, testing::ValuesIn(bad_scripts));

class BadAct : public testing::TestWithParam<Bad> {};

TEST_P(BadAct, IsRefusedInOneLineThatNamesTheAct) {
    const std::string json =
        std::string(R"({"items": [{}], "host": {"explorers": 2}, "do": [)") + GetParam().members + "]}";
    EXPECT_EQ(refusal(json), std::string("bad.json: ") + GetParam().refused);
}

constexpr Bad bad_acts[] = {
    {R"("disconnect")", "do[0]: unknown act \"disconnect\""},
    {R"({"sned": 0})", "do[0]: unknown act \"sned\""},
    {R"({"send": 0, "click": "x"})", "do[0]: expected an act"},
    {R"(7)", "do[0]: expected an act"},
    {R"({"send": 1})", "do[0]: no such item"},
    {R"({"send": "0"})", "do[0].send: expected a number"},
    {R"({"send": -1})", "do[0].send: out of range"},
    {R"({"dress": 3})", "do[0]: no such item"},
    {R"({"close explorer": 2})", "do[0]: no such explorer"},
    {R"({"close explorer": 1}, {"close explorer": 1})", "do[1]: no such explorer"},
    {R"({"new explorer": 1}, {"close explorer": 3})", "do[1]: no such explorer"},
    {R"({"connect": "1"})", "do[0].connect: expected a number"},
    {R"({"tray": {"key": "x"}})", "do[0].tray.key: unknown member"},
    {R"({"tray": 7})", "do[0].tray: expected a caption or {\"entry\": …}"},
    {R"({"set": {"A": {"b": null}}})", "do[0].set.A.b: expected a text"},
    {R"({"clock": "tomorrow"})", "do[0].clock: expected a time such as 2003-11-20T14:05:09"},
    {R"({"prompt": 1})", "do[0].prompt: expected a text"},
    {R"({"page": 1})", "do[0].page: expected an array"},
    {R"({"page": ["ok", "apply"]})", "do[0].page[0]: it closes the dialog, so nothing can follow"},
    {R"({"page": ["leave"]})", R"(do[0].page[0]: expected "apply", "ok", "cancel" or a step)"},
    {R"({"page": [["close"]]})", "do[0].page[0]: a page has no frame of its own"},
    {R"({"run": 1})", "do[0].run: expected a text"},
    {R"({"run": "A.exe", "arguments": 1})", "do[0].arguments: expected a text"},
    {R"({"run": "A.exe", "argument": "x"})", "do[0]: expected an act"},
    {R"({"send": 0, "arguments": "x"})", "do[0]: expected an act"},
};
INSTANTIATE_TEST_SUITE_P(Acts, BadAct, testing::ValuesIn(bad_acts));

class GoodScenario : public testing::TestWithParam<const char*> {};

TEST_P(GoodScenario, IsAccepted) {
    const std::string json = std::string(R"({"items": [{}], "do": [)") + GetParam() + "}";
    EXPECT_EQ(refusal(json), "accepted");
}

constexpr const char* good_scenarios[] = {
    R"(])",
    R"({"send": 0}])",
    R"({"click": "EmailMonitor"}, {"click": 7}])",
    R"({"new explorer": 1}, {"close explorer": 1}, {"close explorer": 0}])",
    R"({"tray": "Hide"}, {"tray": {"entry": "Support"}}, {"tray message": 517}])",
    R"({"connect": 1}, {"disconnect": 1}, {"set": {"A": {"b": ""}}}, {"clock": "2004-02-29T00:00:00"}])",
    R"(], "user": [{"at": "*", "answer": null}, {"at": "frmBrowser"}, {"at": "frmMessage", "do": [["close"]]}])",
    R"(], "fail": [{"launch": "SiteAssistant.exe"}, {"read setting": "Template", "use": 2, "says": "no"}])",
    R"(], "registry": {"hkey_current_user\\Software": {"a": 4294967295, "b": "t", "c": {"expand": "%x%"}}})",
    R"({"set": {"A": {"b": {"expand": "%x%"}}}}], "settings": {"A": {"c": {"expand": ""}}})",
    R"(], "files": {"C:\\a.gif": {"base64": "R0lGODlhAQABAAAAACw="}, "\\\\server\\share\\a.htm": "x"})",
    R"(], "host": {"own mails raise ItemSend": true, "explorers": 0, "objects": {"adodb.connection": false}})",
    R"(], "expect": [1, {"anything": {"matches": "a+"}}])",
};
INSTANTIATE_TEST_SUITE_P(All, GoodScenario, testing::ValuesIn(good_scenarios));

TEST(ScenarioReader, FillsInTheDefaults) {
    const Scenario scenario = read(R"({"do": ["connect"], "items": [{"Subject": "Hello"}]})");
    EXPECT_EQ(scenario.clock, (LocalTime{2003, 11, 20, 14, 5, 9}));
    EXPECT_EQ(scenario.host.version, u"11.0.6353");
    EXPECT_EQ(scenario.host.explorers, 1);
    EXPECT_EQ(scenario.items[0].message_class, u"IPM.Note");
    EXPECT_EQ(scenario.items[0].editor_type, 2);
    EXPECT_EQ(scenario.items[0].importance, 1);
    EXPECT_EQ(scenario.acts[0].kind, Act::Kind::connect);
    EXPECT_EQ(scenario.acts[0].number, 1) << "the mode of the start-up";
}

TEST(ScenarioReader, AProgramMayBeGivenArguments) {
    const Scenario scenario = read(R"({"do": [{"run": "A.exe"}, {"run": "B.exe", "arguments": "/x y"}]})");
    EXPECT_EQ(scenario.acts[0].kind, Act::Kind::run);
    EXPECT_EQ(scenario.acts[0].text, u"A.exe");
    EXPECT_EQ(scenario.acts[0].arguments, u"");
    EXPECT_EQ(scenario.acts[1].arguments, u"/x y");
}

TEST(ScenarioReader, RecipientsAreAddressesOrObjects) {
    const auto item = read(R"({"do": [], "items": [{"Recipients":
        ["ann@example.com", {"name": "Bo", "address": "bo@example.com", "type": 3}]}]})")
                          .items[0];
    EXPECT_EQ(item.recipients[0].address, u"ann@example.com");
    EXPECT_EQ(item.recipients[1].name, u"Bo");
    EXPECT_EQ(item.recipients[1].type, 3);
}

TEST(ScenarioReader, ActsAreRequired) { EXPECT_EQ(refusal("{}"), "bad.json: do: missing"); }

TEST(ScenarioReader, InvalidJsonIsOneLine) {
    const auto line = refusal("{\"do\": [\n\n}");
    EXPECT_TRUE(line.starts_with("bad.json: "));
    EXPECT_EQ(line.find('\n'), std::string::npos);
}

TEST(ScenarioReader, TheRealMachineTakesAnAddInFolderOnDriveCOnly) {
    const std::string begin = R"({"do": [], "computer": {"addin folder": ")";
    EXPECT_EQ(refusal(begin + R"(c:\\Ornavel"}})", Binding::wine), "accepted");
    EXPECT_EQ(refusal(begin + R"(D:\\Ornavel"}})"), "accepted");
    EXPECT_EQ(refusal(begin + R"(D:\\Ornavel"}})", Binding::wine),
              "bad.json: computer.addin folder: another drive than C works only with --binding native");
}

TEST(ScenarioReader, TheRealMachineRefusesWhatOnlyMemoryCanDo) {
    constexpr const char* native_only[][2] = {
        {R"({"do": [], "clock": "2003-11-20T14:05:09"})", "clock"},
        {R"({"do": [], "computer": {"name": "A"}})", "computer.name"},
        {R"({"do": [], "fail": [{"launch": "a.exe"}]})", "fail[0]"},
        {R"({"do": [{"clock": "2003-11-20T14:05:09"}]})", "do[0]"},
        {R"({"do": ["connect", {"prompt": "x"}]})", "do[1]"},
    };
    for (const auto& [json, path] : native_only) {
        EXPECT_EQ(refusal(json), "accepted");
        EXPECT_EQ(refusal(json, Binding::wine),
                  std::string("bad.json: ") + path + ": native only: works only with --binding native");
    }
    EXPECT_EQ(refusal(R"({"do": [], "computer": {"addin folder": "C:\\a"}, "fail": [{"member": "A.B"}]})",
                      Binding::wine),
              "accepted");
}

TEST(ScenarioReader, FilesCanBeCarriedInside) {
    const Json json =
        parse_json(R"({"do": [], "files": {"C:\\b": "text", "C:\\a": {"base64": "/wA="}}})", "x");
    const Json carried = with_files_inside(json, read_scenario(json, "x", Binding::native));
    EXPECT_EQ(carried["files"]["C:\\b"], "text");
    EXPECT_EQ(carried["files"]["C:\\a"]["base64"], "/wA=");
}

} // namespace
} // namespace ornavel::rehearsal
