#include "forms/frmSysTray.h"

#include "base/encoding.h"
#include "tests/fakes/recording_reports.h"
#include "tests/fakes/scripted_windows.h"
#include "tests/forms/drawing.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace ornavel::forms {
namespace {

using namespace settings;

/// A notification area whose user chooses what a test says.
class ScriptedTray final : public Tray {
public:
    Text tip;
    std::function<void(int)> handler;
    std::vector<MenuEntry> menu;
    std::function<std::optional<std::size_t>()> choose = [] { return std::nullopt; };

    void show(TextView with_tip, std::function<void(int)> with_handler) override {
        tip = with_tip;
        handler = std::move(with_handler);
    }
    void hide() override { tip.clear(); }
    std::optional<std::size_t> pop_up(std::span<const MenuEntry> entries) override {
        menu.assign(entries.begin(), entries.end());
        ++menus_opened;
        return choose();
    }
    int menus_opened = 0;
};

class Launches final : public Launcher {
public:
    std::vector<Text> launched;
    void launch(TextView program, TextView, WindowState) override { launched.emplace_back(program); }
    Progress run_windows_program(TextView, TextView, WindowState, int) override { return Progress::ended; }
};

class Machine final : public SystemInformation {
    OperatingSystem operating_system() const override { throw Failure(u"no system"); }
    int processor_type() const override { return 0; }
    Memory memory() const override { return {}; }
    Text computer_name() const override { return {}; }
    Text user_name() const override { return {}; }
    Text registered_owner() const override { return {}; }
    Text registered_organization() const override { return {}; }
};

struct SysTray : testing::Test {
    /// Its caption as a reader sees it.
    Text caption(std::size_t entry) const {
        return readable_caption({.kind = ControlKind::menu, .caption = tray.menu[entry].caption});
    }
    void open_menu() { tray.handler(517); }
    bool is_ticked(TextView wanted) {
        open_menu();
        for (std::size_t i = 0; i < tray.menu.size(); ++i)
            if (caption(i) == wanted) return tray.menu[i].ticked;
        ADD_FAILURE() << "no such entry";
        return false;
    }

    MemoryStore settings;
    ScriptedWindows windows;
    ScriptedTray tray;
    Machine machine;
    Launches launches;
    RecordingReports errors;
    host::Application application;
    frmSysTray form{{settings,
                     windows,
                     tray,
                     built_in_strings(),
                     machine,
                     launches,
                     errors,
                     application,
                     u"C:\\add-in",
                     {}}};

    void SetUp() override { form.form().load(); }
};

TEST_F(SysTray, LooksAsDrawn) { expect_drawn(form.form(), "tray menu"); }

TEST_F(SysTray, TheTipFitsIntoItsField) {
    EXPECT_EQ(tray.tip, u"Right click to see Administrator options. Ornavel 3.9.9 running");
    EXPECT_LE(tray.tip.size(), 63u);
}

TEST_F(SysTray, TheMenuHasItsEntriesInTheirOrder) {
    constexpr TextView expected[] = {u"Close Admininstrator",
                                     u"About Brevant Ornavel",
                                     u"Visit our site",
                                     u"System Info",
                                     u"Run the Advanced Config Wiz",
                                     u"Hide Administrator",
                                     u"",
                                     u"Remove Template Attachments",
                                     u"Template Font Control",
                                     u"HTML File Compare",
                                     u"Remove Pre-existing Templates",
                                     u"Skip Internal Recipients",
                                     u"",
                                     u"Default Signature...",
                                     u"Default Template...",
                                     u"Notify Support..."};
    open_menu();
    ASSERT_EQ(tray.menu.size(), std::size(expected));
    for (std::size_t i = 0; i < tray.menu.size(); ++i) EXPECT_EQ(caption(i), expected[i]);
}

TEST_F(SysTray, EachEntryHasAnAccessKeyOfItsOwn) {
    open_menu();
    std::vector<Text> keys;
    for (const MenuEntry& entry : tray.menu) {
        const auto mark = entry.caption.find(u'&');
        if (!entry.caption.empty()) keys.push_back(lower_case(entry.caption.substr(mark + 1, 1)));
    }
    EXPECT_EQ(keys.size(), 14u);
    std::ranges::sort(keys);
    EXPECT_EQ(std::ranges::adjacent_find(keys), keys.end());
}

TEST_F(SysTray, ASwitchIsTickedUnlessItIsOff) {
    struct Case {
        std::optional<Text> stored;
        bool ticked;
    };
    const Case cases[] = {{{}, false},  {u"False", false}, {u"True", true},
                          {u"1", true}, {u"", true},       {u"false", true}};
    const std::pair<const Key&, TextView> toggles[] = {
        {admin::WipeoutTemplateAttachments, u"Remove Template Attachments"},
        {admin::WipeOutFontControl, u"Template Font Control"},
        {admin::WipeOutFileCompare, u"HTML File Compare"},
        {admin::WipeoutHTML, u"Remove Pre-existing Templates"},
        {admin::SkipInternal, u"Skip Internal Recipients"}};
    for (const auto& [key, wanted] : toggles)
        for (const Case& test : cases) {
            if (test.stored) save(settings, key, *test.stored);
            EXPECT_EQ(is_ticked(wanted), test.ticked) << to_utf8(wanted);
        }
}

TEST_F(SysTray, OnlyTheReleaseOfTheRightButtonOpensTheMenu) {
    for (int message = 0; message < 1100; ++message)
        if (message != 517) tray.handler(message);
    EXPECT_EQ(tray.menus_opened, 0);
    open_menu();
    EXPECT_EQ(tray.menus_opened, 1);
}

TEST_F(SysTray, WhileTheMenuIsOpenNoSecondOneOpens) {
    tray.choose = [&]() -> std::optional<std::size_t> {
        tray.handler(517);
        return {};
    };
    open_menu();
    EXPECT_EQ(tray.menus_opened, 1);
    open_menu();
    EXPECT_EQ(tray.menus_opened, 2);
}

TEST_F(SysTray, AMenuThatOutlivesItsIconChoosesNothing) {
    tray.choose = [&]() -> std::optional<std::size_t> {
        form.form().unload();
        return 4; // the options assistant
    };
    open_menu();
    EXPECT_TRUE(launches.launched.empty());
}

TEST_F(SysTray, AMachineThatTellsNothingStillHasASystemInfo) {
    tray.choose = [] { return std::optional<std::size_t>(3); };
    open_menu();
    EXPECT_TRUE(errors.entries.empty());
}

TEST_F(SysTray, KnowsWhichEntryWorksOnASetting) {
    EXPECT_EQ(tray_caption(u"SkipInternal"), u"Skip Internal Recipients");
    EXPECT_EQ(tray_caption(u"template"), u"Default Template...");
    EXPECT_EQ(tray_caption(u"Support"), u"Notify Support...");
    EXPECT_EQ(tray_caption(u"SysTray"), std::nullopt);
}

} // namespace
} // namespace ornavel::forms
