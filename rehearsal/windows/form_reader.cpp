#include "rehearsal/windows/form_reader.h"

#include "rehearsal/windows/window_parts.h"
#include "win32/control_window.h"
#include "win32/wide.h"
#include "win32/window_name.h"

#include <commctrl.h>

namespace ornavel::rehearsal {
namespace {

using forms::Control;
using forms::ControlKind;

BOOL CALLBACK note_named(HWND window, LPARAM found) {
    if (!win32::name_of(window).empty()) reinterpret_cast<std::vector<HWND>*>(found)->push_back(window);
    return TRUE;
}

std::vector<HWND> controls_of(HWND form) {
    std::vector<HWND> found;
    EnumChildWindows(form, note_named, reinterpret_cast<LPARAM>(&found));
    return found;
}

ControlKind button_kind(HWND window) {
    switch (style_of(window) & BS_TYPEMASK) {
    case BS_AUTOCHECKBOX:
        return ControlKind::check_box;
    case BS_GROUPBOX:
        return ControlKind::frame;
    default:
        return ControlKind::command_button;
    }
}

ControlKind kind_of(HWND window) {
    if (is_class(window, L"Button")) return button_kind(window);
    if (is_class(window, L"ComboBox")) return ControlKind::combo_box;
    if (is_class(window, L"ListBox")) return ControlKind::list_box;
    if (is_class(window, L"Edit")) return ControlKind::text_box;
    if (is_class(window, PROGRESS_CLASSW)) return ControlKind::progress_bar;
    switch (style_of(window) & SS_TYPEMASK) {
    case SS_BITMAP:
    case SS_ICON:
        return ControlKind::image;
    case SS_OWNERDRAW:
        return ControlKind::web_browser;
    default:
        return ControlKind::label;
    }
}

struct Owned {
    HWND owner, tips;
};

BOOL CALLBACK note_tips(HWND window, LPARAM pointer) {
    auto& search = *reinterpret_cast<Owned*>(pointer);
    if (GetWindow(window, GW_OWNER) == search.owner && is_class(window, TOOLTIPS_CLASSW))
        search.tips = window;
    return TRUE;
}

/// The window that shows the tool tips of a form's controls. The system gives it to the window that the form
/// stands in, where there is one.
HWND tips_of(HWND form) {
    Owned search{GetAncestor(form, GA_ROOT), nullptr};
    EnumThreadWindows(GetCurrentThreadId(), note_tips, reinterpret_cast<LPARAM>(&search));
    return search.tips;
}

Text tool_tip_of(HWND control, HWND tips) {
    wchar_t text[1024] = {};
    TTTOOLINFOW tool{};
    tool.cbSize = TTTOOLINFOW_V1_SIZE;
    tool.hwnd = GetParent(control);
    tool.uId = reinterpret_cast<UINT_PTR>(control);
    tool.lpszText = text;
    SendMessageW(tips, TTM_GETTEXTW, ARRAYSIZE(text), reinterpret_cast<LPARAM>(&tool));
    return win32::text_of(text);
}

/// A combo box's list is asked and not the box itself, whose every message goes by the tool tips first.
HWND list_of(HWND window, ControlKind kind) {
    if (kind == ControlKind::list_box) return window;
    COMBOBOXINFO parts{};
    parts.cbSize = sizeof parts;
    GetComboBoxInfo(window, &parts);
    return parts.hwndList;
}

std::vector<Text> items_of(HWND list) {
    std::vector<Text> items;
    const auto count = SendMessageW(list, LB_GETCOUNT, 0, 0);
    for (LRESULT index = 0; index < count; ++index) {
        const auto entry = static_cast<WPARAM>(index);
        std::wstring text(static_cast<std::size_t>(SendMessageW(list, LB_GETTEXTLEN, entry, 0)) + 1, L'\0');
        const auto length = SendMessageW(list, LB_GETTEXT, entry, reinterpret_cast<LPARAM>(text.data()));
        items.push_back(win32::text_of({text.data(), static_cast<std::size_t>(length)}));
    }
    return items;
}

Control read_control(HWND window, HWND tips) {
    Control control{.kind = kind_of(window), .name = win32::name_of(window)};
    control.tool_tip = tool_tip_of(window, tips);
    if (has_caption(control.kind)) control.caption = text_of_window(window);
    if (control.kind == ControlKind::text_box || control.kind == ControlKind::combo_box)
        control.text = text_of_window(window);
    if (control.kind == ControlKind::web_browser) control.page = text_of_window(window);
    if (control.kind == ControlKind::check_box)
        control.ticked = SendMessageW(window, BM_GETCHECK, 0, 0) == BST_CHECKED;
    const DWORD style = style_of(window);
    if (control.kind == ControlKind::combo_box || control.kind == ControlKind::list_box) {
        const bool drops_down = control.kind == ControlKind::combo_box;
        control.items = items_of(list_of(window, control.kind));
        control.index =
            static_cast<int>(SendMessageW(window, drops_down ? CB_GETCURSEL : LB_GETCURSEL, 0, 0));
        control.fixed_entries = drops_down && (style & CBS_DROPDOWNLIST) == CBS_DROPDOWNLIST;
    }
    if (control.kind == ControlKind::progress_bar)
        control.value = static_cast<int>(SendMessageW(window, PBM_GETPOS, 0, 0));
    control.visible = (style & WS_VISIBLE) || GetPropW(window, win32::ControlWindow::in_hidden_frame);
    control.enabled = !(style & WS_DISABLED);
    control.locked = control.kind == ControlKind::text_box && (style & ES_READONLY);
    return control;
}

forms::Bounds place_of(HWND window) {
    RECT frame;
    GetWindowRect(window, &frame);
    return win32::Scale::of_screen().twips(frame);
}

} // namespace

std::unique_ptr<forms::Form> read_form(HWND window) {
    const HWND tips = tips_of(window);
    std::vector<Control> controls;
    for (const HWND control : controls_of(window)) controls.push_back(read_control(control, tips));
    Control own{.name = win32::name_of(window), .place = place_of(window), .caption = text_of_window(window)};
    auto form = std::make_unique<forms::Form>(std::move(own), std::move(controls));
    form->topmost = GetWindowLongW(window, GWL_EXSTYLE) & WS_EX_TOPMOST;
    form->load();
    return form;
}

HWND control_window(HWND form, TextView control) {
    for (const HWND window : controls_of(form))
        if (same_name(win32::name_of(window), control)) return window;
    return nullptr;
}

} // namespace ornavel::rehearsal
