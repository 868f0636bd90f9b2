#include "rehearsal/windows/window_parts.h"

#include "win32/wide.h"

namespace ornavel::rehearsal {

bool is_class(HWND window, std::wstring_view name) {
    wchar_t found[64];
    const int length = GetClassNameW(window, found, ARRAYSIZE(found));
    return name == std::wstring_view(found, static_cast<std::size_t>(length));
}

DWORD style_of(HWND window) { return static_cast<DWORD>(GetWindowLongW(window, GWL_STYLE)); }

Text text_of_window(HWND window) {
    std::wstring text(static_cast<std::size_t>(GetWindowTextLengthW(window)) + 1, L'\0');
    text.resize(static_cast<std::size_t>(GetWindowTextW(window, text.data(), static_cast<int>(text.size()))));
    return win32::text_of(text);
}

} // namespace ornavel::rehearsal
