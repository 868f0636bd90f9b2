#include "rehearsal/windows/message_box.h"

#include "rehearsal/windows/window_parts.h"

namespace ornavel::rehearsal {
namespace {

/// What a message box shows, read from its controls.
struct Box {
    Text title, text;
    bool has_ok = false, has_yes = false, has_no = false, has_other = false;
    HICON icon = nullptr;
    int entered = 0; ///< the button that Enter presses
};

void note_button(Box& box, int id, DWORD style) {
    if ((style & BS_TYPEMASK) == BS_DEFPUSHBUTTON) box.entered = id;
    if (id == IDOK)
        box.has_ok = true;
    else if (id == IDYES)
        box.has_yes = true;
    else if (id == IDNO)
        box.has_no = true;
    else
        box.has_other = true;
}

BOOL CALLBACK note_control(HWND control, LPARAM target) {
    Box& box = *reinterpret_cast<Box*>(target);
    const DWORD style = style_of(control);
    if (!(style & WS_VISIBLE)) return TRUE;
    if (is_class(control, L"Button")) note_button(box, GetDlgCtrlID(control), style);
    if (!is_class(control, L"Static") && !is_class(control, L"Edit")) return TRUE;
    if ((style & SS_TYPEMASK) == SS_ICON && is_class(control, L"Static"))
        box.icon = reinterpret_cast<HICON>(SendMessageW(control, STM_GETICON, 0, 0));
    else
        box.text = text_of_window(control);
    return TRUE;
}

const char* buttons_of(const Box& box) {
    if (box.has_other) return "other";
    if (box.has_yes && box.has_no) return box.has_ok ? "other" : "YesNo";
    return box.has_ok ? "OK" : "none";
}

const char* icon_of(const Box& box) {
    if (!box.icon) return "none";
    if (box.icon == LoadIconW(nullptr, IDI_QUESTION)) return "Question";
    return box.icon == LoadIconW(nullptr, IDI_INFORMATION) ? "Information" : "other";
}

Buttons kind_of(const Box& box) {
    if (!box.has_yes) return Buttons::ok;
    return box.entered == IDNO ? Buttons::risky_yes_no : Buttons::yes_no;
}

int button_for(const Json& answer) {
    if (answer == "Yes") return IDYES;
    return answer == "No" ? IDNO : IDOK;
}

} // namespace

Json answer_box_window(ScriptedUser& user, HWND window) {
    Box box;
    box.title = text_of_window(window);
    EnumChildWindows(window, note_control, reinterpret_cast<LPARAM>(&box));
    Json record = answer_message_box(user, box.title, box.text, kind_of(box));
    record["buttons"] = buttons_of(box);
    record["icon"] = icon_of(box);
    SendMessageW(window, WM_COMMAND, static_cast<WPARAM>(button_for(record["answer"])), 0);
    // A box without that button would wait for ever.
    if (IsWindowVisible(window)) EndDialog(window, IDCANCEL);
    return record;
}

} // namespace ornavel::rehearsal
