#include "tests/win32/real_program.h"

namespace ornavel::win32 {
namespace {

constexpr int tries = 200;
constexpr DWORD pause = 100; // milliseconds

HWND window_of(DWORD process, const wchar_t* title) {
    HWND window = nullptr;
    while ((window = FindWindowExW(nullptr, window, L"#32770", title))) {
        DWORD owner = 0;
        GetWindowThreadProcessId(window, &owner);
        if (owner == process && IsWindowVisible(window)) return window;
    }
    return nullptr;
}

} // namespace

Text built(TextView file) {
    Text folder = path_of(nullptr);
    for (int up = 0; up < 2; ++up) folder.erase(folder.find_last_of(u'\\'));
    if (sizeof(void*) == 8 && !file.starts_with(u"shell\\")) folder += u"\\..\\windows";
    return folder + u"\\" + Text(file);
}

RealProgram::RealProgram(TextView file) {
    STARTUPINFOW start{};
    start.cb = sizeof start;
    PROCESS_INFORMATION started{};
    std::wstring line = wide(u"\"" + built(u"programs\\" + Text(file)) + u"\"");
    if (!CreateProcessW(nullptr, line.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr, &start, &started))
        fail(file, GetLastError());
    CloseHandle(started.hThread);
    process_.emplace(started.hProcess);
    id_ = started.dwProcessId;
}

RealProgram::~RealProgram() { TerminateProcess(process_->get(), 99); }

HWND RealProgram::window(const wchar_t* title) const {
    for (int i = 0; i < tries; ++i) {
        if (const HWND found = window_of(id_, title)) return found;
        Sleep(pause);
    }
    return nullptr;
}

std::optional<DWORD> RealProgram::exit_code() const {
    DWORD code = 0;
    if (WaitForSingleObject(process_->get(), tries * pause) != WAIT_OBJECT_0) return {};
    GetExitCodeProcess(process_->get(), &code);
    return code;
}

void type(HWND form, const wchar_t* text_box, const wchar_t* text) {
    const HWND box = control(form, text_box);
    SendMessageW(box, EM_SETSEL, 0, -1);
    SendMessageW(box, EM_REPLACESEL, TRUE, reinterpret_cast<LPARAM>(text));
}

void press(HWND form, const wchar_t* button) { SendMessageW(control(form, button), BM_CLICK, 0, 0); }

void expect_one_at_a_time(TextView file, const wchar_t* title) {
    const RealProgram first(file);
    const HWND form = first.window(title);
    ASSERT_TRUE(form);
    ShowWindow(form, SW_MINIMIZE);
    const RealProgram second(file);
    EXPECT_EQ(second.exit_code(), 0u);
    EXPECT_FALSE(IsIconic(form));
    SendMessageW(form, WM_CLOSE, 0, 0);
    EXPECT_EQ(first.exit_code(), 0u);
}

} // namespace ornavel::win32
