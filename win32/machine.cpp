#include "win32/machine.h"

#include "win32/form_window.h"
#include "win32/message_box.h"
#include "win32/wide.h"

#include <shellapi.h>

namespace ornavel::win32 {
namespace {

int show_command(WindowState window) {
    switch (window) {
    case WindowState::minimised:
        return SW_SHOWMINIMIZED;
    case WindowState::hidden:
        return SW_HIDE;
    default:
        return SW_SHOWNORMAL;
    }
}

} // namespace

LocalTime SystemClock::now() const {
    SYSTEMTIME time;
    GetLocalTime(&time);
    return {time.wYear, time.wMonth, time.wDay, time.wHour, time.wMinute, time.wSecond};
}

void ShellLauncher::launch(TextView program, TextView arguments, WindowState window) {
    constexpr INT_PTR last_error_code = 32;
    const HINSTANCE outcome = ShellExecuteW(nullptr, L"open", wide(program).c_str(), wide(arguments).c_str(),
                                            nullptr, show_command(window));
    if (reinterpret_cast<INT_PTR>(outcome) <= last_error_code) fail(program, GetLastError());
}

Answer DesktopWindows::show(TextView title, TextView text, Buttons buttons) {
    const HWND owner = GetActiveWindow();
    const int button = MessageBoxW(owner, wide(text).c_str(), wide(title).c_str(), box_style(buttons, owner));
    if (button <= 0) fail(title, GetLastError());
    if (buttons == Buttons::ok) return Answer::ok;
    return button == IDYES ? Answer::yes : Answer::no;
}

void DesktopWindows::show_modal(forms::Form& form) {
    form.load();
    if (form.is_loaded()) show_form_modally(form);
}

void DesktopWindows::keep_on_top(int window) {
    const auto handle = reinterpret_cast<HWND>(static_cast<INT_PTR>(window));
    if (!SetWindowPos(handle, HWND_TOPMOST, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE))
        fail(u"SetWindowPos", GetLastError());
}

std::optional<Text> ResourceStrings::find(int id) const {
    // With no room for a copy, the system gives out where the text itself stands.
    const wchar_t* text = nullptr;
    const int length = LoadStringW(module_, static_cast<UINT>(id), reinterpret_cast<wchar_t*>(&text), 0);
    if (length <= 0) return {};
    return text_of({text, static_cast<std::size_t>(length)});
}

} // namespace ornavel::win32
