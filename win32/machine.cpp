#include "win32/machine.h"

#include "win32/form_window.h"
#include "win32/handle.h"
#include "win32/message_box.h"
#include "win32/path_dialog.h"
#include "win32/wide.h"

#include <shellapi.h>

#include <utility>

namespace ornavel::win32 {
namespace {

Text windows_folder() {
    wchar_t folder[MAX_PATH];
    // On a server with several users each has a Windows folder of their own, without its programs.
    const UINT length = GetSystemWindowsDirectoryW(folder, MAX_PATH);
    if (length == 0 || length >= MAX_PATH) fail(u"The Windows folder", GetLastError());
    return text_of({folder, length});
}

int show_command(WindowState window) {
    switch (window) {
    case WindowState::minimised:
        return SW_SHOWMINIMIZED;
    case WindowState::hidden:
        return SW_HIDE;
    default:
        return SW_SHOWNORMAL;
    }
}

/// The shell's own codes for what stands in its way, and the system's for the same.
struct ShellCode {
    INT_PTR code;
    DWORD error;
};

constexpr ShellCode shell_codes[] = {
    {0, ERROR_NOT_ENOUGH_MEMORY},
    {SE_ERR_SHARE, ERROR_SHARING_VIOLATION},
    {SE_ERR_ASSOCINCOMPLETE, ERROR_NO_ASSOCIATION},
    {SE_ERR_DDETIMEOUT, ERROR_DDE_FAIL},
    {SE_ERR_DDEFAIL, ERROR_DDE_FAIL},
    {SE_ERR_DDEBUSY, ERROR_DDE_FAIL},
    {SE_ERR_NOASSOC, ERROR_NO_ASSOCIATION},
    {SE_ERR_DLLNOTFOUND, ERROR_DLL_NOT_FOUND},
};

/// Its other codes are the system's.
DWORD error_of(INT_PTR code) {
    for (const auto& row : shell_codes)
        if (row.code == code) return row.error;
    return static_cast<DWORD>(code);
}

/// Everything that waits in the thread's queue. Keys go to a dialog first, as in its own loop.
void hand_out_messages() {
    MSG message;
    while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) {
        if (message.message == WM_QUIT) return PostQuitMessage(static_cast<int>(message.wParam));
        const HWND dialog = GetActiveWindow();
        if (dialog && IsDialogMessageW(dialog, &message)) continue;
        TranslateMessage(&message);
        DispatchMessageW(&message);
    }
}

/// The pointer of the mouse is the system's sign for work, for as long as this lives.
class WaitCursor {
public:
    WaitCursor() : before_(SetCursor(LoadCursorW(nullptr, IDC_WAIT))) {}
    ~WaitCursor() { SetCursor(before_); }
    WaitCursor(const WaitCursor&) = delete;
    WaitCursor& operator=(const WaitCursor&) = delete;

private:
    HCURSOR before_;
};

TextView folder_of(TextView program) {
    const auto slash = program.find_last_of(u'\\');
    return slash == TextView::npos ? TextView() : program.substr(0, slash + 1);
}

} // namespace

LocalTime SystemClock::now() const {
    SYSTEMTIME time;
    GetLocalTime(&time);
    return {time.wYear, time.wMonth, time.wDay, time.wHour, time.wMinute, time.wSecond};
}

void ShellLauncher::launch(TextView program, TextView arguments, WindowState window) {
    constexpr INT_PTR last_error_code = 32;
    const auto outcome = reinterpret_cast<INT_PTR>(
        ShellExecuteW(nullptr, L"open", wide(program).c_str(), wide(arguments).c_str(),
                      wide(folder_of(program)).c_str(), show_command(window)));
    if (outcome <= last_error_code) fail(program, error_of(outcome));
}

Progress ShellLauncher::run_windows_program(TextView name, TextView arguments, WindowState window,
                                            int milliseconds) {
    const std::wstring program = wide(windows_folder() + u"\\" + Text(name)), words = wide(arguments);
    SHELLEXECUTEINFOW start{};
    start.cbSize = sizeof start;
    start.fMask = SEE_MASK_NOCLOSEPROCESS | SEE_MASK_FLAG_NO_UI;
    start.lpFile = program.c_str();
    start.lpParameters = words.c_str();
    start.nShow = show_command(window);
    if (!ShellExecuteExW(&start) || !start.hProcess) fail(text_of(program), GetLastError());
    const Handle process(start.hProcess);
    if (WaitForSingleObject(process.get(), static_cast<DWORD>(milliseconds)) != WAIT_OBJECT_0)
        return Progress::runs;
    DWORD code = 0;
    return GetExitCodeProcess(process.get(), &code) && code != 0 ? Progress::failed : Progress::ended;
}

Answer DesktopWindows::show(TextView title, TextView text, Buttons buttons) {
    const HWND owner = owner_of_boxes();
    const int button = MessageBoxW(owner, wide(text).c_str(), wide(title).c_str(), box_style(buttons, owner));
    if (button <= 0) fail(title, GetLastError());
    if (buttons == Buttons::ok) return Answer::ok;
    return button == IDYES ? Answer::yes : Answer::no;
}

void DesktopWindows::show_modal(forms::Form& form) {
    form.load();
    if (form.is_loaded()) show_form_modally(form);
}

std::optional<Text> DesktopWindows::ask_for_path(const forms::PathQuestion& question) {
    return win32::ask_for_path(owner_of_boxes(), question);
}

void DesktopWindows::while_user_waits(const std::function<void()>& body) {
    const WaitCursor shown;
    body();
}

void DesktopWindows::keep_on_top(int window) {
    SetWindowPos(reinterpret_cast<HWND>(static_cast<INT_PTR>(window)), HWND_TOPMOST, 0, 0, 0, 0,
                 SWP_NOMOVE | SWP_NOSIZE);
}

long long MessageWaiting::milliseconds() {
    const unsigned long tick = GetTickCount();
    passed_ += tick - std::exchange(last_tick_, tick);
    return passed_;
}

void MessageWaiting::wait(int milliseconds) {
    const long long end = this->milliseconds() + milliseconds;
    for (;;) {
        hand_out_messages();
        const long long left = end - this->milliseconds();
        if (left <= 0) return;
        MsgWaitForMultipleObjects(0, nullptr, FALSE, static_cast<DWORD>(left), QS_ALLINPUT);
    }
}

std::optional<Text> ResourceStrings::find(int id) const {
    // With no room for a copy, the system gives out where the text itself stands.
    const wchar_t* text = nullptr;
    const int length = LoadStringW(module_, static_cast<UINT>(id), reinterpret_cast<wchar_t*>(&text), 0);
    if (length <= 0) return {};
    return text_of({text, static_cast<std::size_t>(length)});
}

} // namespace ornavel::win32
