#include "rehearsal/windows/form_hand.h"

#include "rehearsal/form_record.h"
#include "rehearsal/windows/form_reader.h"
#include "win32/twips.h"
#include "win32/wide.h"

namespace ornavel::rehearsal {
namespace {

using forms::Control;
using forms::ControlKind;

/// Tells the form what happened to one of its controls.
void notify(HWND control, int what) {
    SendMessageW(GetParent(control), WM_COMMAND, MAKEWPARAM(GetDlgCtrlID(control), what),
                 reinterpret_cast<LPARAM>(control));
}

void click(HWND window, ControlKind kind) {
    if (kind == ControlKind::label || kind == ControlKind::image)
        notify(window, STN_CLICKED);
    else
        SendMessageW(window, BM_CLICK, 0, 0);
}

void type(HWND text_box, const Text& text) {
    SendMessageW(text_box, EM_SETSEL, 0, -1);
    SendMessageW(text_box, EM_REPLACESEL, TRUE, reinterpret_cast<LPARAM>(win32::wide(text).c_str()));
}

void choose(HWND combo_box, const Control& wanted) {
    SendMessageW(combo_box, CB_SETCURSEL, static_cast<WPARAM>(wanted.index), 0);
    if (wanted.index >= 0) return notify(combo_box, CBN_SELCHANGE);
    SetWindowTextW(combo_box, win32::wide(wanted.text).c_str());
    notify(combo_box, CBN_EDITCHANGE);
}

void place(HWND window, const forms::Bounds& wanted) {
    const RECT frame = win32::Scale::of_screen().pixels(wanted);
    SetWindowPos(window, nullptr, frame.left, frame.top, frame.right - frame.left, frame.bottom - frame.top,
                 SWP_NOZORDER | SWP_NOACTIVATE);
}

/// Some lists are filled only when the user opens them.
void open_list(const Step& step, HWND form) {
    if (step.kind != Step::Kind::set && step.kind != Step::Kind::select) return;
    const auto shown = read_form(form);
    const Control* control = shown->find(step.control);
    if (!control || control->kind != ControlKind::combo_box) return;
    forms::FormUser(*shown).drop_down(step.control);
    notify(control_window(form, step.control), CBN_DROPDOWN);
}

/// As by a click on an entry.
void mark(HWND list_box, int entry) {
    SendMessageW(list_box, LB_SETCURSEL, static_cast<WPARAM>(entry), 0);
    notify(list_box, LBN_SELCHANGE);
}

void double_click(HWND window, ControlKind kind) {
    if (kind == ControlKind::list_box) return notify(window, LBN_DBLCLK);
    // Posted: a form takes a text box's double clicks from its queue.
    PostMessageW(window, WM_LBUTTONDBLCLK, MK_LBUTTON, MAKELPARAM(2, 2));
}

/// The control as the step leaves it.
void act(const Step& step, HWND window, const Control& wanted) {
    switch (step.kind) {
    case Step::Kind::click:
    case Step::Kind::tick:
        return click(window, wanted.kind);
    case Step::Kind::double_click:
        return double_click(window, wanted.kind);
    default:
        if (wanted.kind == ControlKind::list_box) return mark(window, wanted.index);
        return wanted.kind == ControlKind::combo_box ? choose(window, wanted) : type(window, wanted.text);
    }
}

} // namespace

void take_step_in_window(const Step& step, HWND form) {
    open_list(step, form);
    // Whether a user could take the step shows in a form that is like the window, and what it leads to.
    const auto wanted = read_form(form);
    take_step(step, forms::FormUser(*wanted));
    if (step.kind == Step::Kind::close)
        SendMessageW(form, WM_CLOSE, 0, 0);
    else if (step.kind == Step::Kind::resize || step.kind == Step::Kind::move)
        place(form, wanted->properties.place);
    else
        act(step, control_window(form, step.control), (*wanted)[step.control]);
}

} // namespace ornavel::rehearsal
