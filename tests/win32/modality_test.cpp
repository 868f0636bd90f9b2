#include "tests/win32/form_stage.h"
#include "win32/message_box.h"

namespace ornavel::win32 {
namespace {

struct Modality : FormWindowTest {
    HWND explorer = make_window(L"the mail client");
    HWND message = make_window(L"a message");

    ~Modality() override {
        DestroyWindow(message);
        DestroyWindow(explorer);
    }
};

TEST_F(Modality, TheOwnerIsOutOfReachUntilTheFormCloses) {
    SetActiveWindow(explorer);
    show(form, {[&](HWND window) {
             EXPECT_FALSE(IsWindowEnabled(explorer));
             EXPECT_EQ(GetWindow(window, GW_OWNER), explorer);
         }});
    EXPECT_TRUE(IsWindowEnabled(explorer));
    EXPECT_EQ(GetActiveWindow(), explorer);
}

TEST_F(Modality, SoIsEveryOtherWindowOfTheThread) {
    SetActiveWindow(explorer);
    show(form, {[&](HWND window) {
             EXPECT_FALSE(IsWindowEnabled(message));
             EXPECT_TRUE(IsWindowEnabled(window));
         }});
    EXPECT_TRUE(IsWindowEnabled(message));
}

TEST_F(Modality, WithoutAnActiveWindowTheThreadsWindowsAreOutOfReachToo) {
    SetActiveWindow(nullptr);
    show(form, {[&](HWND window) {
             EXPECT_EQ(GetWindow(window, GW_OWNER), nullptr);
             EXPECT_FALSE(IsWindowEnabled(explorer));
             EXPECT_FALSE(IsWindowEnabled(message));
         }});
    EXPECT_TRUE(IsWindowEnabled(explorer));
    EXPECT_TRUE(IsWindowEnabled(message));
}

TEST_F(Modality, AWindowThatWasOutOfReachBeforeStaysSo) {
    EnableWindow(message, FALSE);
    show(form, {[](HWND) {}});
    EXPECT_FALSE(IsWindowEnabled(message));
    EXPECT_TRUE(IsWindowEnabled(explorer));
}

TEST_F(Modality, AFormInAFormLeavesTheRestAsTheOuterOneHasIt) {
    forms::PromptValues values{.mode = u"Reply", .answer = u"No"};
    forms::frmMessage prompt(values, forms::built_in_strings());
    form.on(u"cmdSend", Event::click, [&] { DesktopWindows().show_modal(prompt.form()); });
    HWND outer = nullptr;
    show(form, {[&](HWND window) {
                    outer = window;
                    pressing(L"cmdSend")(window);
                },
                [&](HWND window) {
                    EXPECT_FALSE(IsWindowEnabled(outer));
                    EXPECT_FALSE(IsWindowEnabled(message));
                    pressing(L"cmdYes")(window);
                },
                [&](HWND window) {
                    EXPECT_EQ(window, outer);
                    EXPECT_TRUE(IsWindowEnabled(outer));
                    EXPECT_FALSE(IsWindowEnabled(message));
                }});
    EXPECT_TRUE(IsWindowEnabled(message));
}

TEST_F(Modality, AWindowThatGoesMeanwhileIsNobodysConcern) {
    show(form, {[&](HWND) { DestroyWindow(message); }});
    EXPECT_TRUE(IsWindowEnabled(explorer));
}

TEST_F(Modality, ABoxWithoutAnOwnerIsAboveEverything) {
    // The style that asks for it: Wine shows such a box among the others all the same.
    EXPECT_EQ(box_style(Buttons::ok, nullptr) & MB_TOPMOST, UINT{MB_TOPMOST});
    EXPECT_EQ(box_style(Buttons::yes_no, explorer) & MB_TOPMOST, 0u);
}

TEST_F(Modality, ABoxWithoutAnOwnerKeepsTheThreadsWindowsAway) {
    SetActiveWindow(nullptr);
    play({[&](HWND) {
             EXPECT_FALSE(IsWindowEnabled(explorer));
             EXPECT_FALSE(IsWindowEnabled(message));
         }},
         [] { DesktopWindows().inform(u"Ornavel", u"Done."); });
    EXPECT_TRUE(IsWindowEnabled(explorer));
    EXPECT_TRUE(IsWindowEnabled(message));
}

TEST_F(Modality, ABoxOfAFormBelongsToIt) {
    form.on(u"cmdSend", Event::click, [&] { DesktopWindows().inform(u"Ornavel", u"Done."); });
    HWND outer = nullptr;
    show(form, {[&](HWND window) {
                    outer = window;
                    pressing(L"cmdSend")(window);
                },
                [&](HWND box) {
                    EXPECT_EQ(GetWindow(box, GW_OWNER), outer);
                    EXPECT_FALSE(IsWindowEnabled(outer));
                    PostMessageW(box, WM_COMMAND, IDOK, 0);
                },
                [&](HWND window) { EXPECT_EQ(window, outer); }});
}

} // namespace
} // namespace ornavel::win32
