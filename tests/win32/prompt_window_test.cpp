#include "tests/win32/form_stage.h"

namespace ornavel::win32 {
namespace {

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

TEST(PromptWindow, EnterAnswersNoToARiskyQuestionAndYesToAnyOther) {
    const std::pair<TextView, TextView> answers[] = {{u"Security warning", u"No"}, {u"Reply", u"Yes"}};
    for (const auto& [mode, answer] : answers) {
        forms::PromptValues values{.mode = Text(mode), .answer = u"none"};
        forms::frmMessage prompt(values, forms::built_in_strings());
        show(prompt.form(), {[&](HWND window) {
                                 EXPECT_EQ(GetFocus(),
                                           control(window, answer == u"No" ? L"cmdNo" : L"cmdYes"));
                             },
                             key(VK_RETURN)});
        EXPECT_EQ(values.answer, answer);
    }
}

TEST(PromptWindow, ShowsThePictureOfItsKind) {
    forms::PromptValues values{.mode = u"Bad Template", .answer = u"No"};
    forms::frmMessage prompt(values, forms::built_in_strings());
    show(prompt.form(), {[](HWND window) {
             const auto picture = SendMessageW(control(window, L"imgIcon"), STM_GETICON, 0, 0);
             EXPECT_EQ(reinterpret_cast<HICON>(picture), LoadIconW(nullptr, IDI_WARNING));
         }});
}

} // namespace
} // namespace ornavel::win32
