#include "win32/notification_icon.h"

#include "rehearsal/windows/menu_hand.h"
#include "rehearsal/windows/tray_watch.h"
#include "tests/win32/form_stage.h"

namespace ornavel::win32 {
namespace {

using rehearsal::TrayWatch;

const std::vector<forms::MenuEntry> entries{{u"&First", false}, {u"Second", true}, {}, {u"T&hird", false}};

/// What a test does while a menu is open, at the next tick of a timer.
std::function<void(HWND menu)> in_menu;

void CALLBACK look_for_menu(HWND, UINT, UINT_PTR, DWORD) {
    const HWND menu = rehearsal::open_menu();
    if (menu && in_menu) std::exchange(in_menu, {})(menu);
}

struct Icon : testing::Test {
    void SetUp() override { watch.watch(GetModuleHandleW(nullptr)); }

    std::optional<std::size_t> pop_up(std::function<void(HWND menu)> act) {
        in_menu = std::move(act);
        const UINT_PTR timer = SetTimer(nullptr, 0, 30, look_for_menu);
        const auto chosen = icon.pop_up(entries);
        KillTimer(nullptr, timer);
        EXPECT_EQ(rehearsal::open_menu(), nullptr);
        return chosen;
    }
    void show() {
        icon.show(u"A tip", [this](int message) { messages.push_back(message); });
    }

    TrayWatch watch;
    NotificationIcon icon;
    std::vector<int> messages;
};

TEST_F(Icon, IsGivenInTheSizeThatAllDesktopsKnow) {
    show();
    EXPECT_EQ(watch.icon().cbSize, static_cast<DWORD>(NOTIFYICONDATAA_V1_SIZE));
    EXPECT_EQ(watch.icon().uFlags, static_cast<UINT>(NIF_MESSAGE | NIF_ICON | NIF_TIP));
    EXPECT_NE(watch.icon().hIcon, nullptr);
    EXPECT_EQ(watch.record.tip, u"A tip");
}

TEST_F(Icon, ATipThatIsTooLongIsCut) {
    icon.show(Text(100, u'x'), [](int) {});
    EXPECT_EQ(watch.record.tip, Text(63, u'x'));
}

TEST_F(Icon, ComesBackWhenTheTaskbarIsMadeAnew) {
    show();
    const HWND window = watch.icon().hWnd;
    SendMessageW(window, RegisterWindowMessageW(L"TaskbarCreated"), 0, 0);
    EXPECT_EQ(watch.record.times_shown, 2);
    EXPECT_TRUE(GetParent(window) == nullptr &&
                !IsWindowVisible(window)); // such news go to windows of the top
}

TEST_F(Icon, ItsMessagesReachTheHandlerByTheirNumbers) {
    show();
    for (const int message : {WM_MOUSEMOVE, WM_RBUTTONUP}) watch.send(message);
    EXPECT_EQ(messages, (std::vector<int>{512, 517}));
}

TEST_F(Icon, GoesWithItsWindow) {
    show();
    const HWND window = watch.icon().hWnd;
    icon.hide();
    EXPECT_FALSE(IsWindow(window));
    EXPECT_EQ(watch.record.times_removed, 1);
    icon.hide();
    EXPECT_EQ(watch.record.times_removed, 1);
}

TEST_F(Icon, AHandlerMayTakeItAway) {
    icon.show(u"A tip", [this](int) { icon.hide(); });
    watch.send(WM_RBUTTONUP);
    EXPECT_FALSE(watch.record.shown);
}

TEST_F(Icon, TheMenuHasItsEntriesAndTicks) {
    show();
    pop_up([](HWND menu) {
        EXPECT_EQ(rehearsal::captions_in_menu(menu),
                  (std::vector<Text>{u"First", u"Second", u"-", u"Third"}));
        const auto handle = reinterpret_cast<HMENU>(SendMessageW(menu, MN_GETHMENU, 0, 0));
        EXPECT_FALSE(GetMenuState(handle, 0, MF_BYPOSITION) & MF_CHECKED);
        EXPECT_TRUE(GetMenuState(handle, 1, MF_BYPOSITION) & MF_CHECKED);
        rehearsal::choose_in_menu(menu, {});
    });
}

TEST_F(Icon, AnEntryIsChosenByKeysAndByItsAccessKey) {
    show();
    for (const std::size_t wanted : {0U, 1U, 3U})
        EXPECT_EQ(pop_up([wanted](HWND menu) { rehearsal::choose_in_menu(menu, wanted); }), wanted);
    EXPECT_EQ(pop_up([](HWND menu) { PostMessageW(menu, WM_CHAR, L'h', 0); }), 3U);
    EXPECT_EQ(pop_up([](HWND menu) { rehearsal::choose_in_menu(menu, {}); }), std::nullopt);
}

TEST_F(Icon, TheMenuClosesWhenTheUserClicksElsewhere) {
    show();
    const auto chosen = pop_up([this](HWND menu) {
        EXPECT_EQ(GetForegroundWindow(), watch.icon().hWnd);
        PostMessageW(menu, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(900, 900));
    });
    EXPECT_EQ(chosen, std::nullopt);
}

TEST_F(Icon, ItsUnseenWindowOwnsNoBox) {
    show();
    SetForegroundWindow(watch.icon().hWnd);
    play({[this](HWND box) {
             EXPECT_NE(GetWindow(box, GW_OWNER), watch.icon().hWnd);
             PostMessageW(box, WM_CLOSE, 0, 0);
         }},
         [] { DesktopWindows().inform(u"About", u"Text"); });
}

} // namespace
} // namespace ornavel::win32
