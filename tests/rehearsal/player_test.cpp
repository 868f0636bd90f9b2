#include "rehearsal/player.h"

#include "host/ribbon.h"

#include "tests/rehearsal/stage.h"

#include <gtest/gtest.h>

namespace ornavel::rehearsal {
namespace {

/// An add-in that writes down what it is told, and cancels what it is asked to.
struct NotingAddIn final : AddIn {
    std::vector<std::string> told;
    host::Subscription events;
    bool cancels = false;
    std::function<void()> on_start = [] {};
    Text markup;
    std::function<host::Value(TextView, const host::ObjectPtr&)> answer =
        [](TextView, const host::ObjectPtr&) { return host::Value(); };

    void make() override {}
    Text custom_ui(TextView ribbon_id) override {
        told.push_back("ribbon " + to_utf8(ribbon_id));
        return markup;
    }
    host::Value run_callback(const Text& name, const host::ObjectPtr& argument) override {
        told.push_back(to_utf8(name));
        return answer(name, argument);
    }
    void connect(const host::ObjectPtr& application, int mode) override {
        told.push_back("connect " + std::to_string(mode));
        const auto send = [this](host::MailItem, bool& cancel) {
            told.push_back("send");
            cancel = cancels;
        };
        events = host::Application(application).on_events({send, [](host::PropertyPages) {}});
    }
    void start() override {
        told.push_back("start");
        on_start();
    }
    void update() override { told.push_back("update"); }
    void shutdown() override { told.push_back("shutdown"); }
    void show_page(const host::ObjectPtr&, const Act&) override { told.push_back("page"); }
    void disconnect(int remove_mode) override { told.push_back("disconnect " + std::to_string(remove_mode)); }
};

/// A stage with an add-in and a player on it.
struct Performance : Stage {
    explicit Performance(const std::string& json)
        : Stage(json), player(scenario, "stage", client, machine, addin), before(machine.snapshot()) {}
    Json outcome() {
        player.play();
        return write_outcome(scenario, player, client, machine, before);
    }
    std::string refusal() {
        try {
            player.play();
        } catch (const Unusable& error) {
            return error.what();
        }
        return "played";
    }

    NotingAddIn addin;
    Player player;
    Snapshot before;
};

TEST(Player, PlaysTheActsInOrder) {
    Performance stage(
        R"({"do": [{"connect": 4}, "start", "update", {"send": 0}, "shutdown", {"disconnect": 1}],
                    "items": [{}]})");
    stage.outcome();
    EXPECT_EQ(stage.addin.told,
              (std::vector<std::string>{"connect 4", "start", "update", "send", "shutdown", "disconnect 1"}));
}

TEST(Player, ASendOutsideTheConnectionReachesNobodyAndGoesOut) {
    Performance stage(
        R"({"do": [{"send": 0}, "connect", {"disconnect": 0}, {"send": 1}], "items": [{}, {}]})");
    stage.addin.cancels = true;
    const Json outcome = stage.outcome();
    EXPECT_EQ(stage.addin.told, (std::vector<std::string>{"connect 1", "disconnect 0"}));
    EXPECT_EQ(outcome["items"][0]["sent"], true);
    EXPECT_EQ(outcome["items"][1]["sent"], true);
    EXPECT_EQ(outcome["acts"][3]["cancel"], false);
}

TEST(Player, ACancelledItemIsNotSent) {
    Performance stage(R"({"do": ["connect", {"send": 0}], "items": [{}]})");
    stage.addin.cancels = true;
    const Json outcome = stage.outcome();
    EXPECT_EQ(outcome["acts"][1]["cancel"], true);
    EXPECT_EQ(outcome["items"][0]["cancelled"], true);
    EXPECT_EQ(outcome["items"][0]["sent"], false);
    EXPECT_EQ(outcome["references"]["names"], Json::array({"Application events"}));
}

TEST(Player, WhatTheAddInLetsOutIsTheOutcomesErrorAndTheEnd) {
    Performance stage(R"({"do": ["connect", "start", "update"]})");
    stage.addin.on_start = [] { throw Failure(u"no way"); };
    const Json outcome = stage.outcome();
    EXPECT_EQ(outcome["error"], "no way");
    EXPECT_EQ(stage.addin.told.size(), 2u);
}

TEST(Player, AnActWithoutMeansMakesTheScenarioUnusable) {
    constexpr const char* without_means[][2] = {
        {R"({"tray": "Hide"})", "stage: do[0]: no tray icon is shown"},
        {R"({"tray message": 517})", "stage: do[0]: no tray icon is shown"},
        {R"({"dress": 0})", "stage: do[0]: the add-in offers no form for this item"},
        {R"({"click": "EmailMonitor"})", "stage: do[0]: no such button"},
        {R"({"page": []})", "stage: do[0]: the add-in offers no page"},
        {R"({"run": "Calculator.exe"})", "stage: do[0]: there is no such program"},
    };
    for (const auto& [act, refused] : without_means) {
        Performance stage(std::string(R"({"items": [{}], "do": [)") + act + "]}");
        EXPECT_EQ(stage.refusal(), refused);
    }
}

TEST(Player, TheUserAnswersMessageBoxesInTheirOrder) {
    Performance stage(R"({"do": ["connect", "start"], "user": [{"at": "First", "answer": "Yes"},
                                                         {"at": "*", "answer": "OK"}]})");
    auto& boxes = stage.machine.addin_windows();
    stage.addin.on_start = [&] {
        EXPECT_FALSE(boxes.ask(u"Unasked", u"?"));
        EXPECT_TRUE(boxes.ask(u"First", u"?"));
        boxes.inform(u"Second", u"!");
        boxes.inform(u"Third", u"!");
    };
    const Json windows = stage.outcome()["windows"];
    ASSERT_EQ(windows.size(), 4u);
    EXPECT_EQ(windows[0], (Json{{"message box", "Unasked"},
                                {"text", "?"},
                                {"buttons", "YesNo"},
                                {"icon", "Question"},
                                {"answer", "No"},
                                {"unexpected", true}}));
    EXPECT_EQ(windows[1], (Json{{"message box", "First"},
                                {"text", "?"},
                                {"buttons", "YesNo"},
                                {"icon", "Question"},
                                {"answer", "Yes"}}));
    EXPECT_EQ(windows[2]["icon"], "Information");
    EXPECT_FALSE(windows[2].contains("unexpected"));
    EXPECT_EQ(windows[3]["unexpected"], true);
}

TEST(Player, TheUserAnswersFileDialogsByAPathOrNotAtAll) {
    Performance stage(R"({"do": ["connect", "start"], "user": [{"at": "Card", "answer": "C:\\jo.vcf"},
                                                         {"at": "Card", "answer": null}]})");
    auto& windows = stage.machine.addin_windows();
    stage.addin.on_start = [&] {
        EXPECT_EQ(windows.ask_for_path({.title = u"Card"}), u"C:\\jo.vcf");
        EXPECT_EQ(windows.ask_for_path({.title = u"Card"}), std::nullopt);
        EXPECT_EQ(windows.ask_for_path({.title = u"Card"}), std::nullopt);
    };
    const Json shown = stage.outcome()["windows"];
    EXPECT_EQ(shown[0], (Json{{"file dialog", "Card"}, {"answer", "C:\\jo.vcf"}}));
    EXPECT_EQ(shown[1], (Json{{"file dialog", "Card"}, {"answer", nullptr}}));
    EXPECT_EQ(shown[2], (Json{{"file dialog", "Card"}, {"answer", nullptr}, {"unexpected", true}}));
}

TEST(Player, AnAnswerThatTheBoxDoesNotHaveMakesTheScenarioUnusable) {
    Performance stage(R"({"do": ["connect", "start"], "user": [{"at": "Box", "answer": "OK"}]})");
    stage.addin.on_start = [&] { stage.machine.addin_windows().ask(u"Box", u"?"); };
    EXPECT_EQ(stage.refusal(), "stage: user[0]: the box has Yes and No only");
}

TEST(Outcome, HasEveryMemberEvenWhenNothingHappened) {
    const Json outcome = Performance(R"({"do": []})").outcome();
    for (const char* member :
         {"name", "acts", "items", "settings", "files", "registry", "windows", "toolbar", "tray", "pages",
          "launched", "statements", "connections", "mails", "browser", "references", "error"})
        EXPECT_TRUE(outcome.contains(member)) << member;
    EXPECT_EQ(outcome["windows"], Json::array());
    EXPECT_EQ(outcome["references"], (Json{{"held", 0}, {"names", Json::array()}}));
    EXPECT_EQ(outcome["tray"]["times shown"], 0);
}

TEST(Outcome, ListsFilesThatChangedAndOnlyThose) {
    Performance stage(R"({"do": ["connect", "start"], "folders": ["C:\\gone"], "files": {"C:\\a.txt": "a",
        "C:\\same.txt": "s", "C:\\gone\\b.txt": "b", "C:\\old.txt": "o", "C:\\new\\x": ""}})");
    auto& files = stage.machine.addin_files();
    stage.addin.on_start = [&] {
        files.append(u"C:\\A.TXT", "b");
        files.write(u"C:\\same.txt", "s");
        files.write(u"C:\\new\\mark.html", "\xEF\xBB\xBFx");
        files.write(u"C:\\new\\bytes", "\xFF\x00\x80");
        files.write(u"C:\\brief.txt", "");
        files.remove(u"C:\\brief.txt");
        files.remove(u"C:\\old.txt");
        stage.machine.remove_folder(u"C:\\gone");
    };
    EXPECT_EQ(stage.outcome()["files"],
              parse_json(R"({"C:\\a.txt": "ab", "C:\\new\\bytes": {"base64": "/w=="},
        "C:\\new\\mark.html": {"text": "x", "mark": "UTF-8"}, "C:\\gone\\b.txt": null, "C:\\old.txt": null,
        "C:\\gone\\": null})",
                         "expected"));
}

TEST(Outcome, ListsRegistryValuesThatChanged) {
    Snapshot before, after;
    before.registry[u"K"] = {{u"same", 1u}, {u"changed", 1u}, {u"gone", Text(u"x")}};
    before.registry[u"L"] = {{u"a", 1u}};
    after.registry[u"K"] = {{u"same", 1u}, {u"changed", 2u}, {u"new", ExpandText{u"%x%"}}};
    EXPECT_EQ(changed_registry(before, after),
              parse_json(R"({"K": {"changed": 2, "new": {"expand": "%x%"}, "gone": null}, "L": null})",
                         "expected"));
}

TEST(MemoryMachine, FailsWhatTheScenarioNames) {
    Performance stage(
        R"({"do": [], "settings": {"User Settings": {"Template": "a"}}, "files": {"C:\\a": "a", "C:\\b": "b"},
        "fail": [{"read file": "c:\\A"}, {"write file": "C:\\b", "use": 1}, {"delete file": "C:\\b"},
                 {"read setting": "template"}, {"save setting": "Signature"}, {"launch": "x.exe", "says": "no"}]})");
    auto& machine = stage.machine;
    EXPECT_THROW(machine.addin_files().read(u"C:\\a"), Failure);
    EXPECT_EQ(machine.addin_files().read(u"C:\\b"), "b");
    EXPECT_THROW(machine.addin_files().append(u"C:\\b", "b"), Failure);
    machine.addin_files().append(u"C:\\b", "c");
    EXPECT_THROW(machine.addin_files().remove(u"C:\\b"), Failure);
    EXPECT_EQ(machine.addin_settings().find(u"User Settings", u"Template"), std::nullopt);
    machine.addin_settings().save(u"User Settings", u"Signature", u"s");
    EXPECT_EQ(machine.snapshot().settings[u"User Settings"].size(), 1u);
    EXPECT_THROW(machine.addin_launcher().launch(u"C:\\p\\x.exe", u"", WindowState::normal), Failure);
    machine.addin_launcher().launch(u"C:\\WINDOWS\\regedit.exe", u"/s a", WindowState::minimised);
    EXPECT_EQ(machine.launched(),
              parse_json(R"([{"program": "regedit.exe", "arguments": "/s a", "window": "minimised"}])",
                         "expected"));
}

using Calls = std::vector<std::string>;

TEST(Player, In2010TheRibbonComesBeforeTheConnectionAndLaterBehindIt) {
    const Calls first{"ribbon Microsoft.Mso.IMLayerUI", "ribbon Microsoft.Outlook.Explorer", "connect 1",
                      "start"};
    const Calls later{"connect 1", "ribbon Microsoft.Mso.IMLayerUI", "ribbon Microsoft.Outlook.Explorer",
                      "start"};
    const Calls never{"connect 1", "start"};
    for (const auto& [version, told] : {std::pair{"11.0", never},
                                        {"12.0", never},
                                        {"14.0", first},
                                        {"15.0", later},
                                        {"16.0", later},
                                        {"", never}}) {
        Performance stage(R"({"do": ["connect", "start"], "host": {"version": ")" + std::string(version) +
                          R"("}})");
        stage.player.play();
        EXPECT_EQ(stage.addin.told, told) << version;
    }
}

/// Markup of one button, with a tag and callbacks of its own.
Text markup_of(TextView tag) {
    return u"<customUI xmlns='http://schemas.microsoft.com/office/2006/01/customui' "
           u"onLoad='Load'><ribbon><tabs>"
           u"<tab idMso='TabMail'><group id='g' label='G'><button id='b' tag='" +
           Text(tag) +
           u"' getLabel='Label' getVisible='Visible' onAction='Press'/></group></tab></tabs></ribbon>"
           u"</customUI>";
}

/// An add-in with one button on every ribbon; its label counts how often it was asked.
struct RibbonPerformance : Performance {
    explicit RibbonPerformance(const std::string& acts, const std::string& more = "")
        : Performance(
              R"({"host": {"version": "16.0"}, "items": [{}, {"MessageClass": "IPM.TaskRequest"}], "do": )" +
              acts + more + "}") {
        addin.markup = markup_of(u"tag");
        addin.answer = [this](TextView name, const host::ObjectPtr& argument) -> host::Value {
            if (name == u"Load") ribbon = host::RibbonUI(argument);
            if (name == u"Visible") return true;
            if (name == u"Label") return u"asked " + to_text(++asked);
            if (name == u"Press") pressed.push_back(host::RibbonControl(argument).tag());
            return {};
        };
    }
    host::RibbonUI ribbon;
    int asked = 0;
    std::vector<Text> pressed;
};

TEST(Player, ALabelIsAskedForAgainOnlyAfterAnInvalidationAndNotAtOnce) {
    RibbonPerformance stage(R"(["connect", "start", "update", {"click": "tag"}])");
    stage.addin.on_start = [&] {
        stage.ribbon.invalidate();
        stage.ribbon.invalidate();
        EXPECT_EQ(stage.asked, 1);
    };
    const Json outcome = stage.outcome();
    EXPECT_EQ(stage.asked, 2);
    EXPECT_EQ(outcome.at("toolbar")[0].at("caption"), "asked 2");
    EXPECT_EQ(stage.pressed, std::vector<Text>{u"tag"});
    EXPECT_EQ(outcome.at("error"), Json());
}

TEST(Player, AWindowOfAMessageHasARibbonOfItsKindThatIsLoadedOnce) {
    RibbonPerformance stage(R"(["connect", {"dress": 0}, {"dress": 0}])");
    stage.addin.markup = markup_of(u"SendOptions");
    stage.outcome();
    EXPECT_EQ(std::ranges::count(stage.addin.told, "ribbon Microsoft.Outlook.Mail.Compose"), 1);
    EXPECT_EQ(stage.pressed.size(), 2u);
}

TEST(Player, AWindowOfATaskHasAnotherRibbon) {
    RibbonPerformance stage(R"(["connect", {"dress": 1}])");
    stage.addin.markup = markup_of(u"SendOptions");
    stage.outcome();
    EXPECT_EQ(std::ranges::count(stage.addin.told, "ribbon Microsoft.Outlook.Task"), 1);
}

TEST(Player, MarkupThatBreaksTheSchemaReachesTheMailClientAsAnError) {
    RibbonPerformance stage(R"(["connect", "start"])");
    stage.addin.markup = u"<customUI><button/></customUI>";
    EXPECT_NE(stage.outcome().at("error"), Json());
}

TEST(Player, AButtonThatNobodySeesCannotBePressed) {
    RibbonPerformance stage(R"(["connect", {"click": "tag"}])");
    stage.addin.answer = [](TextView, const host::ObjectPtr&) { return host::Value(false); };
    EXPECT_EQ(stage.refusal(), "stage: do[1]: no such button");
}

TEST(Player, TheRibbonOfAnUnloadedAddInIsGoneAndAsksNobody) {
    RibbonPerformance stage(R"(["connect", "start", {"disconnect": 1}])");
    const Json outcome = stage.outcome();
    EXPECT_EQ(outcome.at("toolbar"), Json::array());
    EXPECT_EQ(description_of([&] { stage.ribbon.invalidate(); }), u"The object has been deleted or moved.");
}

} // namespace
} // namespace ornavel::rehearsal
