#include "connect/ribbon.h"

#include "connect/session.h"
#include "rehearsal/model/ribbon.h"
#include "tests/connect/sending.h"

namespace ornavel::connect {
namespace {

using namespace settings;

/// A control as a mail client passes it; what a test leaves out can't be read.
class Control final : public host::Object {
public:
    std::map<Text, host::Value> values;
    host::Value get(host::Member member, const host::Arguments&) override {
        const auto found = values.find(member.name);
        if (found == values.end()) throw host::Error(u"Object doesn't support this property or method");
        return found->second;
    }
    void put(host::Member, const host::Value&) override { throw host::Error(u"Type mismatch"); }
    host::Value call(host::Member member, const host::Arguments& arguments) override {
        if (TextView(member.name) != u"Invalidate") return get(member, arguments);
        ++invalidated;
        if (is_broken) throw host::Error(u"The ribbon is gone");
        return {};
    }
    host::Subscription advise(host::EventSource, host::EventHandler) override { return nullptr; }
    bool is_same(const host::Object& other) const override { return this == &other; }
    int invalidated = 0;
    bool is_broken = false;
};

std::shared_ptr<Control> control(TextView id, TextView tag) {
    auto made = std::make_shared<Control>();
    made->values = {{u"Id", Text(id)}, {u"Tag", Text(tag)}};
    return made;
}

/// The add-in, asked by a mail client of today.
class OnTheRibbon : public testing::Test {
protected:
    ~OnTheRibbon() override {
        addin.OnDisconnection(0);
        EXPECT_EQ(stage.held(), 0u);
    }
    void connect() {
        addin.OnConnection(stage.application(), Connect::at_startup);
        addin.OnStartupComplete();
    }
    host::Value call(TextView name, const host::ObjectPtr& argument) {
        const auto number = Connect::find_ribbon_callback(name);
        return number ? addin.run_ribbon_callback(*number, argument) : host::Value(Text(u"no such callback"));
    }
    void set(const Key& key, TextView value) { save(stage.machine.addin_settings(), key, value); }
    Text mode() { return read(stage.machine.addin_settings(), user::SettingButtonBar); }

    rehearsal::Stage stage{R"({
        "settings": {"Admin Settings": {"SigEmail": "jo@example.com", "SigWebsite": "www.example.com",
                                        "StartupSetupWiz": "False", "ErrorFileLocation": "C:\\log.txt"},
                     "User Settings": {"SettingButtonBar": "auto"}},
        "folders": ["C:\\app"], "host": {"version": "16.0"}, "items": [{"Subject": "Hello"}], "do": []})"};
    Connect addin{platform_of(stage)};
    const std::shared_ptr<Control> mode_button = control(u"OrnavelMode", u"EmailMonitor");
    const std::shared_ptr<Control> setup_button = control(u"OrnavelSetup", u"ButtonWiz");
    const std::shared_ptr<Control> group = control(u"OrnavelMailGroup", u"");
    const std::shared_ptr<Control> ribbon = std::make_shared<Control>();
};

TEST_F(OnTheRibbon, LabelsFollowTheSettingsAtTheTimeOfTheCall) {
    EXPECT_EQ(call(u"getLabel", mode_button), host::Value(Text(u"Ornavel On")));
    set(user::SettingButtonBar, u"off");
    EXPECT_EQ(call(u"getLabel", mode_button), host::Value(Text(u"Ornavel Off")));
    set(user::SettingButtonBar, u"eSignature");
    EXPECT_EQ(call(u"GETLABEL", mode_button), host::Value(Text(u"eSignature")));
    EXPECT_EQ(call(u"getLabel", setup_button), host::Value(Text(u"Ornavel Setup")));
}

TEST_F(OnTheRibbon, ButtonsAreSeenWhereTheirSettingsAskForThem) {
    EXPECT_EQ(call(u"getVisible", mode_button), host::Value(true));
    EXPECT_EQ(call(u"getVisible", setup_button), host::Value(true));
    set(user::SuppressToolbar, u"True");
    EXPECT_EQ(call(u"getVisible", mode_button), host::Value(false));
    EXPECT_EQ(call(u"getVisible", group), host::Value(true));
    set(admin::ShowConfigWizButton, u"False");
    EXPECT_EQ(call(u"getVisible", setup_button), host::Value(false));
    EXPECT_EQ(call(u"getVisible", group), host::Value(false));
}

TEST_F(OnTheRibbon, TheCycleStandsWhereTheUserWasLastShownThatItStands) {
    connect();
    call(u"getLabel", mode_button);
    set(user::SettingButtonBar, u"eSignature"); // by another program, and the ribbon has not asked since
    call(u"onAction", mode_button);
    EXPECT_EQ(mode(), u"off");
    call(u"onAction", mode_button);
    EXPECT_EQ(mode(), u"off");
}

TEST_F(OnTheRibbon, AButtonThatWasNeverShownChangesNothing) {
    connect();
    call(u"onAction", mode_button);
    EXPECT_EQ(mode(), u"auto");
}

TEST_F(OnTheRibbon, AChangedModeHasEveryRibbonAskAgain) {
    const auto second = std::make_shared<Control>(), broken = std::make_shared<Control>();
    broken->is_broken = true;
    for (const auto& each : {broken, ribbon, second, ribbon}) call(u"onLoad", each);
    connect();
    const int at_start = ribbon->invalidated;
    EXPECT_EQ(at_start, 1); // what was imported may have changed what it shows
    call(u"getLabel", mode_button);
    call(u"onAction", mode_button);
    EXPECT_EQ(ribbon->invalidated, at_start + 1);
    EXPECT_EQ(second->invalidated, at_start + 1);
    EXPECT_EQ(broken->invalidated, at_start + 1);
}

TEST_F(OnTheRibbon, WhatIsLoadedBehindTheConnectionIsToldAsWell) {
    connect();
    call(u"onLoad", ribbon);
    call(u"getLabel", mode_button);
    call(u"onAction", mode_button);
    EXPECT_EQ(ribbon->invalidated, 1);
}

TEST_F(OnTheRibbon, BehindTheShutdownNothingIsKeptAndNoClickCounts) {
    connect();
    call(u"onLoad", ribbon);
    call(u"getLabel", mode_button);
    addin.OnBeginShutdown();
    const auto late = std::make_shared<Control>();
    call(u"onLoad", late);
    EXPECT_EQ(ribbon.use_count(), 1);
    EXPECT_EQ(late.use_count(), 1);
    call(u"onAction", mode_button);
    EXPECT_EQ(mode(), u"auto");
}

TEST_F(OnTheRibbon, StrangeControlsAnswerNothing) {
    connect();
    const auto without_id = std::make_shared<Control>();
    without_id->values = {{u"Tag", Text(u"EmailMonitor")}};
    const auto without_tag = std::make_shared<Control>();
    without_tag->values = {{u"Id", Text(u"OrnavelMode")}};
    const std::shared_ptr<host::Object> strange[] = {nullptr,
                                                     without_id,
                                                     without_tag,
                                                     std::make_shared<Control>(),
                                                     control(u"OrnavelMode", u"Nobody"),
                                                     control(u"Nobody", u"EmailMonitor"),
                                                     control(u"", u"")};
    call(u"getLabel", mode_button);
    for (const auto& argument : strange)
        for (const TextView name : {u"getLabel", u"getVisible", u"onAction"})
            EXPECT_EQ(call(name, argument), host::Value());
    EXPECT_EQ(call(u"onLoad", nullptr), host::Value());
    EXPECT_EQ(mode(), u"auto");
}

TEST_F(OnTheRibbon, AnUnknownCallbackHasNoNumberAndAnUnknownNumberDoesNothing) {
    for (const TextView name : {u"", u"getImage", u"onLoad ", u"OnConnection"})
        EXPECT_EQ(Connect::find_ribbon_callback(name), std::nullopt);
    for (const int number : {-1, 4, 1000})
        EXPECT_EQ(addin.run_ribbon_callback(number, mode_button), host::Value());
}

TEST_F(OnTheRibbon, OtherWindowsThanItsTwoGetNothing) {
    for (const TextView id : {u"", u"Microsoft.Outlook.Mail.Read", u"Microsoft.Outlook.Contact",
                              u"Microsoft.Mso.IMLayerUI", u"microsoft.outlook.explorer"})
        EXPECT_EQ(Connect::GetCustomUI(id), u"");
}

TEST_F(OnTheRibbon, TheOptionsOfAMessageAreOfferedInTheModeOn) {
    const auto button = control(u"OrnavelSendOptions", u"SendOptions");
    button->values[u"Context"] =
        stage.client.hand_out(std::make_shared<rehearsal::InspectorNode>(stage.client.items[0]));
    EXPECT_EQ(call(u"getVisible", button), host::Value(false));
    set(user::SettingButtonBar, u"on");
    EXPECT_EQ(call(u"getVisible", button), host::Value(true));
    EXPECT_EQ(call(u"getLabel", button), host::Value(Text(u"Ornavel Send Options")));
    stage.client.items[0]->sent = true;
    EXPECT_EQ(call(u"getVisible", button), host::Value(false));
    button->values.erase(u"Context"); // nothing says that it can't be dressed
    EXPECT_EQ(call(u"getVisible", button), host::Value(true));
}

TEST_F(OnTheRibbon, NoToolbarIsTried) {
    connect();
    for (const auto& entry : stage.journal.entries()) EXPECT_EQ(entry.what.find(u"CommandBars"), Text::npos);
}

} // namespace
} // namespace ornavel::connect
