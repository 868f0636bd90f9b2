#include "win32/form_window.h"

#include "win32/wide.h"

#include <algorithm>

namespace ornavel::win32 {
namespace {

using forms::Control;
using forms::FormUser;
using forms::Kind;

constexpr int first_id = 100; // above the numbers that dialogs keep for themselves

HFONT dialog_font(const Scale& scale) {
    constexpr int points = 8;
    return CreateFontW(scale.font_height(points), 0, 0, 0, FW_NORMAL, FALSE, FALSE, FALSE, DEFAULT_CHARSET,
                       OUT_DEFAULT_PRECIS, CLIP_DEFAULT_PRECIS, DEFAULT_QUALITY, DEFAULT_PITCH | FF_DONTCARE,
                       L"MS Shell Dlg");
}

/// A dialog without controls: template, no menu, the class of dialogs, no title.
struct EmptyDialog {
    DLGTEMPLATE dialog{};
    WORD menu = 0, window_class = 0, title = 0;
};

HWND create_dialog(const forms::Form& form, HWND owner, DLGPROC procedure, void* self) {
    EmptyDialog empty;
    empty.dialog.style = WS_POPUP | WS_CAPTION | WS_SYSMENU | DS_MODALFRAME | DS_NOIDLEMSG |
                         (form.sizable ? WS_THICKFRAME | WS_MAXIMIZEBOX : 0);
    const HWND window = CreateDialogIndirectParamW(GetModuleHandleW(nullptr), &empty.dialog, owner, procedure,
                                                   reinterpret_cast<LPARAM>(self));
    if (!window) fail(form.name(), GetLastError());
    return window;
}

/// Keeps a window from the user for as long as it lives.
class Disabled {
public:
    explicit Disabled(HWND window) : window_(window), was_enabled_(window && !EnableWindow(window, FALSE)) {}
    ~Disabled() {
        if (was_enabled_) EnableWindow(window_, TRUE);
    }
    Disabled(const Disabled&) = delete;
    Disabled& operator=(const Disabled&) = delete;

private:
    HWND window_;
    bool was_enabled_;
};

} // namespace

FormWindow::FormWindow(forms::Form& form, HWND owner)
    : form_(form), font_(dialog_font(scale_)), window_(create_dialog(form, owner, procedure, this)) {
    if (form_.centred) centre();
    // Before there are tool tips: under Wine a window that owns another one never becomes topmost.
    show_frame();
    tips_.emplace(window_);
    create_controls();
    refresh();
    refreshing_ = false;
}

FormWindow::~FormWindow() {
    if (window_) DestroyWindow(window_);
}

void FormWindow::create_controls() {
    for (const Control& control : form_.controls()) {
        const int id = first_id + static_cast<int>(controls_.size());
        controls_.emplace_back(control, window_, id, static_cast<HFONT>(font_.get()));
        tips_->add(controls_.back().window());
    }
}

void FormWindow::centre() {
    RECT desk;
    SystemParametersInfoW(SPI_GETWORKAREA, 0, &desk, 0);
    const forms::Place screen = scale_.twips(desk);
    forms::Place& place = form_.properties.place;
    place.left = screen.left + (screen.width - place.width) / 2;
    place.top = screen.top + (screen.height - place.height) / 2;
}

void FormWindow::run() {
    ShowWindow(window_, SW_SHOW);
    SetForegroundWindow(window_);
    SetFocus(GetNextDlgTabItem(window_, nullptr, FALSE));
    MSG message;
    while (form_.is_loaded()) {
        if (GetMessageW(&message, nullptr, 0, 0) <= 0) {
            // The program ends while the form is open: the loop around this one must hear of it too.
            PostQuitMessage(static_cast<int>(message.wParam));
            return;
        }
        if (translate(message) || IsDialogMessageW(window_, &message)) continue;
        TranslateMessage(&message);
        DispatchMessageW(&message);
    }
}

/// The keys and clicks of a text box that dialogs keep to themselves.
bool FormWindow::translate(const MSG& message) {
    const auto box = std::ranges::find(controls_, message.hwnd, &ControlWindow::window);
    if (box == controls_.end() || form_[box->name()].kind != Kind::text_box) return false;
    if (message.message == WM_KEYDOWN && message.wParam == VK_ESCAPE) {
        on_escape();
        return true;
    }
    if (message.message != WM_LBUTTONDBLCLK) return false;
    step([&](FormUser user) { user.double_click(box->name()); });
    return true;
}

INT_PTR CALLBACK FormWindow::procedure(HWND window, UINT message, WPARAM word, LPARAM pointer) {
    if (message == WM_INITDIALOG) {
        SetWindowLongPtrW(window, DWLP_USER, pointer);
        return FALSE;
    }
    auto* const self = reinterpret_cast<FormWindow*>(GetWindowLongPtrW(window, DWLP_USER));
    return self && self->handle(message, word);
}

bool FormWindow::handle(UINT message, WPARAM word) {
    switch (message) {
    case WM_COMMAND:
        on_command(LOWORD(word), HIWORD(word));
        return true;
    case WM_CLOSE:
        step([](FormUser user) { user.close(); });
        return true;
    case WM_MOVE:
    case WM_SIZE:
        on_moved();
        return false;
    case WM_DESTROY:
        for (const ControlWindow& control : controls_) control.release_name();
        window_ = nullptr;
        // Windows that go with their owner take their form along.
        step([](FormUser user) { user.close(); });
        return false;
    default:
        return false;
    }
}

void FormWindow::on_command(int id, int notification) {
    if (refreshing_) return;
    if (id == IDCANCEL) on_escape();
    const int index = id - first_id;
    if (index >= 0 && static_cast<std::size_t>(index) < controls_.size())
        on_notification(controls_[static_cast<std::size_t>(index)], notification);
}

void FormWindow::on_notification(const ControlWindow& control, int notification) {
    const Text& name = control.name();
    const Kind kind = form_[name].kind;
    // Other notifications change nothing that the form knows, and some come before the change they tell of.
    const auto told = [&](Kind sender, int wanted) { return kind == sender && notification == wanted; };
    if (told(Kind::command_button, BN_CLICKED))
        step([&](FormUser user) { user.click(name); });
    else if (told(Kind::check_box, BN_CLICKED))
        step([&](FormUser user) { user.tick(name, control.is_ticked()); });
    else if (told(Kind::text_box, EN_CHANGE) || told(Kind::combo_box, CBN_EDITCHANGE))
        step([&](FormUser user) { user.set_text(name, control.text()); });
    else if (told(Kind::combo_box, CBN_DROPDOWN))
        step([&](FormUser user) { user.drop_down(name); });
    else if (told(Kind::combo_box, CBN_SELCHANGE))
        step([&](FormUser user) { user.select(name, control.chosen_entry()); });
    else if (told(Kind::label, STN_CLICKED) || told(Kind::image, STN_CLICKED))
        step([&](FormUser user) { user.click(name); });
    else if (told(Kind::label, STN_DBLCLK) || told(Kind::image, STN_DBLCLK))
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

void FormWindow::on_moved() {
    RECT frame;
    GetWindowRect(window_, &frame);
    const RECT shown = scale_.pixels(place_);
    if (refreshing_ || EqualRect(&frame, &shown)) return;
    const forms::Place before = std::exchange(place_, scale_.twips(frame));
    step([&](FormUser user) {
        user.move(place_.left, place_.top);
        if (place_.width != before.width || place_.height != before.height)
            user.resize(place_.width, place_.height);
    });
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

void FormWindow::refresh() {
    if (!window_ || !form_.is_loaded()) return;
    const bool before = std::exchange(refreshing_, true);
    show_frame();
    for (std::size_t i = 0; i < controls_.size(); ++i) {
        const Control& control = form_.controls()[i];
        controls_[i].show(control, form_.find(control.frame), scale_, *tips_);
    }
    show_default_button();
    refreshing_ = before;
}

void FormWindow::show_frame() {
    const Control& form = form_.properties;
    if (form.caption != caption_) SetWindowTextW(window_, wide(caption_ = form.caption).c_str());
    if (form.place != place_) {
        const RECT frame = scale_.pixels(place_ = form.place);
        SetWindowPos(window_, nullptr, frame.left, frame.top, frame.right - frame.left,
                     frame.bottom - frame.top, SWP_NOZORDER | SWP_NOACTIVATE);
    }
    if (form_.topmost != topmost_) {
        topmost_ = form_.topmost;
        SetWindowPos(window_, topmost_ ? HWND_TOPMOST : HWND_NOTOPMOST, 0, 0, 0, 0,
                     SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
    }
}

void FormWindow::show_default_button() {
    for (std::size_t i = 0; i < controls_.size(); ++i) {
        const Control& control = form_.controls()[i];
        if (control.is_default && control.visible && control.enabled)
            SendMessageW(window_, DM_SETDEFID, first_id + i, 0);
    }
}

void show_form_modally(forms::Form& form) noexcept {
    attempt([&] {
        const HWND owner = GetActiveWindow();
        FormWindow window(form, owner);
        // The owner is enabled before the window goes, or the system would activate another program's window.
        const Disabled disabled(owner);
        window.run();
    });
    attempt([&] { form.unload(); });
}

} // namespace ornavel::win32
