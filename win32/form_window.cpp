#include "win32/form_window.h"

#include "forms/screen_place.h"
#include "forms/unloading.h"
#include "win32/message_box.h"
#include "win32/modality.h"
#include "win32/program_icon.h"
#include "win32/screens.h"
#include "win32/wide.h"
#include "win32/window_name.h"

#include <utility>

namespace ornavel::win32 {
namespace {

using forms::Control;

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

DWORD frame_of(const forms::Form& form) {
    return WS_POPUP | WS_CAPTION | WS_SYSMENU | DS_NOIDLEMSG |
           (form.sizable ? WS_THICKFRAME | WS_MAXIMIZEBOX : DS_MODALFRAME);
}

} // namespace

FormWindow::FormWindow(forms::Form& form) : form_(form), font_(dialog_font(scale_)) {}

void FormWindow::create_dialog(DWORD style, DWORD extended_style, HWND owner) {
    EmptyDialog empty;
    empty.dialog.style = style;
    empty.dialog.dwExtendedStyle = extended_style;
    window_ = CreateDialogIndirectParamW(GetModuleHandleW(nullptr), &empty.dialog, owner, procedure,
                                         reinterpret_cast<LPARAM>(this));
    if (!window_) fail(form_.name(), GetLastError());
}

void FormWindow::open(HWND owner) {
    create_dialog(frame_of(form_), 0, owner);
    show_program_icon(window_);
    find_place();
    // Before there are tool tips: under Wine a window that owns another one never becomes topmost.
    show_frame();
    fill();
}

void FormWindow::fill() {
    give_name(window_, form_.name());
    tips_.emplace(window_);
    create_controls();
    if (form_.sizable) grip_.emplace(window_);
    refresh();
    refreshing_ = false;
    form_.shows_changes = [this] { refresh(); };
}

FormWindow::~FormWindow() {
    form_.shows_changes = {};
    for (ControlWindow& control : controls_) control.close();
    if (window_) DestroyWindow(window_);
}

void FormWindow::create_controls() {
    for (const Control& control : form_.controls()) {
        const int id = first_id + static_cast<int>(controls_.size());
        controls_.emplace_back(control, window_, id, static_cast<HFONT>(font_.get()));
        tips_->add(controls_.back().window());
    }
}

void FormWindow::find_place() {
    RECT frame{}, desk;
    AdjustWindowRectEx(&frame, static_cast<DWORD>(GetWindowLongW(window_, GWL_STYLE)), FALSE,
                       static_cast<DWORD>(GetWindowLongW(window_, GWL_EXSTYLE)));
    const forms::Bounds borders = scale_.twips(frame);
    form_.take_frame({borders.width, borders.height});
    SystemParametersInfoW(SPI_GETWORKAREA, 0, &desk, 0);
    forms::place_on_screen(form_, scale_.twips(desk), screens(scale_));
}

void FormWindow::run() {
    ShowWindow(window_, SW_SHOW);
    SetForegroundWindow(window_);
    const HWND first = first_focus();
    SetFocus(first);
    // As with the Tab key: what the user types replaces what a box brought along.
    if (SendMessageW(first, WM_GETDLGCODE, 0, 0) & DLGC_HASSETSEL) SendMessageW(first, EM_SETSEL, 0, -1);
    show_focus();
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

/// A form that has just been unloaded shows its last state, too: what tools read as the window goes.
void FormWindow::refresh() {
    if (!window_) return;
    const bool before = std::exchange(refreshing_, true);
    if (!is_within_) show_frame();
    fill_room();
    if (grip_) grip_->follow();
    for (std::size_t i = 0; i < controls_.size(); ++i) {
        const Control& control = form_.controls()[i];
        controls_[i].show(control, form_.find(control.frame), scale_, *tips_);
    }
    show_default_button();
    show_focus();
    refreshing_ = before;
}

void FormWindow::show_frame() {
    const Control& form = form_.properties;
    if (form.caption != caption_) SetWindowTextW(window_, wide(caption_ = form.caption).c_str());
    // A maximised window takes its place when it returns from there.
    if (form.place != place_ && !IsZoomed(window_)) {
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

void FormWindow::fill_room() {
    RECT inside;
    GetClientRect(window_, &inside);
    const forms::Size room = form_.room();
    const RECT arranged = scale_.pixels({0, 0, room.width, room.height});
    if (EqualRect(&inside, &arranged)) return;
    const forms::Bounds shown = scale_.twips(inside);
    form_.take_room({shown.width, shown.height});
}

/// Only a change is told: each time, the system takes the Enter key from the button that has the keyboard.
void FormWindow::show_default_button() {
    int wanted = default_id_;
    for (std::size_t i = 0; i < controls_.size(); ++i) {
        const Control& control = form_.controls()[i];
        if (control.is_default && control.visible && control.enabled) wanted = first_id + static_cast<int>(i);
    }
    if (wanted == std::exchange(default_id_, wanted)) return;
    SendMessageW(window_, DM_SETDEFID, static_cast<WPARAM>(wanted), 0);
}

/// What the user types there replaces what stands there, as with the Tab key.
void FormWindow::show_focus() {
    if (!IsWindowVisible(window_)) return;
    const Text wanted = std::exchange(form_.next_focus, Text());
    if (wanted.empty()) return;
    for (const ControlWindow& control : controls_)
        if (same_name(control.name(), wanted))
            SendMessageW(window_, WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(control.window()), TRUE);
}

/// The first control; where that is a button, the one that Enter presses, so that the two are one.
HWND FormWindow::first_focus() const {
    const HWND first = GetNextDlgTabItem(window_, nullptr, FALSE);
    const bool is_button =
        (SendMessageW(first, WM_GETDLGCODE, 0, 0) & (DLGC_DEFPUSHBUTTON | DLGC_UNDEFPUSHBUTTON)) != 0;
    return is_button && default_id_ ? GetDlgItem(window_, default_id_) : first;
}

void show_form_modally(forms::Form& form) {
    const forms::Unloading at_the_end(form);
    FormWindow window(form);
    window.open(owner_of_boxes());
    // The owner is enabled before the window goes, or the system would activate another program's window.
    const Modality modality(window.window());
    window.run();
}

} // namespace ornavel::win32
