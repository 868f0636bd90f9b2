#include "connect/connect.h"
#include "tests/connect/staged_platform.h"

#include <gtest/gtest.h>

namespace ornavel::connect {
namespace {

using rehearsal::Stage;

/// A screen on which something happens while the first window is open. Boxes are answered Yes, forms are
/// closed by their frame.
class InterruptedWindows final : public forms::Windows {
public:
    std::function<void()> meanwhile;
    std::vector<Text> shown;

    Answer show(TextView title, TextView, Buttons buttons) override {
        shown.emplace_back(title);
        interrupt();
        return buttons == Buttons::ok ? Answer::ok : Answer::yes;
    }
    void show_modal(forms::Form& form) override {
        form.load();
        shown.push_back(form.name());
        interrupt();
        form.unload();
    }
    std::optional<Text> ask_for_path(const forms::PathQuestion&) override { return {}; }

private:
    void interrupt() {
        if (const auto happens = std::exchange(meanwhile, {})) happens();
    }
};

/// A clock that is asked for the time while something happens.
class InterruptedClock final : public Clock {
public:
    std::function<void()> meanwhile;
    LocalTime now() const override {
        if (meanwhile) meanwhile();
        return {2003, 11, 20, 14, 5, 9};
    }
};

/// Settings of which one is asked for while something happens.
class InterruptedStore final : public settings::Store {
public:
    explicit InterruptedStore(settings::Store& store) : store_(store) {}
    std::function<void()> meanwhile;
    TextView while_asked_for;

    std::optional<Text> find(TextView section, TextView key) const noexcept override {
        if (meanwhile && key == while_asked_for) meanwhile();
        return store_.find(section, key);
    }
    bool save(TextView section, TextView key, TextView value) noexcept override {
        return store_.save(section, key, value);
    }
    bool remove(TextView section, TextView key) noexcept override { return store_.remove(section, key); }

private:
    settings::Store& store_;
};

/// Two messages, and a template whose script is asked about while the first one is composed.
constexpr const char* two_messages = R"({
    "settings": {
        "Admin Settings": {"SigEmail": "jo@example.com", "SigWebsite": "example.com", "HTM Files Path": "C:\\stationery"},
        "User Settings": {"SettingButtonBar": "auto", "Template": "letter.htm", "Signature": "none"}},
    "files": {"C:\\stationery\\letter.htm": "</script>{[#Input your message here#]}"},
    "host": {"explorers": 1},
    "items": [{"HTMLBody": "outer"}, {"HTMLBody": "inner"}],
    "do": []})";

class Reentrancy : public testing::Test {
protected:
    void SetUp() override {
        connect->OnConnection(stage.application(), Connect::at_startup);
        connect->OnStartupComplete();
    }

    Platform platform() {
        Platform platform = platform_of(stage, {.settings = &store, .clock = &clock, .windows = &windows});
        platform.keep = [this] { return connect; };
        return platform;
    }

    bool send(std::size_t item) { return stage.client.send(*stage.client.items[item]); }
    Text body(std::size_t item) { return stage.item(item).html_body(); }
    void set_up_without_template() {
        stage.machine.change_settings({{u"User Settings", {{u"Template", u""}}}});
    }
    Text mode() { return *stage.machine.addin_settings().find(u"User Settings", u"SettingButtonBar"); }
    Text log() { return from_utf8(stage.machine.files().read(u"C:\\app\\Support\\SupportLog.txt")); }

    Stage stage{two_messages};
    InterruptedWindows windows;
    InterruptedClock clock;
    InterruptedStore store{stage.machine.addin_settings()};
    std::shared_ptr<Connect> connect = std::make_shared<Connect>(platform());
};

TEST_F(Reentrancy, ASendInsideASendIsDressedAndSoIsTheOuterOne) {
    windows.meanwhile = [&] { EXPECT_FALSE(send(1)); };
    EXPECT_FALSE(send(0));
    EXPECT_EQ(body(0), u"</script>{outer}\r\n");
    EXPECT_EQ(body(1), u"</script>{inner}\r\n");
    for (const std::size_t item : {0u, 1u})
        EXPECT_EQ(stage.item(item).billing_information(), u"Ornavel from Brevant");
    EXPECT_EQ(windows.shown.size(), 2u);
}

TEST_F(Reentrancy, AReplyKeepsItsQuotedPartWhenANewMessageIsSentInBetween) {
    stage.machine.change_settings({{u"System Settings", {{u"Office2003SearchString", u"-----Original"}}}});
    stage.item(0).set_html_body(u"outer-----Original quoted");
    windows.meanwhile = [&] { EXPECT_FALSE(send(1)); };
    EXPECT_FALSE(send(0));
    EXPECT_EQ(body(0), u"</script>{outer}\r\n<p><hr>----Original quoted");
    EXPECT_EQ(body(1), u"</script>{inner}\r\n");
}

TEST_F(Reentrancy, AnItemThatAPreviewSendsInsideASendGoesOutUntouched) {
    stage.item(1).set_billing_information(u"Preview Send");
    windows.meanwhile = [&] { EXPECT_FALSE(send(1)); };
    EXPECT_FALSE(send(0));
    EXPECT_EQ(body(0), u"</script>{outer}\r\n");
    EXPECT_EQ(body(1), u"inner");
}

TEST_F(Reentrancy, ASendInsideASendThatIsRefusedForItsStationeryDoesNotHoldTheDressedOneBack) {
    windows.meanwhile = [&] {
        stage.machine.change_settings({{u"Admin Settings", {{u"WipeoutPersonalStationery", u"True"}}}});
        stage.machine.registry().set(
            u"HKEY_CURRENT_USER\\Software\\Microsoft\\Office\\11.0\\Common\\MailSettings", u"NewStationery",
            Text(u"Ivy"));
        EXPECT_TRUE(send(1));
    };
    EXPECT_FALSE(send(0));
    EXPECT_EQ(body(0), u"</script>{outer}\r\n");
    EXPECT_EQ(stage.item(0).billing_information(), u"Ornavel from Brevant");
    EXPECT_EQ(stage.item(1).billing_information(), u"DoNotSend");
}

TEST_F(Reentrancy, ASendWhileThePromptIsOpenLeavesTheOuterOneCancelled) {
    set_up_without_template();
    stage.item(1).set_billing_information(u"Preview Send");
    windows.meanwhile = [&] { EXPECT_FALSE(send(1)); };
    EXPECT_TRUE(send(0));
    EXPECT_EQ(mode(), u"on");
    EXPECT_EQ(body(0), u"outer");
    EXPECT_TRUE(stage.client.items[1]->sent);
}

TEST_F(Reentrancy, ASendWhileThePreviewIsOpenLeavesTheUsersAnswerToTheOuterOne) {
    stage.machine.change_settings({{u"Admin Settings", {{u"AutoPreview", u"True"}}}});
    stage.item(1).set_billing_information(u"Preview Send");
    windows.meanwhile = [&] { EXPECT_FALSE(send(1)); };
    EXPECT_TRUE(send(0)); // the preview is closed by its frame
    EXPECT_EQ(body(0), u"outer");
}

TEST_F(Reentrancy, ALastExplorerClosedWhileThePromptIsOpenChangesTheModeAllTheSame) {
    set_up_without_template();
    windows.meanwhile = [&] { stage.client.close_explorer(0); };
    EXPECT_TRUE(send(0));
    EXPECT_EQ(mode(), u"on");
    EXPECT_EQ(stage.held(), 0u);
}

TEST_F(Reentrancy, AnExplorerOfSeveralClosedWhileAQuestionIsOpenChangesNothing) {
    stage.client.add_explorers(1);
    windows.meanwhile = [&] { stage.client.close_explorer(0); };
    EXPECT_FALSE(send(0));
    EXPECT_EQ(body(0), u"</script>{outer}\r\n");
}

TEST_F(Reentrancy, AShutdownWhileThePromptIsOpenLosesNeitherTheMessageNorTheMode) {
    set_up_without_template();
    windows.meanwhile = [&] {
        connect->OnBeginShutdown();
        connect->OnDisconnection(0);
    };
    EXPECT_TRUE(send(0));
    EXPECT_EQ(mode(), u"on");
    EXPECT_EQ(body(0), u"outer");
    EXPECT_EQ(stage.held(), 0u);
}

TEST_F(Reentrancy, AShutdownDuringTheCompositionLetsTheMessageGoAsItIsAndSaysSo) {
    windows.meanwhile = [&] { connect->OnBeginShutdown(); };
    EXPECT_FALSE(send(0));
    EXPECT_EQ(body(0), u"outer");
    EXPECT_EQ(stage.item(0).billing_information(), u"");
    EXPECT_TRUE(contains(log(), u"ol_ItemSend, composition"));
    connect->OnDisconnection(0);
    EXPECT_EQ(stage.held(), 0u);
}

TEST_F(Reentrancy, AMailClientThatLetsGoOfTheAddInWhileAQuestionIsOpenFindsNothingHeldAfterwards) {
    windows.meanwhile = [&] {
        connect->OnBeginShutdown();
        connect->OnDisconnection(0);
        connect.reset();
    };
    EXPECT_FALSE(send(0));
    EXPECT_EQ(body(0), u"outer");
    EXPECT_EQ(stage.held(), 0u);
}

TEST_F(Reentrancy, AMailClientThatLetsGoOfTheAddInWhileAnExplorerClosesFindsNothingHeldAfterwards) {
    stage.client.add_explorers(1);
    stage.machine.change_settings({{u"System Settings", {{u"SystemCheck", u"True"}}},
                                   {u"Admin Settings", {{u"ErrorFileLocation", u"C:\\log.txt"}}}});
    clock.meanwhile = [&] {
        if (connect) std::exchange(connect, {})->OnDisconnection(0);
    };
    stage.client.close_explorer(0);
    EXPECT_FALSE(connect);
    EXPECT_EQ(stage.held(), 0u);
}

TEST_F(Reentrancy, AMailClientThatLetsGoOfTheAddInWhileAButtonIsPressedFindsNothingHeldAfterwards) {
    const auto button = stage.client.standard_bar->find(u"EmailMonitor");
    stage.client.click(*button); // off; the next click asks whether there is a mode "eSignature"
    store.while_asked_for = u"eSignature";
    store.meanwhile = [&] {
        if (connect) std::exchange(connect, {})->OnDisconnection(0);
    };
    stage.client.click(*button);
    EXPECT_FALSE(connect);
    EXPECT_EQ(mode(), u"eSignature");
    EXPECT_EQ(stage.held(), 0u);
}

} // namespace
} // namespace ornavel::connect
