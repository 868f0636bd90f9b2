#include "win32/notification_icon.h"

#include "win32/ansi_code_page.h"
#include "win32/program_icon.h"
#include "win32/this_module.h"
#include "win32/wide.h"

#include <shellapi.h>

namespace ornavel::win32 {
namespace {

constexpr UINT icon_message = WM_APP + 1;

/// What the desktop tells all windows when it has made a taskbar.
UINT taskbar_created() { return RegisterWindowMessageW(L"TaskbarCreated"); }

/// A popup menu that goes with this.
class PopupMenu {
public:
    explicit PopupMenu(std::span<const forms::MenuEntry> entries) : menu_(CreatePopupMenu()) {
        UINT number = 0;
        for (const auto& [caption, ticked] : entries) {
            const UINT look = caption.empty() ? MF_SEPARATOR : MF_STRING | (ticked ? MF_CHECKED : 0);
            AppendMenuW(menu_, look, ++number, wide(caption).c_str());
        }
    }
    ~PopupMenu() { DestroyMenu(menu_); }
    PopupMenu(const PopupMenu&) = delete;
    PopupMenu& operator=(const PopupMenu&) = delete;

    /// The number of the entry that the user chooses, counted from 1; 0 for none.
    int track(HWND owner) const {
        POINT pointer{};
        GetCursorPos(&pointer);
        return TrackPopupMenu(menu_, TPM_RETURNCMD | TPM_NONOTIFY | TPM_RIGHTBUTTON, pointer.x, pointer.y, 0,
                              owner, nullptr);
    }

private:
    HMENU menu_;
};

} // namespace

void NotificationIcon::show(TextView tip, std::function<void(int message)> handler) {
    hide();
    tip_ = tip;
    handler_ = std::move(handler);
    // A window of its own kind would have to be unregistered before the DLL goes.
    window_ = CreateWindowExW(WS_EX_TOOLWINDOW, L"STATIC", L"", WS_POPUP, 0, 0, 0, 0, nullptr, nullptr,
                              this_module(), nullptr);
    if (!window_) fail(tip, GetLastError());
    SetWindowLongPtrW(window_, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
    SetWindowLongPtrW(window_, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(procedure));
    put(NIM_ADD);
}

void NotificationIcon::hide() {
    if (!window_) return;
    put(NIM_DELETE);
    DestroyWindow(window_);
    window_ = nullptr;
}

/// Without a taskbar the system refuses; the icon then comes with the taskbar.
void NotificationIcon::put(DWORD what) const {
    NOTIFYICONDATAA icon{};
    icon.cbSize = NOTIFYICONDATAA_V1_SIZE; // the only size that all desktops know
    icon.hWnd = window_;
    icon.uID = 1;
    icon.uFlags = NIF_MESSAGE | NIF_ICON | NIF_TIP;
    icon.uCallbackMessage = icon_message;
    icon.hIcon = small_program_icon();
    const std::string tip = ansi_code_page().encode(tip_).value_or("Ornavel");
    constexpr std::size_t longest = 63; // the field of that size ends with a NUL
    tip.copy(icon.szTip, longest);
    Shell_NotifyIconA(what, &icon);
}

LRESULT CALLBACK NotificationIcon::procedure(HWND window, UINT message, WPARAM word, LPARAM pointer) {
    auto* const self = reinterpret_cast<NotificationIcon*>(GetWindowLongPtrW(window, GWLP_USERDATA));
    if (message == icon_message) {
        attempt([&] {
            const auto handler = self->handler_; // the icon may go while it is at work
            handler(static_cast<int>(pointer));
        });
        return 0;
    }
    if (message == taskbar_created()) self->put(NIM_ADD);
    return DefWindowProcW(window, message, word, pointer);
}

std::optional<std::size_t> NotificationIcon::pop_up(std::span<const forms::MenuEntry> entries) {
    const PopupMenu menu(entries);
    // A menu closes when the user clicks elsewhere only if its window is in the foreground, and the next one
    // opens at once only if that window has got a message meanwhile.
    const HWND window = window_;
    SetForegroundWindow(window);
    const int chosen = menu.track(window);
    PostMessageW(window, WM_NULL, 0, 0);
    if (chosen <= 0) return {};
    return static_cast<std::size_t>(chosen) - 1;
}

} // namespace ornavel::win32
