#include "win32/program_icon.h"

#include "win32/this_module.h"

namespace ornavel::win32 {
namespace {

constexpr WORD program_icon = 1; // in win32/program_icon.rc

/// Shared: the system keeps the icon, and nobody destroys it.
HANDLE load(int width, int height) {
    return LoadImageW(this_module(), MAKEINTRESOURCEW(program_icon), IMAGE_ICON, width, height, LR_SHARED);
}

void show(HWND window, WPARAM kind, HANDLE icon) {
    if (icon) SendMessageW(window, WM_SETICON, kind, reinterpret_cast<LPARAM>(icon));
}

HANDLE load_small() { return load(GetSystemMetrics(SM_CXSMICON), GetSystemMetrics(SM_CYSMICON)); }

} // namespace

void show_program_icon(HWND window) {
    show(window, ICON_SMALL, load_small());
    show(window, ICON_BIG, load(GetSystemMetrics(SM_CXICON), GetSystemMetrics(SM_CYICON)));
}

HICON small_program_icon() {
    if (const HANDLE icon = load_small()) return static_cast<HICON>(icon);
    return LoadIconW(nullptr, IDI_APPLICATION);
}

} // namespace ornavel::win32
