// What the user does in a form's window, as steps of a FormUser.
#include "win32/form_window.h"

#include "win32/window_name.h"

#include <algorithm>
#include <utility>

namespace ornavel::win32 {

using forms::Control;
using forms::ControlKind;
using forms::FormUser;

/// The keys and clicks that dialogs would keep to themselves, or give to the wrong control.
bool FormWindow::translate(const MSG& message) {
    const bool is_key = message.message >= WM_KEYFIRST && message.message <= WM_KEYLAST;
    for (const ControlWindow& control : controls_) {
        if (control.browser() && is_key && control.browser()->has_keyboard())
            return translate_in_page(control, message);
        if (control.window() == message.hwnd && form_[control.name()].kind == ControlKind::text_box)
            return translate_in_text_box(control, message);
    }
    return false;
}

bool FormWindow::translate_in_text_box(const ControlWindow& box, const MSG& message) {
    if (message.message == WM_KEYDOWN && message.wParam == VK_ESCAPE) {
        on_escape();
        return true;
    }
    if (message.message != WM_LBUTTONDBLCLK) return false;
    step([&](FormUser user) { user.double_click(box.name()); });
    return true;
}

/// Escape is the form's; every other key is the page's, except the Tab key where the page ends, and what is
/// typed with Alt.
bool FormWindow::translate_in_page(const ControlWindow& page, const MSG& message) {
    const bool pressed = message.message == WM_KEYDOWN;
    if (pressed && message.wParam == VK_ESCAPE) {
        on_escape();
    } else if (page.browser()->takes_key(message)) {
        return true;
    } else if (pressed && message.wParam == VK_TAB) {
        const HWND next = GetNextDlgTabItem(window_, page.window(), GetKeyState(VK_SHIFT) < 0);
        SendMessageW(window_, WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(next), TRUE);
    } else if (message.message >= WM_SYSKEYDOWN) {
        return false;
    } else {
        TranslateMessage(&message);
        DispatchMessageW(&message);
    }
    return true;
}

INT_PTR CALLBACK FormWindow::procedure(HWND window, UINT message, WPARAM word, LPARAM pointer) {
    if (message == WM_INITDIALOG) {
        SetWindowLongPtrW(window, DWLP_USER, pointer);
        return FALSE;
    }
    auto* const self = reinterpret_cast<FormWindow*>(GetWindowLongPtrW(window, DWLP_USER));
    return self && self->handle(message, word, pointer);
}

bool FormWindow::handle(UINT message, WPARAM word, LPARAM pointer) {
    switch (message) {
    case WM_COMMAND:
        on_command(LOWORD(word), HIWORD(word));
        return true;
    case WM_CLOSE:
        if (!is_within_) step([](FormUser user) { user.close(); });
        return true;
    case WM_MOUSEACTIVATE:
        if (is_within_) attempt(on_entered_);
        return false;
    case WM_MOVE:
    case WM_SIZE:
        on_moved();
        return false;
    case WM_GETMINMAXINFO:
        tell_least_size(*reinterpret_cast<MINMAXINFO*>(pointer));
        return true;
    case WM_DESTROY:
        take_name(window_);
        for (ControlWindow& control : controls_) {
            control.close();
            control.release_name();
        }
        window_ = nullptr;
        // Windows that go with their owner take their form along, whether it may be closed or not; a page may
        // appear once more.
        if (!is_within_) step([this](FormUser) { form_.unload(); });
        return false;
    default:
        return false;
    }
}

void FormWindow::on_command(int id, int notification) {
    if (refreshing_) return;
    if (id == IDCANCEL && !is_within_) on_escape();
    const int index = id - first_id;
    if (index >= 0 && static_cast<std::size_t>(index) < controls_.size())
        on_notification(controls_[static_cast<std::size_t>(index)], notification);
}

void FormWindow::on_notification(const ControlWindow& control, int notification) {
    const Text& name = control.name();
    const ControlKind kind = form_[name].kind;
    // Other notifications change nothing that the form knows, and some come before the change they tell of.
    const auto told = [&](ControlKind sender, int wanted) {
        return kind == sender && notification == wanted;
    };
    if (told(ControlKind::command_button, BN_CLICKED))
        step([&](FormUser user) { user.click(name); });
    else if (told(ControlKind::check_box, BN_CLICKED))
        step([&](FormUser user) { user.tick(name, control.is_ticked()); });
    else if (told(ControlKind::text_box, EN_CHANGE) || told(ControlKind::combo_box, CBN_EDITCHANGE))
        step([&](FormUser user) { user.set_text(name, control.text()); });
    else if (told(ControlKind::combo_box, CBN_DROPDOWN))
        step([&](FormUser user) { user.drop_down(name); });
    else if (told(ControlKind::combo_box, CBN_SELCHANGE) || told(ControlKind::list_box, LBN_SELCHANGE))
        step([&](FormUser user) { user.select(name, control.chosen_entry()); });
    else if (told(ControlKind::list_box, LBN_DBLCLK))
        step([&](FormUser user) { user.double_click(name); });
    else if (told(ControlKind::label, STN_CLICKED) || told(ControlKind::image, STN_CLICKED))
        step([&](FormUser user) { user.click(name); });
    else if (told(ControlKind::label, STN_DBLCLK) || told(ControlKind::image, STN_DBLCLK))
        step([&](FormUser user) { user.double_click(name); });
}

/// Presses the button that stands for Escape; a form without one is closed by its frame.
void FormWindow::on_escape() {
    const auto button = std::ranges::find_if(form_.controls(), [](const Control& control) {
        return control.is_cancel && control.visible && control.enabled;
    });
    step([&](FormUser user) {
        if (button == form_.controls().end())
            user.close();
        else
            user.click(button->name);
    });
}

/// A maximised window is larger than its place, to which it returns, and an icon is nowhere.
void FormWindow::on_moved() {
    if (refreshing_ || IsIconic(window_)) return;
    if (is_within_) return void(attempt([&] { refresh(); }));
    RECT frame;
    GetWindowRect(window_, &frame);
    const RECT shown = scale_.pixels(place_);
    if (IsZoomed(window_) || EqualRect(&frame, &shown)) {
        attempt([&] { refresh(); });
        return;
    }
    const forms::Bounds before = std::exchange(place_, scale_.twips(frame));
    step([&](FormUser user) {
        user.move(place_.left, place_.top);
        if (place_.width != before.width || place_.height != before.height)
            user.resize(place_.width, place_.height);
    });
}

void FormWindow::tell_least_size(MINMAXINFO& limits) const {
    const forms::Size least = form_.least_size();
    const RECT pixels = scale_.pixels({0, 0, least.width, least.height});
    limits.ptMinTrackSize = {pixels.right, pixels.bottom};
}

/// Runs the user's step, and shows what the form's code made of it. A step that the form refuses changes
/// nothing; nothing is thrown through the system's windows.
void FormWindow::step(const std::function<void(FormUser)>& act) {
    attempt([&] {
        if (form_.is_loaded()) act(FormUser(form_));
    });
    attempt([&] { refresh(); });
    // Wakes the loop when the message came from elsewhere than its queue.
    if (!form_.is_loaded()) PostThreadMessageW(GetCurrentThreadId(), WM_NULL, 0, 0);
}

} // namespace ornavel::win32
