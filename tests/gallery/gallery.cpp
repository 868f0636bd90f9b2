// gallery FOLDER [STATE...]: shows these states of the forms, or all, one after the other, and leaves a
// picture of each in the folder.
#include "base/encoding.h"
#include "rehearsal/windows/window_picture.h"
#include "tests/gallery/states.h"
#include "win32/wide.h"
#include "win32/window_name.h"

#include <algorithm>
#include <cstdio>
#include <objbase.h>

namespace ornavel::gallery {
namespace {

/// The state that is shown now.
const State* shown = nullptr;
Text folder;
bool list_is_open = false;

bool is_class(HWND window, std::wstring_view wanted) {
    wchar_t found[16];
    return wanted == std::wstring_view(found, static_cast<std::size_t>(GetClassNameW(window, found, 16)));
}

bool is_menu(HWND window) { return is_class(window, L"#32768"); }

/// A form, a box or a menu.
BOOL CALLBACK take_shown(HWND window, LPARAM found) {
    if (!IsWindowVisible(window) || !(is_class(window, L"#32770") || is_menu(window))) return TRUE;
    *reinterpret_cast<HWND*>(found) = window;
    return FALSE;
}

void close(HWND window) {
    if (is_menu(window))
        EndMenu();
    else if (win32::name_of(window).empty())
        EndDialog(window, IDNO);
    else
        PostMessageW(window, WM_CLOSE, 0, 0);
}

BOOL CALLBACK take_list(HWND window, LPARAM found) {
    if (win32::name_of(window) != shown->open_list) return TRUE;
    *reinterpret_cast<HWND*>(found) = window;
    return FALSE;
}

bool open_list(HWND form) {
    if (shown->open_list.empty() || list_is_open) return false;
    HWND list = nullptr;
    EnumChildWindows(form, take_list, reinterpret_cast<LPARAM>(&list));
    SendMessageW(list, CB_SHOWDROPDOWN, TRUE, 0);
    return list_is_open = true;
}

Text beside_picture(TextView extension) { return folder + u"\\" + Text(shown->name) + Text(extension); }

/// A page that nothing here can draw is left beside the picture, with its place in it.
BOOL CALLBACK keep_page(HWND window, LPARAM frame) {
    if (win32::name_of(window) != u"brwPreview" || !IsWindowVisible(window)) return TRUE;
    wchar_t page[MAX_PATH] = {};
    GetWindowTextW(window, page, MAX_PATH);
    RECT room;
    GetClientRect(window, &room);
    POINT corner{};
    ClientToScreen(window, &corner);
    const RECT& whole = *reinterpret_cast<const RECT*>(frame);
    const std::string place = std::to_string(room.right) + "x" + std::to_string(room.bottom) + "+" +
                              std::to_string(corner.x - whole.left) + "+" +
                              std::to_string(corner.y - whole.top);
    attempt([&] {
        win32::WindowsFiles files;
        files.write(beside_picture(u".html"), files.read(win32::text_of(page)));
        files.write(beside_picture(u".place"), place);
    });
    return FALSE;
}

/// The window has been drawn by now: a timer comes after everything else in the queue.
void CALLBACK take_picture(HWND, UINT, UINT_PTR, DWORD) {
    HWND window = nullptr;
    EnumThreadWindows(GetCurrentThreadId(), take_shown, reinterpret_cast<LPARAM>(&window));
    if (!window || open_list(window)) return;
    RECT frame;
    GetWindowRect(window, &frame);
    if (list_is_open) frame.bottom += 150;
    attempt([&] { rehearsal::write_picture(frame, beside_picture(u".bmp")); });
    EnumChildWindows(window, keep_page, reinterpret_cast<LPARAM>(&frame));
    close(window);
}

void show(const State& state) {
    shown = &state;
    list_is_open = false;
    Stage stage;
    const UINT_PTR timer = SetTimer(nullptr, 0, 200, take_picture);
    state.show(stage);
    KillTimer(nullptr, timer);
    std::printf("%s\n", to_utf8(state.name).c_str());
}

} // namespace
} // namespace ornavel::gallery

int main(int count, char** words) {
    using namespace ornavel;
    if (count < 2) return 2;
    CoInitialize(nullptr); // for the web browser control
    gallery::folder = from_utf8(words[1]);
    const std::vector<Text> wanted = [&] {
        std::vector<Text> names;
        for (int i = 2; i < count; ++i) names.push_back(from_utf8(words[i]));
        return names;
    }();
    for (const gallery::State& state : gallery::states())
        if (wanted.empty() || std::ranges::find(wanted, state.name) != wanted.end()) gallery::show(state);
}
