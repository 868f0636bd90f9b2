#include "forms/input_box.h"
#include "tests/win32/form_stage.h"

namespace ornavel::win32 {
namespace {

std::optional<Text> ask(Acts acts) {
    std::optional<Text> answer;
    play(std::move(acts), [&] {
        DesktopWindows windows;
        answer = forms::ask_for_text(windows, u"Name", u"What is the name?", u"old");
    });
    return answer;
}

std::function<void(HWND)> typing(wchar_t letter) {
    return [letter](HWND) { PostMessageW(GetFocus(), WM_CHAR, static_cast<WPARAM>(letter), 0); };
}

TEST(InputBoxWindow, WhatIsTypedReplacesWhatWasThere) {
    EXPECT_EQ(ask({[](HWND box) { EXPECT_EQ(GetFocus(), control(box, L"txtAnswer")); }, typing(L'n'),
                   typing(L'e'), key(VK_RETURN)}),
              u"ne");
}

TEST(InputBoxWindow, EnterAcceptsAndEscapeCancels) {
    EXPECT_EQ(ask({key(VK_RETURN)}), u"old");
    EXPECT_EQ(ask({key(VK_ESCAPE)}), std::nullopt);
    EXPECT_EQ(ask({[](HWND box) { PostMessageW(box, WM_CLOSE, 0, 0); }}), std::nullopt);
}

TEST(InputBoxWindow, LiesAboveOtherWindows) {
    ask({[](HWND box) { EXPECT_TRUE(is_topmost(box)); }});
}

} // namespace
} // namespace ornavel::win32
