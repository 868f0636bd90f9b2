#include "rehearsal/windows/form_reader.h"
#include "tests/win32/form_stage.h"

#include <commctrl.h>

namespace ornavel::win32 {
namespace {

struct ListsWindow : testing::Test {
    Form form{{.name = u"frmOrder", .place = {0, 0, 6000, 4500}, .caption = u"Order"},
              {{.kind = ControlKind::text_box, .name = u"txtNote", .place = {150, 150, 2400, 315}},
               {.kind = ControlKind::list_box,
                .name = u"lstGoods",
                .place = {150, 600, 2400, 1500},
                .items = {u"ink", u"paper"}},
               {.kind = ControlKind::combo_box,
                .name = u"cboSize",
                .place = {150, 2250, 2400, 315},
                .items = {u"small", u"large"},
                .fixed_entries = true},
               {.kind = ControlKind::progress_bar, .name = u"prgSent", .place = {150, 2700, 2400, 255}}}};
};

TEST_F(ListsWindow, ShowWhatTheFormSaysAndAreReadBack) {
    form[u"lstGoods"].index = 1;
    form[u"cboSize"].select(0);
    form[u"prgSent"].value = 40;
    show(form, {[](HWND window) {
             const auto shown = rehearsal::read_form(window);
             EXPECT_EQ((*shown)[u"lstGoods"].kind, ControlKind::list_box);
             EXPECT_EQ((*shown)[u"lstGoods"].items, (std::vector<Text>{u"ink", u"paper"}));
             EXPECT_EQ((*shown)[u"lstGoods"].index, 1);
             EXPECT_EQ((*shown)[u"cboSize"].text, u"small");
             EXPECT_TRUE((*shown)[u"cboSize"].fixed_entries);
             EXPECT_EQ((*shown)[u"prgSent"].kind, ControlKind::progress_bar);
             EXPECT_EQ((*shown)[u"prgSent"].value, 40);
         }});
}

TEST_F(ListsWindow, AnEntryThatTheUserMarksIsTheFormsOwn) {
    int clicks = 0, double_clicks = 0;
    form.on(u"lstGoods", Event::click, [&] { ++clicks; });
    form.on(u"lstGoods", Event::double_click, [&] { ++double_clicks; });
    show(form, {[](HWND window) {
                    SendMessageW(control(window, L"lstGoods"), LB_SETCURSEL, 1, 0);
                    notify(window, L"lstGoods", LBN_SELCHANGE);
                },
                [&](HWND window) {
                    EXPECT_EQ(form[u"lstGoods"].index, 1);
                    notify(window, L"lstGoods", LBN_DBLCLK);
                }});
    EXPECT_EQ(clicks, 1);
    EXPECT_EQ(double_clicks, 1);
}

TEST_F(ListsWindow, ALongEntryCanBeScrolledTo) {
    form[u"lstGoods"].items = {Text(200, u'm')};
    show(form, {[](HWND window) {
             const HWND list = control(window, L"lstGoods");
             RECT inside;
             GetClientRect(list, &inside);
             EXPECT_GT(SendMessageW(list, LB_GETHORIZONTALEXTENT, 0, 0), inside.right);
         }});
}

TEST_F(ListsWindow, StaysScrolledWhereItIsWhileTheTextOfAnEntryChanges) {
    form[u"lstGoods"].items.assign(40, u"ink");
    form.on(u"txtNote", Event::change, [&] { form[u"lstGoods"].items[12] = form[u"txtNote"].text; });
    const auto first_shown = [](HWND window) {
        return SendMessageW(control(window, L"lstGoods"), LB_GETTOPINDEX, 0, 0);
    };
    show(form, {[](HWND window) {
                    SendMessageW(control(window, L"lstGoods"), LB_SETCURSEL, 12, 0);
                    notify(window, L"lstGoods", LBN_SELCHANGE);
                },
                [](HWND window) {
                    SendMessageW(control(window, L"lstGoods"), LB_SETTOPINDEX, 10, 0);
                    SetWindowTextW(control(window, L"txtNote"), L"paper");
                },
                [&](HWND window) {
                    EXPECT_EQ(form[u"lstGoods"].items[12], u"paper");
                    EXPECT_EQ(first_shown(window), 10);
                    // Also where the user has scrolled the marked entry out of sight.
                    SendMessageW(control(window, L"lstGoods"), LB_SETTOPINDEX, 20, 0);
                    SetWindowTextW(control(window, L"txtNote"), L"pens");
                },
                [&](HWND window) {
                    EXPECT_EQ(form[u"lstGoods"].items[12], u"pens");
                    EXPECT_EQ(first_shown(window), 20);
                    EXPECT_EQ(SendMessageW(control(window, L"lstGoods"), LB_GETCURSEL, 0, 0), 12);
                }});
}

TEST_F(ListsWindow, AnEntryThatTheFormMarksIsScrolledTo) {
    form[u"lstGoods"].items.assign(40, u"ink");
    form.on(u"txtNote", Event::change, [&] {
        form[u"lstGoods"].items[0] = form[u"txtNote"].text;
        form[u"lstGoods"].select(30);
    });
    show(form, {[](HWND window) { SetWindowTextW(control(window, L"txtNote"), L"paper"); },
                [](HWND window) {
                    EXPECT_GT(SendMessageW(control(window, L"lstGoods"), LB_GETTOPINDEX, 0, 0), 15);
                }});
}

TEST_F(ListsWindow, TheKeyboardGoesWhereTheFormWantsIt) {
    form.next_focus = u"cboSize";
    form.on(u"lstGoods", Event::click, [&] { form.next_focus = u"txtNote"; });
    show(form, {[](HWND window) {
                    EXPECT_EQ(GetFocus(), control(window, L"cboSize"));
                    SendMessageW(control(window, L"lstGoods"), LB_SETCURSEL, 0, 0);
                    notify(window, L"lstGoods", LBN_SELCHANGE);
                },
                [](HWND window) { EXPECT_EQ(GetFocus(), control(window, L"txtNote")); }});
}

TEST_F(ListsWindow, AFormThatMayNotBeClosedStaysUntilItMay) {
    bool may = false;
    form.may_close = [&] { return may; };
    show(form, {[](HWND window) { SendMessageW(window, WM_CLOSE, 0, 0); },
                [&](HWND window) {
                    EXPECT_TRUE(IsWindowVisible(window));
                    may = true;
                }});
}

} // namespace
} // namespace ornavel::win32
