#include "rehearsal/windows/menu_hand.h"

#include "forms/control.h"
#include "rehearsal/windows/window_parts.h"
#include "win32/wide.h"

namespace ornavel::rehearsal {
namespace {

BOOL CALLBACK note_menu(HWND window, LPARAM found) {
    if (IsWindowVisible(window) && is_class(window, L"#32768")) *reinterpret_cast<HWND*>(found) = window;
    return TRUE;
}

HMENU menu_of(HWND window) { return reinterpret_cast<HMENU>(SendMessageW(window, MN_GETHMENU, 0, 0)); }

Text caption_at(HMENU menu, UINT position) {
    wchar_t text[256];
    const int length = GetMenuStringW(menu, position, text, ARRAYSIZE(text), MF_BYPOSITION);
    if (length <= 0) return u"-";
    return forms::readable_caption({.kind = forms::ControlKind::menu,
                                    .caption = win32::text_of({text, static_cast<std::size_t>(length)})});
}

void press(HWND window, WPARAM key) { PostMessageW(window, WM_KEYDOWN, key, 0); }

} // namespace

HWND open_menu() {
    HWND found = nullptr;
    EnumThreadWindows(GetCurrentThreadId(), note_menu, reinterpret_cast<LPARAM>(&found));
    return found;
}

std::vector<Text> captions_in_menu(HWND window) {
    std::vector<Text> captions;
    const HMENU menu = menu_of(window);
    const int count = GetMenuItemCount(menu);
    for (int i = 0; i < count; ++i) captions.push_back(caption_at(menu, static_cast<UINT>(i)));
    return captions;
}

void choose_in_menu(HWND window, std::optional<std::size_t> entry) {
    if (!entry) return press(window, VK_ESCAPE);
    const auto captions = captions_in_menu(window);
    for (std::size_t i = 0; i <= *entry && i < captions.size(); ++i) // the keys pass over lines
        if (captions[i] != u"-") press(window, VK_DOWN);
    press(window, VK_RETURN);
}

} // namespace ornavel::rehearsal
