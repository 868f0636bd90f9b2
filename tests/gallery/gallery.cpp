// gallery FOLDER [STATE...]: shows these states of the forms, or all, one after the other, and leaves a
// picture of each in the folder.
#include "base/encoding.h"
#include "tests/gallery/pictures.h"
#include "tests/gallery/states.h"
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

BOOL CALLBACK take_form(HWND window, LPARAM found) {
    if (!IsWindowVisible(window) || win32::name_of(window).empty()) return TRUE;
    *reinterpret_cast<HWND*>(found) = window;
    return FALSE;
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

/// The form has been drawn by now: a timer comes after everything else in the queue.
void CALLBACK take_picture(HWND, UINT, UINT_PTR, DWORD) {
    HWND form = nullptr;
    EnumThreadWindows(GetCurrentThreadId(), take_form, reinterpret_cast<LPARAM>(&form));
    if (!form || open_list(form)) return;
    RECT frame;
    GetWindowRect(form, &frame);
    if (list_is_open) frame.bottom += 150;
    attempt([&] { write_picture(frame, folder + u"\\" + Text(shown->name) + u".bmp"); });
    PostMessageW(form, WM_CLOSE, 0, 0);
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
