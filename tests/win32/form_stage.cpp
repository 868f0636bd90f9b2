#include "tests/win32/form_stage.h"

#include "win32/window_name.h"

#include <commctrl.h>

namespace ornavel::win32 {
namespace {

Acts acts_left;

BOOL CALLBACK take_visible(HWND window, LPARAM found) {
    wchar_t window_class[8] = {};
    GetClassNameW(window, window_class, 8);
    if (!IsWindowVisible(window) || std::wstring_view(window_class) != L"#32770") return TRUE;
    *reinterpret_cast<HWND*>(found) = window;
    return FALSE;
}

void CALLBACK next_act(HWND, UINT, UINT_PTR, DWORD) {
    const HWND window = open_window();
    if (!window) return;
    if (acts_left.empty()) {
        PostMessageW(window, WM_CLOSE, 0, 0);
        return;
    }
    const auto act = std::move(acts_left.front());
    acts_left.pop_front();
    act(window);
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

BOOL CALLBACK take_tool_tips(HWND window, LPARAM found) {
    wchar_t window_class[32] = {};
    GetClassNameW(window, window_class, 32);
    if (std::wstring_view(window_class) != TOOLTIPS_CLASSW) return TRUE;
    *reinterpret_cast<HWND*>(found) = window;
    return FALSE;
}

} // namespace

HWND open_window() {
    HWND found = nullptr;
    EnumThreadWindows(GetCurrentThreadId(), take_visible, reinterpret_cast<LPARAM>(&found));
    return found;
}

void play(Acts acts, const std::function<void()>& body) {
    acts_left = std::move(acts);
    const UINT_PTR timer = SetTimer(nullptr, 0, 30, next_act);
    body();
    KillTimer(nullptr, timer);
    EXPECT_TRUE(acts_left.empty()) << "the window closed before the last act";
    EXPECT_EQ(open_window(), nullptr);
}

void show(Form& form, Acts acts) {
    play(std::move(acts), [&] { DesktopWindows().show_modal(form); });
    EXPECT_FALSE(form.is_loaded());
}

HWND make_window(const wchar_t* title) {
    return CreateWindowExW(0, L"STATIC", title, WS_OVERLAPPEDWINDOW | WS_VISIBLE, 0, 0, 300, 200, nullptr,
                           nullptr, GetModuleHandleW(nullptr), nullptr);
}

HWND control(HWND form, const wchar_t* name) {
    Search search{name, nullptr};
    EnumChildWindows(form, compare_name, reinterpret_cast<LPARAM>(&search));
    return search.found;
}

HWND tool_tips() {
    HWND found = nullptr;
    EnumThreadWindows(GetCurrentThreadId(), take_tool_tips, reinterpret_cast<LPARAM>(&found));
    return found;
}

Text text_in(HWND window) {
    wchar_t text[512] = {};
    SendMessageW(window, WM_GETTEXT, 512, reinterpret_cast<LPARAM>(text));
    return text_of(text);
}

bool is_topmost(HWND window) { return (GetWindowLongW(window, GWL_EXSTYLE) & WS_EX_TOPMOST) != 0; }

std::function<void(HWND)> pressing(const wchar_t* button) {
    return [button](HWND window) { PostMessageW(control(window, button), BM_CLICK, 0, 0); };
}

std::function<void(HWND)> key(WPARAM code) {
    return [code](HWND) { PostMessageW(GetFocus(), WM_KEYDOWN, code, 0); };
}

void notify(HWND form, const wchar_t* name, WORD code) {
    const HWND sender = control(form, name);
    PostMessageW(form, WM_COMMAND, MAKEWPARAM(GetDlgCtrlID(sender), code), reinterpret_cast<LPARAM>(sender));
}

} // namespace ornavel::win32
