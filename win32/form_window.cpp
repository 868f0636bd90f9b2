#include "win32/form_window.h"

#include "forms/centre.h"
#include "win32/modality.h"
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

HWND create_dialog(const forms::Form& form, HWND owner, DLGPROC procedure, void* self) {
    EmptyDialog empty;
    empty.dialog.style = WS_POPUP | WS_CAPTION | WS_SYSMENU | DS_MODALFRAME | DS_NOIDLEMSG |
                         (form.sizable ? WS_THICKFRAME | WS_MAXIMIZEBOX : 0);
    const HWND window = CreateDialogIndirectParamW(GetModuleHandleW(nullptr), &empty.dialog, owner, procedure,
                                                   reinterpret_cast<LPARAM>(self));
    if (!window) fail(form.name(), GetLastError());
    return window;
}

} // namespace

FormWindow::FormWindow(forms::Form& form) : form_(form), font_(dialog_font(scale_)) {}

void FormWindow::open(HWND owner) {
    window_ = create_dialog(form_, owner, procedure, this);
    give_name(window_, form_.name());
    if (form_.centred) centre();
    // Before there are tool tips: under Wine a window that owns another one never becomes topmost.
    show_frame();
    tips_.emplace(window_);
    create_controls();
    refresh();
    refreshing_ = false;
}

FormWindow::~FormWindow() {
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

void FormWindow::centre() {
    RECT desk;
    SystemParametersInfoW(SPI_GETWORKAREA, 0, &desk, 0);
    form_.properties.place = forms::centred(form_.properties.place, scale_.twips(desk));
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

/// A form that has just been unloaded shows its last state, too: what tools read as the window goes.
void FormWindow::refresh() {
    if (!window_) return;
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
        FormWindow window(form);
        window.open(GetActiveWindow());
        // The owner is enabled before the window goes, or the system would activate another program's window.
        const Modality modality(window.window());
        window.run();
    });
    attempt([&] { form.unload(); });
}

} // namespace ornavel::win32
