// Waits for a message box, writes its words, and closes it. The installer tells in one why it refuses.
#include <windows.h>

#include <cstdio>

namespace {

constexpr int patience = 400; // looks, one every twentieth of a second
constexpr int words_of_a_box = 0xFFFF;

/// The box, once its words stand in it; they go into the text.
HWND wait_for_box(char (&words)[1024]) {
    for (int looks = 0; looks < patience; ++looks) {
        const HWND box = FindWindowW(L"#32770", nullptr);
        if (box && IsWindowVisible(box) && GetDlgItemTextA(box, words_of_a_box, words, sizeof words))
            return box;
        Sleep(50);
    }
    return nullptr;
}

} // namespace

int main() {
    char words[1024] = {};
    const HWND box = wait_for_box(words);
    if (!box) return 1;
    std::puts(words);
    for (int tries = 0; tries < patience && IsWindow(box); ++tries) {
        PostMessageW(box, WM_COMMAND, IDOK, 0);
        Sleep(50);
    }
    return IsWindow(box) ? 1 : 0;
}
