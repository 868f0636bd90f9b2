#include "tests/win32/form_stage.h"
#include "win32/twips.h"

#include <commctrl.h>

namespace ornavel::win32 {
namespace {

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

TEST_F(FormWindowTest, WhatIsPastedArrivesHoweverLongItIs) {
    const std::wstring long_text(40000, L'm');
    show(form, {[&](HWND window) {
             SendMessageW(control(window, L"txtNote"), EM_REPLACESEL, FALSE,
                          reinterpret_cast<LPARAM>(long_text.c_str()));
             EXPECT_GT(SendMessageW(control(window, L"txtNote"), EM_GETLIMITTEXT, 0, 0), 1000000);
         }});
    EXPECT_EQ(form[u"txtNote"].text.size(), long_text.size());
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
    EXPECT_EQ(form.properties.place, (forms::Bounds{1500, 750, 7500, 6000}));
    EXPECT_EQ(events, u"sized;");
}

TEST_F(FormWindowTest, APlaceThatIsNoWholeNumberOfPixelsStaysAsItIs) {
    form.centred = false;
    form.properties.place = {997, 2593, 6001, 4501};
    show(form, {[](HWND) {}});
    EXPECT_EQ(form.properties.place, (forms::Bounds{997, 2593, 6001, 4501}));
}

TEST_F(FormWindowTest, TheWindowShowsTheProgramsIcon) {
    show(form, {[](HWND window) {
             EXPECT_TRUE(SendMessageW(window, WM_GETICON, ICON_SMALL, 0));
             EXPECT_TRUE(SendMessageW(window, WM_GETICON, ICON_BIG, 0));
         }});
}

TEST_F(FormWindowTest, AToolTipIsTheControls) {
    show(form, {[](HWND window) {
             wchar_t tip[128] = {};
             TTTOOLINFOW tool{};
             tool.cbSize = TTTOOLINFOW_V1_SIZE;
             tool.hwnd = window;
             tool.uFlags = TTF_IDISHWND;
             tool.uId = reinterpret_cast<UINT_PTR>(control(window, L"cmdSend"));
             tool.lpszText = tip;
             SendMessageW(tool_tips(), TTM_GETTEXTW, 0, reinterpret_cast<LPARAM>(&tool));
             EXPECT_EQ(text_of(tip), u"Sends it");
         }});
}

TEST_F(FormWindowTest, ADisabledControlHasItsToolTipToo) {
    form[u"txtNote"].tool_tip = u"All of it";
    form[u"txtNote"].enabled = false;
    show(form, {[](HWND window) {
             wchar_t tip[128] = {};
             TTHITTESTINFOW under_mouse{};
             under_mouse.hwnd = window;
             const RECT place = Scale::of_screen().pixels({150, 150, 2400, 315});
             under_mouse.pt = {place.left + 5, place.top + 5};
             under_mouse.ti.cbSize = TTTOOLINFOW_V1_SIZE;
             under_mouse.ti.lpszText = tip;
             EXPECT_TRUE(SendMessageW(tool_tips(), TTM_HITTESTW, 0, reinterpret_cast<LPARAM>(&under_mouse)));
             EXPECT_EQ(text_of(tip), u"All of it");
         }});
}

TEST_F(FormWindowTest, AButtonThatHasTheKeyboardIsPressedByEnterAgainAndAgain) {
    note(u"cmdCancel", Event::click, u"again;");
    const auto is_default = [](HWND button) {
        return (GetWindowLongW(button, GWL_STYLE) & BS_TYPEMASK) == BS_DEFPUSHBUTTON;
    };
    show(form, {[](HWND window) {
                    SendMessageW(window, WM_NEXTDLGCTL,
                                 reinterpret_cast<WPARAM>(control(window, L"cmdCancel")), TRUE);
                },
                pressing(L"cmdCancel"),
                [&](HWND window) {
                    EXPECT_EQ(GetFocus(), control(window, L"cmdCancel"));
                    EXPECT_TRUE(is_default(control(window, L"cmdCancel")));
                    EXPECT_FALSE(is_default(control(window, L"cmdSend")));
                }});
    EXPECT_EQ(events, u"again;");
}

TEST_F(FormWindowTest, ADefaultThatTheFormsCodeChangesIsPressedByEnter) {
    form.on(u"chkGift", Event::click, [this] {
        form[u"cmdSend"].is_default = false;
        form[u"cmdCancel"].is_default = true;
    });
    unload_on(u"cmdCancel", u"cancelled");
    show(form,
         {pressing(L"chkGift"), [](HWND window) { SetFocus(control(window, L"txtNote")); }, key(VK_RETURN)});
    EXPECT_EQ(events, u"cancelled");
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

TEST_F(FormWindowTest, AFormGoesWithItsOwner) {
    const HWND owner = make_window(L"the mail client");
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

} // namespace
} // namespace ornavel::win32
