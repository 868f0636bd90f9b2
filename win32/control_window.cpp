#include "win32/control_window.h"

#include "win32/picture.h"
#include "win32/wide.h"
#include "win32/window_name.h"

#include <commctrl.h>

#include <algorithm>

namespace ornavel::win32 {
namespace {

using forms::Control;
using forms::ControlKind;

struct Look {
    const wchar_t* window_class;
    DWORD style;
    DWORD extended_style;
};

Look text_box_look(const Control& control) {
    const DWORD lines =
        control.several_lines ? ES_MULTILINE | ES_AUTOVSCROLL | WS_VSCROLL : DWORD{ES_AUTOHSCROLL};
    // The Enter key is the default button's where nothing can be written.
    const DWORD writing = control.locked ? ES_READONLY : control.several_lines ? ES_WANTRETURN : 0;
    return {L"EDIT", WS_TABSTOP | lines | writing, WS_EX_CLIENTEDGE};
}

DWORD combo_box_style(const Control& control) {
    return control.fixed_entries ? DWORD{CBS_DROPDOWNLIST} : DWORD{CBS_DROPDOWN | CBS_AUTOHSCROLL};
}

DWORD picture_style(const Control& image) {
    return image.icon == forms::Icon::none ? DWORD{SS_BITMAP} : DWORD{SS_ICON};
}

/// What a control looks like; one without a window has no class.
Look look_of(const Control& control) {
    switch (control.kind) {
    case ControlKind::command_button:
        return {L"BUTTON", WS_TABSTOP | BS_PUSHBUTTON, 0};
    case ControlKind::check_box:
        return {L"BUTTON", WS_TABSTOP | BS_AUTOCHECKBOX | BS_MULTILINE, 0};
    case ControlKind::combo_box:
        return {L"COMBOBOX", WS_TABSTOP | WS_VSCROLL | combo_box_style(control), 0};
    case ControlKind::list_box:
        return {L"LISTBOX", WS_TABSTOP | WS_VSCROLL | WS_HSCROLL | LBS_NOTIFY | LBS_NOINTEGRALHEIGHT,
                WS_EX_CLIENTEDGE};
    case ControlKind::progress_bar:
        return {PROGRESS_CLASSW, 0, 0};
    case ControlKind::text_box:
        return text_box_look(control);
    case ControlKind::label:
        return {L"STATIC", SS_LEFT | SS_NOTIFY, 0};
    case ControlKind::frame:
        return {L"BUTTON", BS_GROUPBOX, 0};
    case ControlKind::image:
        return {L"STATIC", picture_style(control) | SS_CENTERIMAGE | SS_NOTIFY, 0};
    case ControlKind::web_browser:
        return {L"STATIC", SS_OWNERDRAW | WS_CLIPCHILDREN, WS_EX_CLIENTEDGE};
    default:
        return {};
    }
}

/// Within the form, also for a control that stands in a frame.
forms::Bounds place_in_form(const Control& control, const Control* frame) {
    forms::Bounds place = control.place;
    if (frame) {
        place.left += frame->place.left;
        place.top += frame->place.top;
    }
    return place;
}

const wchar_t* system_icon(forms::Icon icon) {
    if (icon == forms::Icon::question) return IDI_QUESTION;
    return icon == forms::Icon::warning ? IDI_WARNING : IDI_INFORMATION;
}

} // namespace

ControlWindow::ControlWindow(const Control& control, HWND parent, int id, HFONT font) {
    shown_.kind = control.kind;
    shown_.name = control.name;
    const Look look = look_of(control);
    if (!look.window_class) return;
    window_ = CreateWindowExW(look.extended_style, look.window_class, L"", WS_CHILD | look.style, 0, 0, 0, 0,
                              parent, reinterpret_cast<HMENU>(static_cast<INT_PTR>(id)),
                              GetModuleHandleW(nullptr), nullptr);
    if (!window_) fail(control.name, GetLastError());
    send(WM_SETFONT, reinterpret_cast<WPARAM>(font));
    give_name(window_, control.name);
    // Without this the system cuts off what is pasted behind 30,000 characters.
    if (control.kind == ControlKind::text_box) send(EM_SETLIMITTEXT);
    if (control.icon != forms::Icon::none)
        send(STM_SETICON, reinterpret_cast<WPARAM>(LoadIconW(nullptr, system_icon(control.icon))));
    if (control.kind == ControlKind::web_browser) make_browser(control.follows_links);
}

/// A page that can't be shown must not keep the form from the user.
void ControlWindow::make_browser(bool follows_links) {
    attempt([&] { browser_ = std::make_unique<WebBrowser>(window_, follows_links); });
    if (browser_) SetWindowLongW(window_, GWL_STYLE, GetWindowLongW(window_, GWL_STYLE) | WS_TABSTOP);
}

void ControlWindow::release_name() const {
    if (!window_) return;
    take_name(window_);
    RemovePropW(window_, in_hidden_frame);
}

LRESULT ControlWindow::send(UINT message, WPARAM word, LPARAM pointer) const {
    return SendMessageW(window_, message, word, pointer);
}

void ControlWindow::show(const Control& control, const Control* frame, const Scale& scale, ToolTips& tips) {
    if (!window_) return;
    show_text(control);
    if (control.kind == ControlKind::web_browser) show_page(control);
    if (control.kind == ControlKind::progress_bar) send(PBM_SETPOS, static_cast<WPARAM>(control.value));
    if (control.kind == ControlKind::check_box)
        send(BM_SETCHECK, control.ticked ? BST_CHECKED : BST_UNCHECKED);
    const bool moved = show_place(place_in_form(control, frame), scale);
    if (control.kind == ControlKind::image && control.picture != shown_.picture) show_picture(control);
    const bool frame_is_hidden = frame && !frame->visible;
    if (control.visible && frame_is_hidden)
        SetPropW(window_, in_hidden_frame, window_);
    else
        RemovePropW(window_, in_hidden_frame);
    const bool visible = control.visible && !frame_is_hidden;
    show_state(visible, control.enabled);
    if (control.tool_tip != shown_.tool_tip) tips.set(window_, control.tool_tip);
    const Text tip_for_place = visible && !control.enabled ? control.tool_tip : Text();
    if (moved || tip_for_place != tip_for_place_)
        tips.set_for_place(window_, scale.pixels(place_), tip_for_place_ = tip_for_place);
    shown_ = control;
}

void ControlWindow::show_text(const Control& control) {
    if (control.kind == ControlKind::combo_box) return show_list(control);
    if (control.kind == ControlKind::list_box) return show_entries(control);
    // The window's own text is asked, not the one last shown: what a user has just typed stays untouched.
    const Text& wanted = control.kind == ControlKind::text_box      ? control.text
                         : control.kind == ControlKind::web_browser ? control.page
                                                                    : control.caption;
    if (control.kind == ControlKind::image || control.kind == ControlKind::progress_bar) return;
    if (text() != wanted) SetWindowTextW(window_, wide(wanted).c_str());
}

void ControlWindow::show_list(const Control& control) {
    if (control.items != shown_.items) {
        send(CB_RESETCONTENT);
        for (const Text& item : control.items)
            send(CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(wide(item).c_str()));
    }
    if (text() == control.text) return;
    send(CB_SETCURSEL, static_cast<WPARAM>(control.index));
    if (control.index < 0) SetWindowTextW(window_, wide(control.text).c_str());
}

void ControlWindow::show_entries(const Control& control) {
    if (control.items == shown_.items) return mark_entry(control.index);
    // The texts of a list change while its user types elsewhere: the list stays where it was scrolled to.
    const bool stays = control.items.size() == shown_.items.size() && control.index == shown_.index;
    const LRESULT first_shown = send(LB_GETTOPINDEX);
    send(WM_SETREDRAW, FALSE);
    send(LB_RESETCONTENT);
    for (const Text& item : control.items)
        send(LB_ADDSTRING, 0, reinterpret_cast<LPARAM>(wide(item).c_str()));
    send(LB_SETHORIZONTALEXTENT, static_cast<WPARAM>(width_of_entries(control)));
    mark_entry(control.index);
    if (stays) send(LB_SETTOPINDEX, static_cast<WPARAM>(first_shown));
    send(WM_SETREDRAW, TRUE);
    InvalidateRect(window_, nullptr, TRUE);
}

/// Scrolls to it.
void ControlWindow::mark_entry(int index) const {
    if (send(LB_GETCURSEL) != index) send(LB_SETCURSEL, static_cast<WPARAM>(index));
}

/// In pixels: how far the list must scroll for its longest entry to be read.
int ControlWindow::width_of_entries(const Control& control) const {
    const HDC canvas = GetDC(window_);
    const HGDIOBJ before = SelectObject(canvas, reinterpret_cast<HFONT>(send(WM_GETFONT)));
    LONG widest = 0;
    for (const Text& item : control.items) {
        SIZE size{};
        GetTextExtentPoint32W(canvas, wide(item).c_str(), static_cast<int>(item.size()), &size);
        widest = std::max(widest, size.cx);
    }
    SelectObject(canvas, before);
    ReleaseDC(window_, canvas);
    return static_cast<int>(widest) + 2 * GetSystemMetrics(SM_CXEDGE);
}

bool ControlWindow::show_place(const forms::Bounds& place, const Scale& scale) {
    if (place == place_) return false;
    constexpr int entries_of_an_open_list = 8;
    place_ = place;
    RECT pixels = scale.pixels(place);
    // The height of a combo box is that of its open list; closed it is as high as its font wants.
    if (shown_.kind == ControlKind::combo_box)
        pixels.bottom += entries_of_an_open_list * static_cast<LONG>(send(CB_GETITEMHEIGHT));
    MoveWindow(window_, pixels.left, pixels.top, pixels.right - pixels.left, pixels.bottom - pixels.top,
               TRUE);
    if (browser_) attempt([&] { browser_->fill_window(); });
    return true;
}

void ControlWindow::show_page(const Control& control) {
    if (browser_ && control.visits != shown_.visits) attempt([&] { browser_->show(control.page); });
}

/// A picture that can't be read leaves its room empty.
void ControlWindow::show_picture(const Control& control) {
    attempt([&] {
        RECT room;
        GetClientRect(window_, &room);
        auto picture = load_picture(control.picture, {room.right, room.bottom});
        send(STM_SETIMAGE, IMAGE_BITMAP, reinterpret_cast<LPARAM>(picture.get()));
        picture_.emplace(std::move(picture));
    });
}

void ControlWindow::show_state(bool visible, bool enabled) {
    // The keyboard must not stay with a control that the user can't reach any more.
    if (GetFocus() == window_ && !(visible && enabled)) SendMessageW(GetParent(window_), WM_NEXTDLGCTL, 0, 0);
    EnableWindow(window_, enabled);
    ShowWindow(window_, visible ? SW_SHOWNA : SW_HIDE);
}

Text ControlWindow::text() const {
    std::wstring text(static_cast<std::size_t>(GetWindowTextLengthW(window_)) + 1, L'\0');
    text.resize(
        static_cast<std::size_t>(GetWindowTextW(window_, text.data(), static_cast<int>(text.size()))));
    return text_of(text);
}

bool ControlWindow::is_ticked() const { return send(BM_GETCHECK) == BST_CHECKED; }

int ControlWindow::chosen_entry() const {
    return static_cast<int>(send(shown_.kind == ControlKind::list_box ? LB_GETCURSEL : CB_GETCURSEL));
}

} // namespace ornavel::win32
