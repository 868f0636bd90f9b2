// A form's window that stands in a window of somebody else's.
#include "win32/form_window.h"

#include "win32/wide.h"

#include <algorithm>
#include <utility>

namespace ornavel::win32 {
namespace {

bool is_open_list(HWND window) {
    // The keyboard is in the combo box itself or in the box for its text.
    for (const HWND each : {window, GetParent(window)})
        if (SendMessageW(each, CB_GETDROPPEDSTATE, 0, 0)) return true;
    return false;
}

/// The one that the Tab key reaches first, or last.
HWND edge_of(HWND dialog, bool at_the_end) {
    const HWND first = GetNextDlgTabItem(dialog, nullptr, FALSE);
    return at_the_end ? GetNextDlgTabItem(dialog, first, TRUE) : first;
}

/// Whether the Tab key would begin anew at the other end.
bool leads_out(HWND dialog, bool back) {
    return GetNextDlgTabItem(dialog, GetFocus(), back) == edge_of(dialog, back);
}

} // namespace

void FormWindow::open_within(HWND parent, const RECT& place, std::function<void()> on_entered) {
    is_within_ = true;
    on_entered_ = std::move(on_entered);
    create_dialog(WS_CHILD | DS_CONTROL | DS_NOIDLEMSG, WS_EX_CONTROLPARENT, parent);
    SetWindowTextW(window_, wide(form_.properties.caption).c_str());
    form_.take_frame({});
    move(place);
    fill();
    ShowWindow(window_, SW_SHOWNA);
}

void FormWindow::move(const RECT& place) {
    MoveWindow(window_, place.left, place.top, place.right - place.left, place.bottom - place.top, TRUE);
}

bool FormWindow::takes_key(MSG& message) {
    const bool is_key = message.message >= WM_KEYFIRST && message.message <= WM_KEYLAST;
    if (!is_key || !IsChild(window_, message.hwnd)) return false;
    if (message.message == WM_SYSCHAR && !has_access_key(message.wParam)) return false;
    const bool pressed = message.message == WM_KEYDOWN;
    if (pressed && message.wParam == VK_TAB && leads_out(window_, GetKeyState(VK_SHIFT) < 0)) return false;
    if (pressed && (message.wParam == VK_ESCAPE || message.wParam == VK_RETURN) &&
        !is_open_list(message.hwnd))
        return false;
    return IsDialogMessageW(window_, &message);
}

/// The system looks for the access key from the control on that the key was pressed in.
bool FormWindow::takes_key_from_outside(MSG message) {
    if (message.message != WM_SYSCHAR || !has_access_key(message.wParam)) return false;
    message.hwnd = edge_of(window_, false);
    return IsDialogMessageW(window_, &message);
}

bool FormWindow::has_access_key(WPARAM letter) const {
    const auto wanted = static_cast<char16_t>(letter);
    return std::ranges::any_of(form_.controls(), [&](const forms::Control& control) {
        const auto key = forms::access_key_of(control);
        return key && control.visible && lower_case(TextView(&wanted, 1)).front() == *key;
    });
}

void FormWindow::take_keyboard(bool at_the_end) {
    SendMessageW(window_, WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(edge_of(window_, at_the_end)), TRUE);
}

} // namespace ornavel::win32
