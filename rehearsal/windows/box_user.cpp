#include "rehearsal/windows/box_user.h"

#include "win32/wide.h"

namespace ornavel::rehearsal {
namespace {

BoxUser* at_screen = nullptr;

void CALLBACK look_around(HWND, UINT, UINT_PTR, DWORD) {
    if (at_screen) at_screen->look();
}

bool is_class(HWND window, std::wstring_view wanted) {
    wchar_t name[64];
    const int length = GetClassNameW(window, name, ARRAYSIZE(name));
    return wanted == std::wstring_view(name, static_cast<std::size_t>(length));
}

BOOL CALLBACK note_box(HWND window, LPARAM found) {
    if (!IsWindowVisible(window) || !is_class(window, L"#32770")) return TRUE;
    *reinterpret_cast<HWND*>(found) = window;
    return FALSE;
}

Text text_of_window(HWND window) {
    std::wstring text(static_cast<std::size_t>(GetWindowTextLengthW(window)) + 1, L'\0');
    text.resize(static_cast<std::size_t>(GetWindowTextW(window, text.data(), static_cast<int>(text.size()))));
    return win32::text_of(text);
}

/// What a message box shows, read from its controls.
struct Box {
    Text title, text;
    bool has_ok = false, has_yes = false, has_no = false, has_other = false;
    HICON icon = nullptr;
};

void note_button(Box& box, int id) {
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
    const auto style = static_cast<DWORD>(GetWindowLongW(control, GWL_STYLE));
    if (!(style & WS_VISIBLE)) return TRUE;
    if (is_class(control, L"Button")) note_button(box, GetDlgCtrlID(control));
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

int button_for(const Json& answer) {
    if (answer == "Yes") return IDYES;
    return answer == "No" ? IDNO : IDOK;
}

} // namespace

BoxUser::BoxUser(ScriptedUser& user) : user_(user), timer_(SetTimer(nullptr, 0, 10, look_around)) {
    at_screen = this;
}

BoxUser::~BoxUser() {
    KillTimer(nullptr, timer_);
    at_screen = nullptr;
}

void BoxUser::look() {
    HWND box = nullptr;
    EnumThreadWindows(GetCurrentThreadId(), note_box, reinterpret_cast<LPARAM>(&box));
    if (!box || box == answered_) return;
    answered_ = box;
    answer(box);
    answered_ = nullptr;
}

void BoxUser::answer(HWND window) {
    Box box;
    box.title = text_of_window(window);
    EnumChildWindows(window, note_control, reinterpret_cast<LPARAM>(&box));
    Json record = answer_message_box(user_, box.title, box.text, box.has_yes);
    record["buttons"] = buttons_of(box);
    record["icon"] = icon_of(box);
    windows_.push_back(record);
    SendMessageW(window, WM_COMMAND, static_cast<WPARAM>(button_for(record["answer"])), 0);
}

} // namespace ornavel::rehearsal
