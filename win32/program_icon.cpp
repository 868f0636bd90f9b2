#include "win32/program_icon.h"

#include "win32/this_module.h"

namespace ornavel::win32 {
namespace {

constexpr WORD program_icon = 1; // in win32/program_icon.rc

/// Shared: the system keeps the icon, and nobody destroys it.
void show(HWND window, WPARAM kind, int width, int height) {
    const HANDLE icon =
        LoadImageW(this_module(), MAKEINTRESOURCEW(program_icon), IMAGE_ICON, width, height, LR_SHARED);
    if (icon) SendMessageW(window, WM_SETICON, kind, reinterpret_cast<LPARAM>(icon));
}

} // namespace

void show_program_icon(HWND window) {
    show(window, ICON_SMALL, GetSystemMetrics(SM_CXSMICON), GetSystemMetrics(SM_CYSMICON));
    show(window, ICON_BIG, GetSystemMetrics(SM_CXICON), GetSystemMetrics(SM_CYICON));
}

} // namespace ornavel::win32
