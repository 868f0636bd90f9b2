#include "connect/button_tags.h"
#include "settings/modes.h"
#include "tests/connect/sending.h"

namespace ornavel::connect {
namespace {

using namespace settings;

constexpr const char* ready_to_dress = R"({
    "settings": {"Admin Settings": {"SigEmail": "jo@example.com", "SigWebsite": "www.example.com",
                                    "StartupSetupWiz": "False", "HTM Files Path": "C:\\stationery",
                                    "ErrorFileLocation": "C:\\log.txt"},
                 "User Settings": {"SettingButtonBar": "auto", "Template": "letter.htm", "Signature": "none"}},
    "files": {"C:\\stationery\\letter.htm": "<[#Input your message here#]>\r\n"},
    "folders": ["C:\\app"],
    "host": {"explorers": EXPLORERS},
    "user": [{"at": "Ornavel System Test", "answer": "Yes"}],
    "items": [{"Subject": "Hello", "HTMLBody": "Hello"}, {"Subject": "Good morning", "HTMLBody": "Hello"}],
    "do": []})";

constexpr int shows_caption = 2,
              shows_icon_and_caption = 3; ///< a button's style, as the mail client numbers it

std::string with_explorers(int count) {
    std::string scenario = ready_to_dress;
    return scenario.replace(scenario.find("EXPLORERS"), 9, std::to_string(count));
}

/// The add-in in front of a mail client with some explorers; not connected yet.
struct Lifecycle {
    explicit Lifecycle(int explorers) : stage(with_explorers(explorers)) {}

    bool dresses_a_message() {
        rehearsal::MailItemNode& item = *stage.client.items[0];
        item.html_body = u"Hello";
        item.user_property_nodes.clear();
        stage.client.send(item);
        return item.html_body == u"<Hello>\r\n";
    }
    std::size_t buttons() const { return stage.client.standard_bar->buttons.size(); }

    rehearsal::Stage stage;
    Connect addin{platform_of(stage)};
};

TEST(Lifecycle, AnExplorerThatClosesIsNotHookedAgainThoughItIsStillTheActiveOne) {
    Lifecycle add_in(3);
    add_in.addin.OnConnection(add_in.stage.application(), Connect::at_startup);
    add_in.addin.OnStartupComplete();
    add_in.stage.client.close_explorer(0); // the active one
    add_in.stage.client.close_explorer(1); // hooked by now: its end is heard of
    EXPECT_TRUE(add_in.dresses_a_message());
    add_in.stage.client.close_explorer(2); // the last
    EXPECT_EQ(add_in.stage.held(), 0u);
    EXPECT_FALSE(add_in.dresses_a_message());
}

TEST(Lifecycle, WithoutAnExplorerAtStartUpTheFirstThatOpensIsHookedAndGetsTheButtons) {
    Lifecycle add_in(0);
    add_in.addin.OnConnection(add_in.stage.application(), Connect::at_startup);
    add_in.addin.OnStartupComplete();
    EXPECT_EQ(add_in.buttons(), 0u);
    EXPECT_TRUE(add_in.dresses_a_message());
    add_in.stage.client.add_explorers(2);
    EXPECT_EQ(add_in.buttons(), 2u);
    add_in.stage.client.close_explorer(0);
    add_in.stage.client.close_explorer(1);
    EXPECT_EQ(add_in.stage.held(), 0u);
}

TEST(Lifecycle, AnExplorerThatOpensBetweenConnectionAndStartUpGetsTheButtonsAtStartUp) {
    Lifecycle add_in(0);
    add_in.addin.OnConnection(add_in.stage.application(), Connect::at_startup);
    add_in.stage.client.add_explorers(1);
    EXPECT_EQ(add_in.buttons(), 0u);
    add_in.addin.OnStartupComplete();
    EXPECT_EQ(add_in.buttons(), 2u);
    add_in.addin.OnDisconnection(0);
    EXPECT_EQ(add_in.stage.held(), 0u);
}

TEST(Lifecycle, LoadedWhileTheMailClientRunsTheStartUpsWorkIsDoneAtConnectionAndOnce) {
    Lifecycle add_in(1);
    settings::save(add_in.stage.machine.addin_settings(), system::SystemCheck, on);
    add_in.addin.OnConnection(add_in.stage.application(), Connect::after_startup);
    EXPECT_EQ(add_in.buttons(), 2u);
    EXPECT_TRUE(add_in.dresses_a_message());
    const std::string log = add_in.stage.machine.files().read(u"C:\\log.txt");
    EXPECT_LT(log.find("Calling Get_Marketing_Info"), log.find("Exiting sub"));
    add_in.addin.OnStartupComplete();
    add_in.addin.OnDisconnection(1);
    EXPECT_EQ(add_in.buttons(), 0u);
    EXPECT_EQ(add_in.stage.held(), 0u);
}

TEST(Lifecycle, TheShutdownOfTheMailClientLetsGoOfEverything) {
    Lifecycle add_in(1);
    add_in.addin.OnConnection(add_in.stage.application(), Connect::at_startup);
    add_in.addin.OnStartupComplete();
    EXPECT_GT(add_in.stage.held(), 0u);
    add_in.addin.OnBeginShutdown();
    EXPECT_EQ(add_in.stage.held(), 0u);
}

TEST(Lifecycle, MessageWindowsThatAreOpenWhenItIsLoadedGetTheirButtonUntilTheyClose) {
    Lifecycle add_in(1);
    settings::save(add_in.stage.machine.addin_settings(), user::SettingButtonBar, modes::on);
    rehearsal::MailClient& client = add_in.stage.client;
    for (const auto& item : client.items) client.open_window(item);
    add_in.addin.OnConnection(add_in.stage.application(), Connect::after_startup);
    for (const auto& item : client.items) {
        ASSERT_EQ(item->inspector_bar->buttons.size(), 1u);
        EXPECT_EQ(item->inspector_bar->buttons[0]->tag, button_tags::send_options);
        EXPECT_EQ(item->inspector_bar->buttons[0]->style, shows_caption);
    }
    const std::size_t held = add_in.stage.held();
    client.send(*client.items[0]);
    EXPECT_TRUE(client.items[0]->inspector_bar->buttons.empty());
    EXPECT_LT(add_in.stage.held(), held);
    add_in.addin.OnDisconnection(1);
    EXPECT_TRUE(client.items[1]->inspector_bar->buttons.empty());
    EXPECT_EQ(add_in.stage.held(), 0u);
}

TEST(Lifecycle, ItsButtonsShowTheirCaptionsAndStayNoLongerThanTheMailClient) {
    Lifecycle add_in(1);
    add_in.addin.OnConnection(add_in.stage.application(), Connect::at_startup);
    add_in.addin.OnStartupComplete();
    const auto& buttons = add_in.stage.client.standard_bar->buttons;
    ASSERT_EQ(buttons.size(), 2u);
    EXPECT_EQ(buttons[0]->tag, button_tags::setup);
    EXPECT_EQ(buttons[0]->style, shows_icon_and_caption);
    EXPECT_EQ(buttons[1]->tag, button_tags::mode);
    EXPECT_EQ(buttons[1]->style, shows_caption);
    for (const auto& button : buttons) EXPECT_TRUE(button->temporary);
    add_in.addin.OnDisconnection(0);
}

TEST(Lifecycle, ItsEndTakesTheScratchFilesWithIt) {
    Lifecycle add_in(1);
    add_in.addin.OnConnection(add_in.stage.application(), Connect::at_startup);
    auto& files = add_in.stage.machine.files();
    for (const TextView name :
         {u"beforetext.txt", u"aftertext.txt", u"myTestHtmlFile.html", u"GetMyHtml.htm", u"mine.txt"})
        files.write(u"C:\\app\\" + Text(name), "text");
    add_in.addin.OnDisconnection(0);
    EXPECT_EQ(files.list(u"C:\\app"), std::vector<Text>{u"mine.txt"});
}

/// An object of the mail client that does as it should, but refuses to tell of its events.
class Mute final : public host::Object {
public:
    explicit Mute(host::ObjectPtr object) : object_(std::move(object)) {}
    host::Value get(host::Member member, const host::Arguments& arguments) override {
        return mute(object_->get(member, arguments));
    }
    void put(host::Member member, const host::Value& value) override { object_->put(member, value); }
    host::Value call(host::Member member, const host::Arguments& arguments) override {
        return mute(object_->call(member, arguments));
    }
    host::Subscription advise(host::EventSource, host::EventHandler) override {
        throw host::Error(u"no connection point");
    }
    bool is_same(const host::Object& other) const override { return this == &other; }

private:
    static host::Value mute(host::Value value) {
        const auto* object = std::get_if<host::ObjectPtr>(&value);
        return object && *object ? host::Value(host::ObjectPtr(std::make_shared<Mute>(*object))) : value;
    }
    host::ObjectPtr object_;
};

TEST(Lifecycle, EventsThatCantBeHookedAreLoggedEachAndNobodyIsAsked) {
    Lifecycle add_in(1);
    add_in.addin.OnConnection(host::Application(std::make_shared<Mute>(add_in.stage.client.application())),
                              Connect::at_startup);
    add_in.addin.OnStartupComplete();
    const std::string log = add_in.stage.machine.files().read(u"C:\\log.txt");
    for (const char* entry : {"Error hooking the mail client's events", "Error hooking the explorer",
                              "Error hooking the setup button", "Error hooking the mode button",
                              "Error hooking the message windows"})
        EXPECT_NE(log.find(entry), std::string::npos) << entry;
    EXPECT_EQ(add_in.buttons(), 2u);
    add_in.addin.OnDisconnection(1);
    EXPECT_EQ(add_in.stage.held(), 0u);
}

TEST(Lifecycle, AMachineWithoutANotificationAreaHasNoIcon) {
    Lifecycle add_in(1);
    settings::save(add_in.stage.machine.addin_settings(), admin::SysTray, on);
    add_in.addin.OnConnection(add_in.stage.application(), Connect::at_startup);
    add_in.addin.OnStartupComplete();
    EXPECT_EQ(add_in.buttons(), 2u);
    add_in.addin.OnDisconnection(0);
    EXPECT_EQ(add_in.stage.held(), 0u);
}

TEST(Lifecycle, LoadedAgainTheStartUpsWorkIsDoneAgain) {
    Lifecycle add_in(1);
    for (int time = 0; time < 2; ++time) {
        add_in.addin.OnConnection(add_in.stage.application(), Connect::after_startup);
        EXPECT_EQ(add_in.buttons(), 2u);
        add_in.addin.OnDisconnection(1);
        EXPECT_EQ(add_in.buttons(), 0u);
    }
    EXPECT_EQ(add_in.stage.held(), 0u);
}

} // namespace
} // namespace ornavel::connect
