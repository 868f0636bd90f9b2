#include "win32/form_window.h"

#include "base/encoding.h"
#include "forms/frmMessage.h"
#include "win32/machine.h"
#include "win32/wide.h"
#include "win32/window_name.h"

#include <gtest/gtest.h>

#include <commctrl.h>
#include <deque>

namespace ornavel::win32 {
namespace {

using forms::Control;
using forms::Event;
using forms::Form;
using forms::Kind;

/// What a test does while a form is open, one act for each tick of a timer; a form that is still open after
/// the last act is closed by its frame.
std::deque<std::function<void(HWND)>> acts;

BOOL CALLBACK take_visible(HWND window, LPARAM found) {
    wchar_t window_class[8] = {};
    GetClassNameW(window, window_class, 8);
    if (!IsWindowVisible(window) || std::wstring_view(window_class) != L"#32770") return TRUE;
    *reinterpret_cast<HWND*>(found) = window;
    return FALSE;
}

/// The form's window that is in front.
HWND open_window() {
    HWND found = nullptr;
    EnumThreadWindows(GetCurrentThreadId(), take_visible, reinterpret_cast<LPARAM>(&found));
    return found;
}

void CALLBACK next_act(HWND, UINT, UINT_PTR, DWORD) {
    const HWND window = open_window();
    if (!window) return;
    if (acts.empty()) {
        PostMessageW(window, WM_CLOSE, 0, 0);
        return;
    }
    const auto act = std::move(acts.front());
    acts.pop_front();
    act(window);
}

/// Shows the form in its real window while the acts are played.
void show(Form& form, std::deque<std::function<void(HWND)>> script) {
    acts = std::move(script);
    const UINT_PTR timer = SetTimer(nullptr, 0, 30, next_act);
    DesktopWindows().show_modal(form);
    KillTimer(nullptr, timer);
    EXPECT_TRUE(acts.empty()) << "the form closed before the last act";
    EXPECT_FALSE(form.is_loaded());
    EXPECT_EQ(open_window(), nullptr);
}

struct Search {
    const wchar_t* name;
    HWND found;
};

BOOL CALLBACK compare_name(HWND window, LPARAM pointer) {
    auto& search = *reinterpret_cast<Search*>(pointer);
    if (wide(name_of(window)) != search.name) return TRUE;
    search.found = window;
    return FALSE;
}

HWND control(HWND window, const wchar_t* name) {
    Search search{name, nullptr};
    EnumChildWindows(window, compare_name, reinterpret_cast<LPARAM>(&search));
    return search.found;
}

Text text_in(HWND window) {
    wchar_t text[512] = {};
    SendMessageW(window, WM_GETTEXT, 512, reinterpret_cast<LPARAM>(text));
    return text_of(text);
}

std::function<void(HWND)> pressing(const wchar_t* button) {
    return [button](HWND window) { PostMessageW(control(window, button), BM_CLICK, 0, 0); };
}

std::function<void(HWND)> key(WPARAM code) {
    return [code](HWND) { PostMessageW(GetFocus(), WM_KEYDOWN, code, 0); };
}

void notify(HWND window, const wchar_t* name, WORD code) {
    const HWND sender = control(window, name);
    PostMessageW(window, WM_COMMAND, MAKEWPARAM(GetDlgCtrlID(sender), code),
                 reinterpret_cast<LPARAM>(sender));
}

BOOL CALLBACK take_tool_tips(HWND window, LPARAM found) {
    wchar_t window_class[32] = {};
    GetClassNameW(window, window_class, 32);
    if (std::wstring_view(window_class) != TOOLTIPS_CLASSW) return TRUE;
    *reinterpret_cast<HWND*>(found) = window;
    return FALSE;
}

struct FormWindowTest : testing::Test {
    Form form{
        {.name = u"frmOrder", .place = {0, 0, 6000, 4500}, .caption = u"Order"},
        {{.kind = Kind::text_box, .name = u"txtNote", .place = {150, 150, 2400, 315}},
         {.kind = Kind::combo_box,
          .name = u"cboSize",
          .place = {150, 600, 2400, 315},
          .text = u"small",
          .items = {u"small", u"large"},
          .index = 0},
         {.kind = Kind::check_box, .name = u"chkGift", .place = {150, 1050, 2400, 255}, .caption = u"A gift"},
         {.kind = Kind::frame, .name = u"fraMore", .place = {3000, 150, 2700, 1200}, .caption = u"More"},
         {.kind = Kind::label, .name = u"lblHint", .place = {150, 300, 2400, 255}, .frame = u"fraMore"},
         {.kind = Kind::text_box,
          .name = u"txtTips",
          .place = {150, 1500, 2400, 900},
          .text = u"first tip",
          .locked = true,
          .several_lines = true},
         {.kind = Kind::command_button,
          .name = u"cmdSend",
          .place = {150, 3000, 1500, 375},
          .caption = u"&Send",
          .tool_tip = u"Sends it",
          .is_default = true},
         {.kind = Kind::command_button,
          .name = u"cmdCancel",
          .place = {1800, 3000, 1500, 375},
          .caption = u"Cancel",
          .is_cancel = true},
         {.kind = Kind::menu, .name = u"mnFile", .caption = u"File"}}};
    Text events;

    void note(TextView name, Event event, TextView mark) {
        form.on(name, event, [this, mark] { events += mark; });
    }
    void unload_on(TextView button, TextView mark) {
        form.on(button, Event::click, [this, mark] {
            events += mark;
            form.unload();
        });
    }
};

TEST_F(FormWindowTest, AClickedButtonRunsItsHandlerAndAnUnloadedFormReturns) {
    unload_on(u"cmdSend", u"sent");
    show(form, {pressing(L"cmdSend")});
    EXPECT_EQ(events, u"sent");
}

TEST_F(FormWindowTest, TheWindowStandsInTheMiddleAsLargeAsItsTwips) {
    show(form, {[&](HWND window) {
             RECT frame, desk;
             GetWindowRect(window, &frame);
             SystemParametersInfoW(SPI_GETWORKAREA, 0, &desk, 0);
             const RECT wanted = Scale::of_screen().pixels({0, 0, 6000, 4500});
             EXPECT_EQ(frame.right - frame.left, wanted.right);
             EXPECT_EQ(frame.bottom - frame.top, wanted.bottom);
             EXPECT_NEAR(frame.left + frame.right, desk.left + desk.right, 2);
             EXPECT_NEAR(frame.top + frame.bottom, desk.top + desk.bottom, 2);
             EXPECT_EQ(text_in(window), u"Order");
         }});
}

TEST_F(FormWindowTest, ControlsShowWhatTheFormSaysWhereItSays) {
    form[u"lblHint"].caption = u"a hint";
    form[u"chkGift"].ticked = true;
    form[u"cmdCancel"].enabled = false;
    form[u"cmdSend"].visible = false;
    show(form, {[&](HWND window) {
             EXPECT_EQ(text_in(control(window, L"lblHint")), u"a hint");
             EXPECT_EQ(text_in(control(window, L"cboSize")), u"small");
             EXPECT_EQ(text_in(control(window, L"txtTips")), u"first tip");
             EXPECT_EQ(SendMessageW(control(window, L"chkGift"), BM_GETCHECK, 0, 0), BST_CHECKED);
             EXPECT_FALSE(IsWindowEnabled(control(window, L"cmdCancel")));
             EXPECT_FALSE(IsWindowVisible(control(window, L"cmdSend")));
             EXPECT_EQ(control(window, L"mnFile"), nullptr);

             RECT hint;
             GetWindowRect(control(window, L"lblHint"), &hint);
             MapWindowPoints(nullptr, window, reinterpret_cast<POINT*>(&hint), 2);
             const RECT wanted = Scale::of_screen().pixels({3150, 450, 2400, 255});
             EXPECT_TRUE(EqualRect(&hint, &wanted)) << "a control in a frame counts from the frame's corner";
         }});
}

TEST_F(FormWindowTest, TheCloseBoxUnloadsTheFormOnce) {
    form.on_unload = [&] { events += u"unloaded"; };
    show(form, {[](HWND window) { PostMessageW(window, WM_SYSCOMMAND, SC_CLOSE, 0); }});
    EXPECT_EQ(events, u"unloaded");
}

TEST_F(FormWindowTest, EscapePressesTheCancelButtonFromEveryKindOfControl) {
    for (const wchar_t* focus : {L"txtNote", L"cboSize", L"chkGift", L"txtTips", L"cmdSend"}) {
        events.clear();
        unload_on(u"cmdCancel", u"cancelled");
        show(form, {[&](HWND window) { SetFocus(control(window, focus)); }, key(VK_ESCAPE)});
        EXPECT_EQ(events, u"cancelled");
    }
}

TEST_F(FormWindowTest, EscapeClosesAFormWhoseCancelButtonIsHidden) {
    note(u"cmdCancel", Event::click, u"cancelled");
    form[u"cmdCancel"].visible = false;
    show(form, {key(VK_ESCAPE)});
    EXPECT_EQ(events, u"");
}

TEST_F(FormWindowTest, EnterPressesTheDefaultButton) {
    unload_on(u"cmdSend", u"sent");
    show(form, {key(VK_RETURN)});
    EXPECT_EQ(events, u"sent");
}

TEST_F(FormWindowTest, TheTabKeyWalksTheControlsInTheFormsOrder) {
    show(form, {[](HWND window) {
             HWND at = control(window, L"txtNote");
             EXPECT_EQ(GetFocus(), at) << "the first control has the keyboard at first";
             for (const wchar_t* next :
                  {L"cboSize", L"chkGift", L"txtTips", L"cmdSend", L"cmdCancel", L"txtNote"}) {
                 at = GetNextDlgTabItem(window, at, FALSE);
                 EXPECT_EQ(at, control(window, next));
             }
         }});
}

TEST_F(FormWindowTest, ATickedBoxIsTickedInTheForm) {
    form.on(u"chkGift", Event::click, [this] { events += form[u"chkGift"].ticked ? u"on;" : u"off;"; });
    show(form, {pressing(L"chkGift"), pressing(L"chkGift"), pressing(L"chkGift")});
    EXPECT_EQ(events, u"on;off;on;");
    EXPECT_TRUE(form[u"chkGift"].ticked);
}

TEST_F(FormWindowTest, TypedTextArrivesInTheForm) {
    note(u"txtNote", Event::change, u"+");
    show(form, {[](HWND window) {
                    for (const wchar_t letter : std::wstring_view(L"hi\u00e4"))
                        PostMessageW(control(window, L"txtNote"), WM_CHAR, letter, 0);
                },
                [](HWND) {}});
    EXPECT_EQ(form[u"txtNote"].text, u"hi\u00e4");
    EXPECT_EQ(events, u"+++");
}

TEST_F(FormWindowTest, AnEntryChosenFromTheListIsTheFormsEntry) {
    form.on(u"cboSize", Event::click, [this] { events += form[u"cboSize"].text; });
    show(form, {[](HWND window) {
                    SendMessageW(control(window, L"cboSize"), CB_SETCURSEL, 1, 0);
                    notify(window, L"cboSize", CBN_SELCHANGE);
                },
                [](HWND window) { EXPECT_EQ(text_in(control(window, L"cboSize")), u"large"); }});
    EXPECT_EQ(form[u"cboSize"].index, 1);
    EXPECT_EQ(events, u"large");
}

TEST_F(FormWindowTest, TextTypedIntoAComboBoxIsKeptAsTyped) {
    note(u"cboSize", Event::change, u"typed;");
    note(u"cboSize", Event::click, u"chosen;");
    show(form, {[](HWND window) {
                    const HWND edit = GetWindow(control(window, L"cboSize"), GW_CHILD);
                    SendMessageW(edit, EM_SETSEL, 0, -1);
                    for (const wchar_t letter : std::wstring_view(L"larger"))
                        PostMessageW(edit, WM_CHAR, letter, 0);
                },
                [](HWND window) { EXPECT_EQ(text_in(control(window, L"cboSize")), u"larger"); }});
    EXPECT_EQ(form[u"cboSize"].text, u"larger");
    EXPECT_EQ(form[u"cboSize"].index, -1);
    EXPECT_EQ(events, u"typed;typed;typed;typed;chosen;typed;");
}

TEST_F(FormWindowTest, AListThatIsFilledWhenItOpensShowsItsEntries) {
    form.on(u"cboSize", Event::drop_down, [this] { form[u"cboSize"].items = {u"small", u"wide", u"tall"}; });
    show(form, {[](HWND window) { SendMessageW(control(window, L"cboSize"), CB_SHOWDROPDOWN, TRUE, 0); },
                [](HWND window) {
                    EXPECT_EQ(SendMessageW(control(window, L"cboSize"), CB_GETCOUNT, 0, 0), 3);
                    SendMessageW(control(window, L"cboSize"), CB_SHOWDROPDOWN, FALSE, 0);
                }});
}

TEST_F(FormWindowTest, WhatAHandlerChangesShows) {
    form.on(u"cmdSend", Event::click, [this] {
        form.properties.caption = u"Changed";
        form.properties.place.height = 5400;
        form[u"fraMore"].visible = false;
        form[u"txtNote"].text = u"written by code";
        form[u"cboSize"].items = {u"one", u"two"};
        form[u"cboSize"].select(1);
        form[u"chkGift"].ticked = true;
        form[u"cmdCancel"].caption = u"Stop";
        form[u"cmdCancel"].place.left = 3000;
    });
    note(u"txtNote", Event::change, u"!");
    note(u"cboSize", Event::click, u"!");
    note(u"chkGift", Event::click, u"!");
    show(form, {pressing(L"cmdSend"), [&](HWND window) {
                    EXPECT_EQ(text_in(window), u"Changed");
                    RECT frame;
                    GetWindowRect(window, &frame);
                    EXPECT_EQ(frame.bottom - frame.top, Scale::of_screen().pixels({0, 0, 0, 5400}).bottom);
                    EXPECT_FALSE(IsWindowVisible(control(window, L"fraMore")));
                    EXPECT_FALSE(IsWindowVisible(control(window, L"lblHint")))
                        << "it stands in the hidden frame";
                    EXPECT_EQ(text_in(control(window, L"txtNote")), u"written by code");
                    EXPECT_EQ(text_in(control(window, L"cboSize")), u"two");
                    EXPECT_EQ(SendMessageW(control(window, L"chkGift"), BM_GETCHECK, 0, 0), BST_CHECKED);
                    EXPECT_EQ(text_in(control(window, L"cmdCancel")), u"Stop");
                }});
    EXPECT_EQ(events, u"") << "code that sets a control fires no handler";
}

TEST_F(FormWindowTest, AButtonThatHidesItselfHandsTheKeyboardOn) {
    form.on(u"cmdSend", Event::click, [this] { form[u"cmdSend"].visible = false; });
    show(form, {[](HWND window) { SetFocus(control(window, L"cmdSend")); }, pressing(L"cmdSend"),
                [](HWND window) { EXPECT_EQ(GetFocus(), control(window, L"cmdCancel")); }});
}

TEST_F(FormWindowTest, KeepOnTopFollowsTheForm) {
    form.topmost = true;
    form.on(u"cmdSend", Event::click, [this] { form.topmost = false; });
    const auto is_topmost = [](HWND window) {
        return (GetWindowLongW(window, GWL_EXSTYLE) & WS_EX_TOPMOST) != 0;
    };
    show(form, {[&](HWND window) { EXPECT_TRUE(is_topmost(window)); }, pressing(L"cmdSend"),
                [&](HWND window) { EXPECT_FALSE(is_topmost(window)); }});
}

TEST_F(FormWindowTest, MovingAndSizingTheWindowChangeThePlaceOfTheForm) {
    form.sizable = true;
    form.on_resize = [this] { events += u"sized;"; };
    show(form, {[](HWND window) {
             const RECT frame = Scale::of_screen().pixels({1500, 750, 7500, 6000});
             SetWindowPos(window, nullptr, frame.left, frame.top, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
             SetWindowPos(window, nullptr, 0, 0, frame.right - frame.left, frame.bottom - frame.top,
                          SWP_NOMOVE | SWP_NOZORDER);
         }});
    EXPECT_EQ(form.properties.place, (forms::Place{1500, 750, 7500, 6000}));
    EXPECT_EQ(events, u"sized;");
}

TEST_F(FormWindowTest, APlaceThatIsNoWholeNumberOfPixelsStaysAsItIs) {
    form.centred = false;
    form.properties.place = {997, 2593, 6001, 4501};
    show(form, {[](HWND) {}});
    EXPECT_EQ(form.properties.place, (forms::Place{997, 2593, 6001, 4501}));
}

TEST_F(FormWindowTest, AToolTipIsTheControls) {
    show(form, {[](HWND window) {
             HWND tips = nullptr;
             EnumThreadWindows(GetCurrentThreadId(), take_tool_tips, reinterpret_cast<LPARAM>(&tips));
             wchar_t tip[128] = {};
             TTTOOLINFOW tool{};
             tool.cbSize = TTTOOLINFOW_V1_SIZE;
             tool.hwnd = window;
             tool.uFlags = TTF_IDISHWND;
             tool.uId = reinterpret_cast<UINT_PTR>(control(window, L"cmdSend"));
             tool.lpszText = tip;
             SendMessageW(tips, TTM_GETTEXTW, 0, reinterpret_cast<LPARAM>(&tool));
             EXPECT_EQ(text_of(tip), u"Sends it");
         }});
}

TEST_F(FormWindowTest, ADoubleClickOnATextBoxReachesItsHandler) {
    form.on(u"txtTips", Event::double_click, [this] { form[u"txtTips"].text = u"second tip"; });
    show(form, {[](HWND window) {
                    PostMessageW(control(window, L"txtTips"), WM_LBUTTONDBLCLK, 0, MAKELPARAM(5, 5));
                },
                [](HWND window) { EXPECT_EQ(text_in(control(window, L"txtTips")), u"second tip"); }});
}

TEST_F(FormWindowTest, AnAccessKeyPressesItsButton) {
    unload_on(u"cmdSend", u"sent");
    show(form, {[](HWND) { PostMessageW(GetFocus(), WM_SYSCHAR, 's', 1 << 29); }});
    EXPECT_EQ(events, u"sent");
}

TEST_F(FormWindowTest, TheOwnerIsOutOfReachUntilTheFormCloses) {
    const HWND owner = CreateWindowExW(0, L"STATIC", L"the mail client", WS_OVERLAPPEDWINDOW | WS_VISIBLE, 0,
                                       0, 300, 200, nullptr, nullptr, GetModuleHandleW(nullptr), nullptr);
    SetActiveWindow(owner);
    show(form, {[&](HWND window) {
             EXPECT_FALSE(IsWindowEnabled(owner));
             EXPECT_EQ(GetWindow(window, GW_OWNER), owner);
         }});
    EXPECT_TRUE(IsWindowEnabled(owner));
    EXPECT_EQ(GetActiveWindow(), owner);
    DestroyWindow(owner);
}

TEST_F(FormWindowTest, AFormGoesWithItsOwner) {
    const HWND owner = CreateWindowExW(0, L"STATIC", L"the mail client", WS_OVERLAPPEDWINDOW | WS_VISIBLE, 0,
                                       0, 300, 200, nullptr, nullptr, GetModuleHandleW(nullptr), nullptr);
    SetActiveWindow(owner);
    form.on_unload = [&] { events += u"unloaded"; };
    show(form, {[&](HWND) { DestroyWindow(owner); }});
    EXPECT_EQ(events, u"unloaded");
}

TEST_F(FormWindowTest, TheEndOfTheProgramClosesTheFormAndIsPassedOn) {
    form.on_unload = [&] { events += u"unloaded"; };
    show(form, {[](HWND) { PostQuitMessage(7); }});
    EXPECT_EQ(events, u"unloaded");
    MSG message;
    ASSERT_TRUE(PeekMessageW(&message, nullptr, WM_QUIT, WM_QUIT, PM_REMOVE));
    EXPECT_EQ(message.wParam, 7U);
}

TEST_F(FormWindowTest, AFormOpenedByAFormReturnsToIt) {
    forms::PromptValues values{.mode = u"Reply", .answer = u"No"};
    forms::frmMessage prompt(values, forms::built_in_strings());
    form.on(u"cmdSend", Event::click, [&] {
        DesktopWindows().show_modal(prompt.form());
        events += values.answer;
        form.unload();
    });
    HWND outer = nullptr;
    show(form, {[&](HWND window) {
                    outer = window;
                    pressing(L"cmdSend")(window);
                },
                [&](HWND window) {
                    EXPECT_NE(window, outer);
                    EXPECT_FALSE(IsWindowEnabled(outer));
                    pressing(L"cmdYes")(window);
                }});
    EXPECT_EQ(events, u"Yes");
}

TEST_F(FormWindowTest, AFormThatUnloadsWhileItLoadsNeverAppears) {
    form.on_load = [this] { form.unload(); };
    DesktopWindows().show_modal(form);
    EXPECT_FALSE(form.is_loaded());
}

/// Whether the text of a label or button fits into its window.
void expect_to_fit(HWND window) {
    RECT room;
    GetClientRect(window, &room);
    RECT needed{0, 0, room.right, 0};
    const HDC canvas = GetDC(window);
    const auto font = reinterpret_cast<HGDIOBJ>(SendMessageW(window, WM_GETFONT, 0, 0));
    const HGDIOBJ before = SelectObject(canvas, font);
    DrawTextW(canvas, wide(text_in(window)).c_str(), -1, &needed, DT_CALCRECT | DT_WORDBREAK);
    SelectObject(canvas, before);
    ReleaseDC(window, canvas);
    EXPECT_LE(needed.bottom, room.bottom) << to_utf8(text_in(window));
    EXPECT_LE(needed.right, room.right) << to_utf8(text_in(window));
}

TEST(PromptWindow, NothingIsCutInAnyMode) {
    for (const TextView mode :
         {u"Reply", u"Auto-no Template", u"Auto-no signature", u"Security warning", u"Bad Template",
          u"Choose Template", u"Choose signature", u"Format Warning", u"Support email request"}) {
        forms::PromptValues values{.mode = Text(mode), .answer = u"No"};
        forms::frmMessage prompt(values, forms::built_in_strings());
        show(prompt.form(), {[](HWND window) {
                 RECT inside;
                 GetClientRect(window, &inside);
                 for (const wchar_t* name : {L"lblMessage", L"cmdYes", L"cmdNo", L"cmdOK"}) {
                     const HWND part = control(window, name);
                     if (!IsWindowVisible(part)) continue;
                     expect_to_fit(part);
                     RECT place, common;
                     GetWindowRect(part, &place);
                     MapWindowPoints(nullptr, window, reinterpret_cast<POINT*>(&place), 2);
                     IntersectRect(&common, &place, &inside);
                     EXPECT_TRUE(EqualRect(&common, &place)) << "it reaches beyond the window";
                 }
             }});
    }
}

TEST(PromptWindow, AnswersAsTheUserClicks) {
    const std::pair<TextView, const wchar_t*> clicks[] = {{u"Yes", L"cmdYes"}, {u"No", L"cmdNo"}};
    for (const auto& [answer, button] : clicks) {
        forms::PromptValues values{.mode = u"Support email request", .answer = u"No"};
        forms::frmMessage prompt(values, forms::built_in_strings());
        show(prompt.form(), {pressing(button)});
        EXPECT_EQ(values.answer, answer);
    }
}

} // namespace
} // namespace ornavel::win32
