#include "tests/kills/program_window.h"

#include "base/errors.h"
#include "win32/wide.h"
#include "win32/window_name.h"

#include <vector>

namespace ornavel::kills {
namespace {

/// One at a time, for another program's calls may come without end.
bool hand_out_a_message() {
    MSG message;
    if (!PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) return false;
    DispatchMessageW(&message);
    return true;
}

struct Search {
    DWORD process;
    std::vector<HWND> found;
};

BOOL CALLBACK take_dialog(HWND window, LPARAM pointer) {
    auto& search = *reinterpret_cast<Search*>(pointer);
    wchar_t name[8] = {};
    DWORD owner = 0;
    GetWindowThreadProcessId(window, &owner);
    GetClassNameW(window, name, ARRAYSIZE(name));
    if (owner == search.process && IsWindowVisible(window) && std::wstring_view(name) == L"#32770")
        search.found.push_back(window);
    return TRUE;
}

/// The visible windows of dialogs that belong to a process.
std::vector<HWND> dialogs_of(DWORD process) {
    Search search{process, {}};
    EnumWindows(take_dialog, reinterpret_cast<LPARAM>(&search));
    return search.found;
}

Text text_of_window(HWND window) {
    wchar_t text[4096];
    const int length =
        static_cast<int>(SendMessageW(window, WM_GETTEXT, ARRAYSIZE(text), reinterpret_cast<LPARAM>(text)));
    return win32::text_of({text, static_cast<std::size_t>(length)});
}

HANDLE started(TextView program) {
    STARTUPINFOW start{};
    start.cb = sizeof start;
    PROCESS_INFORMATION made{};
    std::wstring line = L"\"" + win32::wide(program) + L"\"";
    if (!CreateProcessW(nullptr, line.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr, &start, &made))
        win32::fail(program, GetLastError());
    CloseHandle(made.hThread);
    return made.hProcess;
}

/// What a box says is its longest label.
Text words_of(HWND box) {
    Text words;
    for (HWND child = GetWindow(box, GW_CHILD); child; child = GetWindow(child, GW_HWNDNEXT))
        if (Text text = text_of_window(child); text.size() > words.size()) words = std::move(text);
    return words;
}

} // namespace

void pump_until(const std::function<bool()>& condition, TextView awaited) {
    constexpr DWORD patience = 120'000;
    const DWORD begin = GetTickCount();
    while (!condition()) {
        if (GetTickCount() - begin > patience) throw Failure(u"Waited in vain for " + Text(awaited));
        if (!hand_out_a_message()) MsgWaitForMultipleObjects(0, nullptr, FALSE, 5, QS_ALLINPUT);
    }
}

void pump_for(int milliseconds) {
    const DWORD begin = GetTickCount();
    pump_until([&] { return GetTickCount() - begin >= static_cast<DWORD>(milliseconds); }, u"time");
}

ProgramWindow::ProgramWindow(TextView program, TextView form) : process_(started(program)) {
    id_ = GetProcessId(process_.get());
    const auto is_there = [&] {
        for (const HWND window : dialogs_of(id_))
            if (same_name(win32::name_of(window), form)) window_ = window;
        return window_ != nullptr || !runs();
    };
    try {
        pump_until(is_there, u"the program's window");
    } catch (const Failure&) {
        end(); // the next one would give way to it
        throw;
    }
    if (!window_) throw Failure(u"The program ended without a window");
}

HWND ProgramWindow::control(TextView name) const {
    for (HWND child = GetWindow(window_, GW_CHILD); child; child = GetWindow(child, GW_HWNDNEXT))
        if (same_name(win32::name_of(child), name)) return child;
    throw Failure(u"There is no control " + Text(name));
}

void ProgramWindow::type(TextView name, TextView text) const {
    const HWND box = control(name);
    SendMessageW(box, EM_SETSEL, 0, -1);
    for (const char16_t unit : text) SendMessageW(box, WM_CHAR, unit, 0);
}

void ProgramWindow::click(TextView name) const { PostMessageW(control(name), BM_CLICK, 0, 0); }

int ProgramWindow::entries_of(TextView list_box) const {
    return static_cast<int>(SendMessageW(control(list_box), LB_GETCOUNT, 0, 0));
}

HWND ProgramWindow::box_window() const {
    for (const HWND window : dialogs_of(id_))
        if (window != window_ && win32::name_of(window).empty()) return window;
    return nullptr;
}

Text ProgramWindow::box() const {
    const HWND window = box_window();
    return window ? words_of(window) : Text();
}

Text ProgramWindow::answer(int button) const {
    pump_until([&] { return box_window() != nullptr || !runs(); }, u"a box");
    const HWND window = box_window();
    if (!window) throw Failure(u"The program ended without a box");
    Text words = words_of(window);
    PostMessageW(window, WM_COMMAND, static_cast<WPARAM>(button), 0);
    pump_until([&] { return !IsWindow(window); }, u"the end of a box");
    return words;
}

void ProgramWindow::close() const { PostMessageW(window_, WM_CLOSE, 0, 0); }

bool ProgramWindow::runs() const { return WaitForSingleObject(process_.get(), 0) == WAIT_TIMEOUT; }

void ProgramWindow::end() {
    TerminateProcess(process_.get(), 99);
    WaitForSingleObject(process_.get(), INFINITE);
}

int ProgramWindow::exit_code() const {
    DWORD code = 0;
    GetExitCodeProcess(process_.get(), &code);
    return static_cast<int>(code);
}

} // namespace ornavel::kills
